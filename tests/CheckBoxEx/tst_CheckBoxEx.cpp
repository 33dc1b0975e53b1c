// CCheckBoxEx and CRadioButtonEx, which are the same but for what rows and slots name.
#include "helpers/HouseTest.h"

#include "CC4Styles/CommonControlStyle.h"
#include "CheckBoxEx/CheckBoxEx.h"
#include "LabelEx/LabelEx.h"
#include "RadioButtonEx/RadioButtonEx.h"

#include <QAccessible>
#include <QApplication>
#include <QLayout>
#include <QSignalSpy>

namespace {

const QString longText = QStringLiteral("Print every photo with a white border");

CLabelEx *labelOf(const QWidget &button)
{
    return button.findChild<CLabelEx *>();
}

QFont fontOf(int pixels)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(pixels);
    return font;
}

/** The columns that the label's text covers on the picture of the button. */
QPair<int, int> inkOf(CLabelEx &label, QWidget &button)
{
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, Qt::red);
    label.setPalette(palette);
    const QImage image = button.grab().toImage();
    QPair<int, int> ink(image.width(), -1);
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y) {
            const QColor color = image.pixelColor(x, y);
            if (color.red() > color.blue() + 100)
                ink = {qMin(ink.first, x), qMax(ink.second, x)};
        }
    }
    return ink;
}

template <class Button>
void checkSizes()
{
    QWidget parent;
    parent.setFont(fontOf(13));
    const int lineHeight = QFontMetrics(parent.font()).lineSpacing();
    for (const QString &text : {QStringLiteral("Matte"), longText}) {
        Button button(text, &parent, 100);
        const CLabelEx &label = *labelOf(button);
        QVERIFY(button.text().isEmpty() && button.hasMouseTracking() && label.wordWrap());
        QCOMPARE(label.text(), text);
        const int height = label.heightForWidth(100);
        QVERIFY(text == longText ? height >= 3 * lineHeight : height < 2 * lineHeight);
        QCOMPARE(button.size(), QSize(140, height));
        button.layout()->activate();
        QCOMPARE(label.geometry(), QRect(20, 0, 100, height));
        button.setFixedHeight(77);
        QVERIFY(label.height() == 77 && button.height() == 77);
    }
    QVERIFY(Button(longText, &parent, -3).width() == 40);
    Button withoutItsLabel(longText, &parent, 100);
    delete labelOf(withoutItsLabel);
    const QSize size = withoutItsLabel.size();
    withoutItsLabel.setFixedLabelWidth(50);
    withoutItsLabel.setLabelPalette(QPalette());
    withoutItsLabel.setLabelFont(fontOf(30));
    QCOMPARE(withoutItsLabel.size(), size);
}

template <class Button>
void checkLabelToggles()
{
    QWidget parent;
    Button button(longText, &parent, 100);
    button.setAutoExclusive(false);
    QTest::mousePress(labelOf(button), Qt::LeftButton);
    QVERIFY(!button.isChecked());
    const QSignalSpy toggled(&button, &QAbstractButton::toggled);
    const QSignalSpy clicked(&button, &QAbstractButton::clicked);
    QTest::mouseRelease(labelOf(button), Qt::LeftButton);
    QVERIFY(button.isChecked());
    QTest::mouseClick(labelOf(button), Qt::RightButton);
    QVERIFY(button.isChecked());
    QTest::mouseClick(labelOf(button), Qt::LeftButton);
    QVERIFY(!button.isChecked());
    button.labelClicked(nullptr);
    QVERIFY(button.isChecked());
    QVERIFY(toggled.count() == 3 && clicked.isEmpty());
    button.setEnabled(false);
    QTest::mouseClick(labelOf(button), Qt::LeftButton);
    QVERIFY(button.isChecked());
}

template <class Button>
void checkBoxAndKeysToggle()
{
    CCommonControlStyle style;
    QWidget window;
    Button button(longText, &window, 100);
    button.setAutoExclusive(false);
    button.setStyle(&style);
    window.show();
    QApplication::setActiveWindow(&window);
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const QSignalSpy clicked(&button, &QAbstractButton::clicked);
    QTest::mouseClick(&button, Qt::LeftButton, Qt::NoModifier, QPoint(9, button.height() / 2));
    QVERIFY(button.isChecked() && clicked.count() == 1);
    button.setFocus();
    QVERIFY(button.hasFocus() && !labelOf(button)->isClickable());
    QTest::keyClick(&button, Qt::Key_Space);
    QVERIFY(!button.isChecked() && clicked.count() == 2);
    button.clearFocus();
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(60, 5));
    QVERIFY(button.isChecked());
    QVERIFY(button.hasFocus()); // as after a click on a native text
}

