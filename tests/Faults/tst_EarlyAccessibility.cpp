// Qt asks for an accessible interface, and keeps it, in the midst of the constructor of whatever is made in a disabled
// parent. What the control is has to be told all the same.
#include "helpers/HouseTest.h"

#include "CheckBoxEx/CheckBoxEx.h"
#include "CustomIconButton/CustomIconButton.h"
#include "FrameEx/Frame.h"
#include "LabelEx/LabelEx.h"
#include "ProgressBarEx/ProgressBarDialogEx.h"
#include "ProgressBarEx/ProgressBarEx.h"
#include "RadioButtonEx/RadioButtonEx.h"
#include "SliderEx/DSliderEx.h"
#include "TitleButtonEx/TitleButton.h"

#include <QAccessible>

#include <functional>

namespace {

using Maker = std::function<QWidget *(QWidget *)>;

template <typename Control>
QWidget *make(QWidget *parent)
{
    return new Control(parent);
}

template <typename Control>
QWidget *makeWithLabel(QWidget *parent)
{
    return new Control(QStringLiteral("Print date"), parent, 150);
}

QWidget *makePanel(QWidget *parent)
{
    return new CProgressBarDialogEx(QStringLiteral("Printing"), parent);
}

} // namespace

class tst_EarlyAccessibility : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void sameInDisabledParent();
};

void tst_EarlyAccessibility::sameInDisabledParent()
{
    const std::pair<const char *, Maker> makers[] = {{"CDSliderEx", make<CDSliderEx>},
                                                     {"CLabelEx", make<CLabelEx>},
                                                     {"CCustomIconButton", make<CCustomIconButton>},
                                                     {"CTitleButton", make<CTitleButton>},
                                                     {"CFrame", make<CFrame>},
                                                     {"CProgressBarEx", make<CProgressBarEx>},
                                                     {"CProgressBarDialogEx", makePanel},
                                                     {"CCheckBoxEx", makeWithLabel<CCheckBoxEx>},
                                                     {"CRadioButtonEx", makeWithLabel<CRadioButtonEx>}};
    QAccessible::setActive(true);
    QWidget enabled;
    QWidget disabled;
    disabled.setEnabled(false);
    for (const auto &[name, maker] : makers) {
        QAccessibleInterface *usual = QAccessible::queryAccessibleInterface(maker(&enabled));
        QAccessibleInterface *early = QAccessible::queryAccessibleInterface(maker(&disabled));
        QVERIFY2(early->role() == usual->role(), name);
        QVERIFY2(early->childCount() == usual->childCount(), name);
        QVERIFY2(early->text(QAccessible::Name) == usual->text(QAccessible::Name), name);
    }
}

HOUSE_TEST_MAIN(tst_EarlyAccessibility)
#include "tst_EarlyAccessibility.moc"
