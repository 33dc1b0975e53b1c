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

Q_DECLARE_METATYPE(Maker)

class tst_EarlyAccessibility : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void sameInDisabledParent_data();
    void sameInDisabledParent();
};

void tst_EarlyAccessibility::sameInDisabledParent_data()
{
    QTest::addColumn<Maker>("maker");
    QTest::newRow("CDSliderEx") << Maker(make<CDSliderEx>);
    QTest::newRow("CLabelEx") << Maker(make<CLabelEx>);
    QTest::newRow("CCustomIconButton") << Maker(make<CCustomIconButton>);
    QTest::newRow("CTitleButton") << Maker(make<CTitleButton>);
    QTest::newRow("CFrame") << Maker(make<CFrame>);
    QTest::newRow("CProgressBarEx") << Maker(make<CProgressBarEx>);
    QTest::newRow("CProgressBarDialogEx") << Maker(makePanel);
    QTest::newRow("CCheckBoxEx") << Maker(makeWithLabel<CCheckBoxEx>);
    QTest::newRow("CRadioButtonEx") << Maker(makeWithLabel<CRadioButtonEx>);
}

void tst_EarlyAccessibility::sameInDisabledParent()
{
    QFETCH(Maker, maker);
    QAccessible::setActive(true);
    QWidget enabled;
    QWidget disabled;
    disabled.setEnabled(false);
    QAccessibleInterface *usual = QAccessible::queryAccessibleInterface(maker(&enabled));
    QAccessibleInterface *early = QAccessible::queryAccessibleInterface(maker(&disabled));
    QCOMPARE(early->role(), usual->role());
    QCOMPARE(early->childCount(), usual->childCount());
    QCOMPARE(early->text(QAccessible::Name), usual->text(QAccessible::Name));
}

HOUSE_TEST_MAIN(tst_EarlyAccessibility)
#include "tst_EarlyAccessibility.moc"