template <class Button>
void checkLabelWidth()
{
    Button button(QStringLiteral("Matte"), nullptr, 100);
    CLabelEx &label = *labelOf(button);
    button.setLabelFont(fontOf(20));
    const int before = button.height();
    QCOMPARE(label.font().pixelSize(), 20);
    label.setText(longText);
    QCOMPARE(button.height(), before);
    button.setFixedLabelWidth(120);
    const int wrapped = QFontMetrics(fontOf(20)).boundingRect(0, 0, 120, 120, Qt::TextWordWrap, longText).height();
    const int extra = std::is_same<Button, CRadioButtonEx>::value ? 8 : 0;
    QVERIFY(wrapped > 2 * before);
    QCOMPARE(button.size(), QSize(160, wrapped + extra));
    QCOMPARE(label.size(), QSize(120, wrapped + extra));
    button.setFixedLabelWidth(-5);
    QVERIFY(button.width() == 40 && label.width() == 0);
    button.setFixedLabelWidth(QWIDGETSIZE_MAX);
    QCOMPARE(label.maximumWidth(), QWIDGETSIZE_MAX - 40);
}

template <class Button>
void checkPalettes()
{
    Button button(longText, nullptr, 100);
    QPalette given;
    given.setColor(QPalette::WindowText, Qt::red);
    given.setColor(QPalette::Disabled, QPalette::WindowText, Qt::gray);
    given.setColor(QPalette::Window, Qt::green);
    given.setColor(QPalette::Base, Qt::magenta);
    button.setLabelPalette(given);
    for (const QWidget *widget : std::initializer_list<QWidget *>{&button, labelOf(button)}) {
        const QPalette palette = widget->palette();
        for (const auto role : {QPalette::WindowText, QPalette::ButtonText}) {
            QCOMPARE(palette.color(QPalette::Active, role), QColor(Qt::red));
            QCOMPARE(palette.color(QPalette::Inactive, role), QColor(Qt::red));
            QCOMPARE(palette.color(QPalette::Disabled, role), QColor(Qt::gray));
        }
        for (const auto role : {QPalette::Window, QPalette::Button})
            QCOMPARE(palette.color(role), QColor(Qt::green));
        QVERIFY(palette.color(QPalette::Base) != QColor(Qt::magenta));
    }
}

template <class Button>
void checkWithoutLabel()
{
    QWidget parent;
    QVERIFY(Button(&parent).text().isEmpty());
    Button button(longText, &parent);
    QVERIFY(button.text() == longText && button.hasMouseTracking() && labelOf(button) == nullptr);
    const QFont font = button.font();
    const QPalette palette = button.palette();
    const QSize widest = button.maximumSize();
    button.labelClicked(&button);
    button.setFixedLabelWidth(10);
    button.setLabelPalette(QPalette(Qt::red));
    button.setLabelFont(fontOf(30));
    QVERIFY(!button.isChecked() && button.font() == font && button.palette() == palette);
    QCOMPARE(button.maximumSize(), widest);
    button.setFixedHeight(33);
    QCOMPARE(button.height(), 33);
    QCOMPARE(QAccessible::queryAccessibleInterface(&button)->text(QAccessible::Name), longText);
}

// Of a text in either direction of writing, on a page in either direction.
template <class Button>
void checkTextStaysAtTheIndicator()
{
    CCommonControlStyle style;
    for (const QString &text : {QStringLiteral("Matte"), QStringLiteral("מט")}) {
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            QWidget parent;
            parent.setLayoutDirection(Qt::LeftToRight);
            Button button(text, &parent, 100);
            button.setStyle(&style);
            parent.setLayoutDirection(direction);
            const QPair<int, int> ink = inkOf(*labelOf(button), button);
            QVERIFY(ink.first < ink.second);
            if (direction == Qt::LeftToRight)
                QVERIFY2(ink.first >= 20 && ink.first < 25 && ink.second < 100, qPrintable(text));
            else
                QVERIFY2(ink.second < 120 && ink.second > 114 && ink.first > 40, qPrintable(text));
        }
    }
}

template <class Button>
void checkAccessible()
{
    constexpr bool isRadio = std::is_same<Button, CRadioButtonEx>::value;
    QWidget parent;
    Button button(longText, &parent, 100);
    button.setAutoExclusive(false);
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&button);
    QCOMPARE(interface->text(QAccessible::Name), longText);
    QCOMPARE(interface->role(), isRadio ? QAccessible::RadioButton : QAccessible::CheckBox);
    QCOMPARE(interface->childCount(), 0);
    QVERIFY(interface->state().checkable && interface->state().focusable && !interface->state().checked);
    QAccessibleActionInterface *actions = interface->actionInterface();
    QVERIFY(actions->actionNames().contains(QAccessibleActionInterface::toggleAction()));
    actions->doAction(QAccessibleActionInterface::toggleAction());
    QVERIFY(button.isChecked() && interface->state().checked);
    button.setAccessibleName(QStringLiteral("Own name"));
    QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("Own name"));
    button.setEnabled(false);
    actions->doAction(QAccessibleActionInterface::toggleAction());
    QVERIFY(button.isChecked() && interface->state().disabled);
}

} // namespace

#define CHECK(function)                                                                                                \
    QFETCH_GLOBAL(bool, isRadio);                                                                                      \
    isRadio ? function<CRadioButtonEx>() : function<CCheckBoxEx>();

class tst_CheckBoxEx : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void sizes() { CHECK(checkSizes) }
    void lowRadioButton();
    void labelToggles() { CHECK(checkLabelToggles) }
    void boxAndKeysToggle() { CHECK(checkBoxAndKeysToggle) }
    void exclusiveButtonStaysChecked();
    void labelWidth() { CHECK(checkLabelWidth) }
    void palettes() { CHECK(checkPalettes) }
    void withoutLabel() { CHECK(checkWithoutLabel) }
    void textStaysAtTheIndicator() { CHECK(checkTextStaysAtTheIndicator) }
    void accessible() { CHECK(checkAccessible) }
    void radioButtonsAreTabStops();
};

void tst_CheckBoxEx::initTestCase_data()
{
    QTest::addColumn<bool>("isRadio");
    QTest::newRow("check box") << false;
    QTest::newRow("radio button") << true;
}

// As high as the text needs, even where the indicator needs more.
void tst_CheckBoxEx::lowRadioButton()
{
    CCommonControlStyle style;
    QWidget parent;
    parent.setFont(fontOf(6));
    CRadioButtonEx button(QStringLiteral("Matte"), &parent, 100);
    button.setStyle(&style);
    QVERIFY(button.height() < static_cast<QRadioButton &>(button).sizeHint().height());
    QVERIFY(button.height() == labelOf(button)->heightForWidth(100) && labelOf(button)->height() == button.height());
}

void tst_CheckBoxEx::exclusiveButtonStaysChecked()
{
    QWidget parent;
    CRadioButtonEx glossy(QStringLiteral("Glossy"), &parent, 100);
    CRadioButtonEx matte(QStringLiteral("Matte"), &parent, 100);
    QTest::mouseClick(labelOf(glossy), Qt::LeftButton);
    QVERIFY(glossy.isChecked());
    QTest::mouseClick(labelOf(glossy), Qt::LeftButton);
    QVERIFY(glossy.isChecked());
    QTest::mouseClick(labelOf(matte), Qt::LeftButton);
    QVERIFY(matte.isChecked() && !glossy.isChecked());

    CCheckBoxEx box(longText, &parent, 100);
    box.setCheckState(Qt::PartiallyChecked);
    const QSignalSpy changed(&box, &QCheckBox::stateChanged);
    QTest::mouseClick(labelOf(box), Qt::LeftButton);
    QCOMPARE(box.checkState(), Qt::Unchecked);
    QCOMPARE(static_cast<int>(changed.count()), 1);
}

void tst_CheckBoxEx::radioButtonsAreTabStops()
{
    QWidget window;
    CRadioButtonEx glossy(QStringLiteral("Glossy"), &window, 100);
    CRadioButtonEx matte(QStringLiteral("Matte"), &window);
    CRadioButtonEx other(&window);
    glossy.move(0, 0);
    matte.move(0, 40);
    other.move(0, 80);
    window.show();
    QApplication::setActiveWindow(&window);
    QVERIFY(QTest::qWaitForWindowActive(&window));
    glossy.setChecked(true);
    for (QWidget *button : std::initializer_list<QWidget *>{&glossy, &matte, &other}) {
        QCOMPARE(button->focusPolicy(), Qt::StrongFocus);
        button->setFocus();
        QVERIFY(button->hasFocus());
    }
    other.setChecked(true);
    QTest::keyClick(&other, Qt::Key_Up);
    QVERIFY(matte.hasFocus() && matte.isChecked());
    QCOMPARE(glossy.focusPolicy(), Qt::StrongFocus);
}

HOUSE_TEST_MAIN(tst_CheckBoxEx)
#include "tst_CheckBoxEx.moc"
