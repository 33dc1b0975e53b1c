// Faces, bevel and label of push buttons, with bitmaps of one plain colour each, so that every pixel tells its slice.
#include "TestLook.h"
#include "helpers/HouseTest.h"

#include "ButtonEx/ButtonEx.h"
#include "CC4Styles/CommonControlStyle.h"

#include <QApplication>
#include <QPixmapCache>

namespace {

/** Records the label's text instead of drawing it. */
class RecordingStyle : public CCommonControlStyle
{
public:
    void drawItemText(QPainter *painter, const QRect &rect, int flags, const QPalette &palette, bool enabled,
                      const QString &text, QPalette::ColorRole role) const override
    {
        texts.append(text);
        textRect = rect;
        textFlags = flags;
        textPalette = palette;
        textEnabled = enabled;
        textRole = role;
        textFont = painter->font();
    }

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returnData) const override
    {
        return hint == SH_UnderlineShortcut ? underlinesShortcuts
                                            : CCommonControlStyle::styleHint(hint, option, widget, returnData);
    }

    bool underlinesShortcuts = true;
    mutable QStringList texts;
    mutable QRect textRect;
    mutable int textFlags = 0;
    mutable QPalette textPalette;
    mutable bool textEnabled = false;
    mutable QPalette::ColorRole textRole = QPalette::NoRole;
    mutable QFont textFont;
};

constexpr QStyle::State resting = QStyle::State_Enabled;
constexpr QStyle::State lit = QStyle::State_Enabled | QStyle::State_MouseOver;
constexpr QStyle::State sunken = QStyle::State_Enabled | QStyle::State_Sunken;
const CButtonEx::CButtonStyles looks[] = {CButtonEx::BSEX_Normal,  CButtonEx::BSEX_Transparent,
                                          CButtonEx::BSEX_Glowing, CButtonEx::BSEX_Active,
                                          CButtonEx::BSEX_Tray,    CButtonEx::BSEX_Tertiary};

// Heights of 10; scaled to a button of height 20 the caps are 10 and 12 wide.
constexpr int leftCap = 10;
constexpr int rightCap = 12;
const QSize buttonSize(100, 20);

const QColor restingLeft(1, 0, 0);
const QColor restingRight(2, 0, 0);
const QColor restingMiddle(3, 0, 0);
const QColor pressedLeft(4, 0, 0);
const QColor pressedRight(5, 0, 0);
const QColor pressedMiddle(6, 0, 0);
const QColor imageColor(0, 200, 0);

QPixmap imageOf(int width, int height, const QColor &color = imageColor)
{
    return pixmapOf(QSize(width, height), color);
}

QStyleOptionButton optionFor(const QWidget &widget, const QString &text = QString(), QStyle::State state = resting)
{
    QStyleOptionButton option;
    option.initFrom(&widget);
    option.rect = QRect(QPoint(0, 0), buttonSize);
    option.state = state;
    option.text = text;
    return option;
}

} // namespace

Q_DECLARE_METATYPE(QStyle::State)

class tst_PushButtonPainters : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void restingFace_data();
    void restingFace();
    void pressedFace();
    void highlight_data();
    void highlight();
    void disabledFaceIsFaded();
    void imagePlace_data();
    void imagePlace();
    void imagesAreNotShared();
    void imagesOfEqualButtonsElsewhere();
    void wrongOptionPaintsNothing();
    void panelOfOtherWidgets();
    void transparentFace();
    void glowingFace();
    void flatButtons();
    void chevron();
    void autoDefaultShrinksFace();
    void plainButtonHasOneLabel();
    void labelColours_data();
    void labelColours();
    void labelPlace_data();
    void labelPlace();
    void everyStateAndSizeIsSafe();

private:
    QImage face(CButtonEx &button, const QStyleOptionButton &option) const;
    QImage control(QStyle::ControlElement element, const QWidget &button, const QStyleOptionButton &option) const;

    const TestLook m_look;
    std::unique_ptr<RecordingStyle> m_style;
};

void tst_PushButtonPainters::initTestCase()
{
    const auto addSlice = [this](const QString &name, int width, const QColor &color) {
        m_look.addBitmap(QStringLiteral("Pushbutton") + name, QSize(width, 10), color);
    };
    for (const QString &look : {QStringLiteral("White"), QStringLiteral("Green"), QStringLiteral("Blue")}) {
        addSlice(look + QStringLiteral("LeftCap"), leftCap / 2, restingLeft);
        addSlice(look + QStringLiteral("RightCap"), rightCap / 2, restingRight);
        addSlice(look + QStringLiteral("Blit"), 4, restingMiddle);
        addSlice(look + QStringLiteral("PressedLeftCap"), leftCap / 2, pressedLeft);
        addSlice(look + QStringLiteral("PressedRightCap"), rightCap / 2, pressedRight);
        addSlice(look + QStringLiteral("PressedBlit"), 4, pressedMiddle);
    }
    m_look.setColors({{"PB_ACTIVE_TOP", QColor(0x00, 0xFF, 0xFF)}, {"PB_ACTIVE_BOTTOM", QColor(0x00, 0x00, 0x80)}});
    m_style = std::make_unique<RecordingStyle>();
}

void tst_PushButtonPainters::init()
{
    HouseTest::init();
    QPixmapCache::clear();
    m_style->texts.clear();
}

QImage tst_PushButtonPainters::face(CButtonEx &button, const QStyleOptionButton &option) const
{
    return Picture::of(
        option.rect.size(),
        [&](QPainter *painter) { m_style->drawPrimitive(QStyle::PE_PanelButtonCommand, &option, painter, &button); });
}

QImage tst_PushButtonPainters::control(QStyle::ControlElement element, const QWidget &button,
                                       const QStyleOptionButton &option) const
{
    return Picture::of(
        option.rect.size(), [&](QPainter *painter) { m_style->drawControl(element, &option, painter, &button); });
}

void tst_PushButtonPainters::restingFace_data()
{
    QTest::addColumn<CButtonEx::CButtonStyles>("look");
    QTest::addColumn<int>("middleEnd"); // first column behind the middle
    QTest::newRow("white") << CButtonEx::BSEX_Normal << 100 - 1 - rightCap;
    QTest::newRow("green") << CButtonEx::BSEX_Active << 100 - 1 - rightCap;
    QTest::newRow("blue, whose middle covers a column of the cap") << CButtonEx::BSEX_Tray << 100 - rightCap;
}

void tst_PushButtonPainters::restingFace()
{
    QFETCH(CButtonEx::CButtonStyles, look);
    QFETCH(int, middleEnd);
    CButtonEx button;
    button.setButtonStyle(look);
    const QImage image = face(button, optionFor(button));
    QCOMPARE(Picture::boundsOf(image, restingLeft), QRect(0, 0, leftCap, 20));
    QCOMPARE(Picture::boundsOf(image, restingMiddle), QRect(leftCap, 0, middleEnd - leftCap, 20));
    QCOMPARE(Picture::boundsOf(image, restingRight), QRect(middleEnd, 0, 99 - middleEnd, 20));
    QVERIFY(!Picture::paintsOutside(image, QRect(0, 0, 99, 20)));
}

void tst_PushButtonPainters::pressedFace()
{
    CButtonEx button;
    for (const auto state : {sunken, QStyle::State_Enabled | QStyle::State_On, sunken | QStyle::State_MouseOver}) {
        const QImage image = face(button, optionFor(button, QString(), state));
        QCOMPARE(Picture::boundsOf(image, pressedLeft), QRect(0, 0, leftCap, 20));
        const int middleEnd = 100 - rightCap; // over the cap's first column
        QCOMPARE(Picture::boundsOf(image, pressedMiddle), QRect(leftCap, 0, middleEnd - leftCap, 20));
        QCOMPARE(Picture::boundsOf(image, pressedRight), QRect(middleEnd, 0, rightCap - 1, 20));
        QVERIFY(!Picture::paintsOutside(image, QRect(0, 0, 99, 20)));
    }
}

void tst_PushButtonPainters::highlight_data()
{
    QTest::addColumn<CButtonEx::CButtonStyles>("look");
    QTest::addColumn<QStyle::State>("state");
    QTest::newRow("hovered white") << CButtonEx::BSEX_Normal << lit;
    QTest::newRow("focused green") << CButtonEx::BSEX_Active << (QStyle::State_Enabled | QStyle::State_HasFocus);
    QTest::newRow("hovered blue") << CButtonEx::BSEX_Tray << lit;
}

void tst_PushButtonPainters::highlight()
{
    QFETCH(CButtonEx::CButtonStyles, look);
    QFETCH(QStyle::State, state);
    CButtonEx button;
    button.setButtonStyle(look);
    const QImage image = face(button, optionFor(button, QString(), state));
    const bool isWhite = button.buttonStyle() == CButtonEx::BSEX_Normal;
    const QColor top = isWhite ? QColor(0xFF, 0xDA, 0xB2) : QColor(0x00, 0xFF, 0xFF);
    const QColor bottom = isWhite ? QColor(0xF7, 0x94, 0x1D) : QColor(0x00, 0x00, 0x80);
    QCOMPARE(image.pixelColor(50, 0), top);
    QCOMPARE(image.pixelColor(50, 1), top);
    QCOMPARE(image.pixelColor(50, 2), restingMiddle);
    QCOMPARE(image.pixelColor(50, 17), restingMiddle);
    QCOMPARE(image.pixelColor(50, 18), bottom);
    QCOMPARE(image.pixelColor(99, 19), bottom);
    // Bands: two columns at the left, three at the right, from one colour to the other.
    for (int x : {0, 1, 97, 98, 99}) {
        const int green = image.pixelColor(x, 10).green();
        QVERIFY2(green < top.green() && green > bottom.green(), qPrintable(Picture::colorAt(image, x, 10)));
    }
    QCOMPARE(image.pixelColor(2, 10), restingLeft);
    QCOMPARE(image.pixelColor(96, 10), restingRight);
}

void tst_PushButtonPainters::disabledFaceIsFaded()
{
    CButtonEx button;
    const QImage image = face(button, optionFor(button, QString(), QStyle::State_Sunken | QStyle::State_MouseOver));
    QCOMPARE(qAlpha(image.pixel(50, 10)), 0x99);
    QVERIFY(qAbs(image.pixelColor(50, 10).red() - restingMiddle.red()) <= 1); // resting, whatever the state says
    QCOMPARE(qAlpha(image.pixel(50, 0)), 0x99);
    QVERIFY(image.pixelColor(50, 0).green() == 0); // no highlight
}

void tst_PushButtonPainters::imagePlace_data()
{
    QTest::addColumn<CButtonEx::CButtonStyles>("look");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<int>("column"); // at which the image begins
    QTest::newRow("white, centred") << CButtonEx::BSEX_Normal << "" << resting << 45;
    QTest::newRow("white, beside text") << CButtonEx::BSEX_Normal << "Text" << resting << 10;
    QTest::newRow("white, pressed, centred") << CButtonEx::BSEX_Normal << "" << sunken << 45;
    QTest::newRow("green, beside text, narrow") << CButtonEx::BSEX_Active << "Text" << resting << 20;
    QTest::newRow("green, pressed, always in its place beside text") << CButtonEx::BSEX_Active << "" << sunken << 20;
    QTest::newRow("blue, beside text, narrow") << CButtonEx::BSEX_Tray << "Text" << resting << 20;
    QTest::newRow("blue, pressed, always in its place beside text") << CButtonEx::BSEX_Tray << "" << sunken << 20;
}

void tst_PushButtonPainters::imagePlace()
{
    QFETCH(CButtonEx::CButtonStyles, look);
    QFETCH(QString, text);
    QFETCH(QStyle::State, state);
    QFETCH(int, column);
    constexpr int width = 9;
    CButtonEx button;
    button.setButtonStyle(look);
    button.setPixmap(imageOf(width, 5));
    const QImage image = face(button, optionFor(button, text, state));
    QCOMPARE(Picture::boundsOf(image, imageColor), QRect(column, 7, width, 5)); // (20 - 5) / 2

    // Where the image leaves more than 110 pixels, and two, the narrow inset gives way.
    QStyleOptionButton wide = optionFor(button, QStringLiteral("Text"));
    wide.rect.setWidth(110 - 2 + width);
    QCOMPARE(face(button, wide).pixelColor(10, 9) == imageColor, look == CButtonEx::BSEX_Normal);
    wide.rect.setWidth(111 - 2 + width);
    QCOMPARE(face(button, wide).pixelColor(10, 9), imageColor);
}

void tst_PushButtonPainters::imagesAreNotShared()
{
    CButtonEx first;
    CButtonEx second;
    first.setPixmap(imageOf(9, 5, Qt::red));
    second.setPixmap(imageOf(9, 5, Qt::blue));
    const QStyleOptionButton option = optionFor(first);
    QCOMPARE(face(first, option).pixelColor(50, 10), QColor(Qt::red));
    QCOMPARE(face(second, option).pixelColor(50, 10), QColor(Qt::blue));
    QCOMPARE(face(second, optionFor(first, QStringLiteral("Text"))).pixelColor(12, 10), QColor(Qt::blue));

    CButtonEx bare;
    QCOMPARE(face(bare, option).pixelColor(50, 10), restingMiddle);
    QPixmap cached;
    QVERIFY(QPixmapCache::find(m_style->uniqueName(QStringLiteral("panelbuttoncommand"), &option, buttonSize),
                               &cached)); // without an image the key is the plain one
    QCOMPARE(face(first, option).pixelColor(50, 10), QColor(Qt::red));
}

// The place of an image counts from the rectangle that is painted, so it is part of what the cache tells apart.
void tst_PushButtonPainters::imagesOfEqualButtonsElsewhere()
{
    CButtonEx button;
    button.setButtonStyle(CButtonEx::BSEX_Active);
    button.setPixmap(imageOf(9, 5));
    QStyleOptionButton option = optionFor(button, QString(), sunken);
    face(button, option);
    option.rect.translate(7, 0);
    const QImage image = Picture::of(QSize(120, 20), [&](QPainter *painter) {
        m_style->drawPrimitive(QStyle::PE_PanelButtonCommand, &option, painter, &button);
    });
    QCOMPARE(image.pixelColor(7 + 20 + 7, 10), imageColor);
    QVERIFY(image.pixelColor(7 + 20 + 6, 10) != imageColor);
}

void tst_PushButtonPainters::wrongOptionPaintsNothing()
{
    CButtonEx button;
    QStyleOption option;
    option.rect = QRect(QPoint(0, 0), buttonSize);
    for (const auto look : looks) {
        button.setButtonStyle(look);
        const QImage image = Picture::of(buttonSize, [&](QPainter *painter) {
            m_style->drawPrimitive(QStyle::PE_PanelButtonCommand, &option, painter, &button);
            m_style->drawControl(QStyle::CE_PushButtonBevel, &option, painter, &button);
        });
        QVERIFY(Picture::isBlank(image));
    }
}

void tst_PushButtonPainters::panelOfOtherWidgets()
{
    const QPushButton plain;
    const QStyleOptionButton option = optionFor(plain);
    const auto draw = [&](const QWidget *widget) {
        return Picture::of(buttonSize, [&](QPainter *painter) {
            m_style->drawPrimitive(QStyle::PE_PanelButtonCommand, &option, painter, widget);
            m_style->drawTransparentPushButton(&option, painter, widget);
            m_style->drawGlowingPushButton(&option, painter, widget);
        });
    };
    QVERIFY(Picture::isBlank(draw(&plain)));
    QVERIFY(Picture::isBlank(draw(nullptr)));
    CButtonEx tertiary;
    tertiary.setButtonStyle(CButtonEx::BSEX_Tertiary);
    QVERIFY(Picture::isBlank(face(tertiary, option)));
    const QStyleOptionButton hovered = optionFor(plain, QString(), lit);
    const QImage askedByName =
        Picture::of(buttonSize, [&](QPainter *painter) { m_style->drawNormalPushButton(&hovered, painter, nullptr); });
    QCOMPARE(askedByName.pixelColor(50, 0), restingMiddle); // no button that could be hovered
}

void tst_PushButtonPainters::transparentFace()
{
    CButtonEx button;
    button.setButtonStyle(CButtonEx::BSEX_Transparent);
    button.setPixmap(imageOf(10, 10));
    QImage image = face(button, optionFor(button));
    QVERIFY(!Picture::paintsOutside(image, QRect(45, 5, 10, 10)));
    QCOMPARE(image.pixelColor(45, 5), imageColor);
    image = face(button, optionFor(button, QStringLiteral("Text")));
    QVERIFY(!Picture::paintsOutside(image, QRect(0, 5, 10, 10)));
}

void tst_PushButtonPainters::glowingFace()
{
    CButtonEx button;
    button.setButtonStyle(CButtonEx::BSEX_Glowing);
    button.setPixmap(imageOf(10, 10));
    QStyleOptionButton option = optionFor(button);
    option.rect = QRect(0, 0, 120, 90);
    const QRect imageRect((120 - 14 - 10) / 2, (90 - 15 - 10) / 2, 10, 10);
    QImage image = face(button, option);
    QCOMPARE(image.pixelColor(imageRect.topLeft()), imageColor);
    QVERIFY(!Picture::paintsOutside(image, imageRect)); // no glow, no outline

    Pointer::enter(button);
    QTRY_VERIFY(button.getGlowAlpha() > 0.95F);
    image = face(button, option);
    // Core in the middle, fading outwards over 25 pixels on all sides.
    const QColor core = image.pixelColor(30, 60);
    QVERIFY2(qAbs(core.alpha() - 179) < 20, qPrintable(core.name(QColor::HexArgb)));
    QVERIFY(qAbs(core.red() - 0xB4) <= 2 && qAbs(core.green() - 0xDC) <= 2 && core.blue() >= 0xFD);
    for (const QPoint &towardsEdge : {QPoint(-1, 0), QPoint(1, 0), QPoint(0, -1), QPoint(0, 1)}) {
        const QPoint centre(60, 45);
        const auto at = [&](int fromEdge) {
            const QPoint reach(60 - fromEdge, 45 - fromEdge);
            return image.pixelColor(centre + QPoint(towardsEdge.x() * reach.x(), towardsEdge.y() * reach.y())).alpha();
        };
        QVERIFY(at(4) < at(12) && at(12) < at(20));
    }
    QVERIFY(image.pixelColor(4, 4).alpha() < 40);
    const QColor outline = image.pixelColor(60, 0);
    QVERIFY2(outline.alpha() >= 0x50 && outline.lightness() > 240, qPrintable(outline.name(QColor::HexArgb)));
}

void tst_PushButtonPainters::flatButtons()
{
    CButtonEx button;
    QStyleOptionButton option = optionFor(button);
    option.features = QStyleOptionButton::Flat;
    QVERIFY(Picture::isBlank(control(QStyle::CE_PushButtonBevel, button, option)));
    option.state |= QStyle::State_On;
    QCOMPARE(control(QStyle::CE_PushButtonBevel, button, option).pixelColor(50, 10), pressedMiddle);
}

void tst_PushButtonPainters::chevron()
{
    CButtonEx button;
    button.setChevron(true);
    QStyleOptionButton option = optionFor(button);
    QCOMPARE(control(QStyle::CE_PushButtonBevel, button, option), face(button, option)); // bitmap looks have none

    button.setButtonStyle(CButtonEx::BSEX_Transparent);
    option.rect = QRect(0, 0, 100, 60);
    const QImage image = control(QStyle::CE_PushButtonBevel, button, option);
    // The arrow's rectangle ends one column before the face's right edge and is 56 high; the arrow starts at half of
    // that.
    QCOMPARE(qAlpha(image.pixel(98 - 10, 28)), 0xB4);
    QCOMPARE(qAlpha(image.pixel(98 - 10, 32)), 0xB4);
    QVERIFY(!Picture::paintsOutside(image, QRect(98 - 14, 28, 9, 5)));
    button.setChevron(false);
    QVERIFY(Picture::isBlank(control(QStyle::CE_PushButtonBevel, button, option)));
}

void tst_PushButtonPainters::autoDefaultShrinksFace()
{
    class IndicatorStyle : public RecordingStyle
    {
    public:
        int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override
        {
            return metric == PM_ButtonDefaultIndicator ? 3 : RecordingStyle::pixelMetric(metric, option, widget);
        }
    };
    const IndicatorStyle style;
    const CButtonEx button;
    QStyleOptionButton option = optionFor(button);
    option.features = QStyleOptionButton::AutoDefaultButton;
    const QImage image = Picture::of(buttonSize, [&](QPainter *painter) {
        style.drawControl(QStyle::CE_PushButtonBevel, &option, painter, &button);
    });
    QVERIFY(!Picture::paintsOutside(image, QRect(3, 3, 94, 14)));
    QCOMPARE(image.pixelColor(3, 3), restingLeft);
}

void tst_PushButtonPainters::plainButtonHasOneLabel()
{
    const QPushButton plain;
    QStyleOptionButton option = optionFor(plain, QStringLiteral("Text"));
    const QImage image = control(QStyle::CE_PushButton, plain, option);
    QVERIFY(!Picture::isBlank(image)); // a native face
    QCOMPARE(m_style->texts, QStringList(QStringLiteral("Text")));
    QCOMPARE(m_style->textRect, m_style->subElementRect(QStyle::SE_PushButtonContents, &option, &plain));
    QCOMPARE(m_style->textFlags, 0x884);
    m_style->underlinesShortcuts = false;
    control(QStyle::CE_PushButtonLabel, plain, option);
    QCOMPARE(m_style->textFlags, 0x8884);
    m_style->underlinesShortcuts = true;
    m_style->texts.clear();

    option.icon = QIcon(imageOf(16, 16));
    option.iconSize = QSize(16, 16);
    const QImage withIcon = control(QStyle::CE_PushButtonLabel, plain, option);
    QVERIFY(!Picture::isBlank(withIcon)); // the icon of a plain button is not lost
    QCOMPARE(m_style->texts, QStringList(QStringLiteral("Text")));
}

void tst_PushButtonPainters::labelColours_data()
{
    QTest::addColumn<CButtonEx::CButtonStyles>("look");
    QTest::addColumn<QColor>("active");
    QTest::addColumn<QColor>("disabled");
    const QColor white(Qt::white);
    const QColor grey(0x80, 0x80, 0x80);
    const QColor own(0x12, 0x34, 0x56);
    QTest::newRow("white") << CButtonEx::BSEX_Normal << QColor(0, 0, 0, 200) << QColor(0, 0, 0, 60);
    QTest::newRow("transparent") << CButtonEx::BSEX_Transparent << own << own;
    QTest::newRow("glowing") << CButtonEx::BSEX_Glowing << white << white;
    QTest::newRow("green") << CButtonEx::BSEX_Active << white << grey;
    QTest::newRow("blue") << CButtonEx::BSEX_Tray << white << grey;
}

void tst_PushButtonPainters::labelColours()
{
    QFETCH(CButtonEx::CButtonStyles, look);
    QFETCH(QColor, active);
    QFETCH(QColor, disabled);
    CButtonEx button;
    button.setButtonStyle(look);
    button.setTextColor(QColor(0x12, 0x34, 0x56));
    control(QStyle::CE_PushButtonLabel, button, optionFor(button, QStringLiteral("Text")));
    QCOMPARE(m_style->textRole, QPalette::ButtonText);
    QVERIFY(m_style->textEnabled);
    QCOMPARE(m_style->textPalette.color(QPalette::Active, QPalette::ButtonText), active);
    QCOMPARE(m_style->textPalette.color(QPalette::Inactive, QPalette::ButtonText), active);
    QCOMPARE(m_style->textPalette.color(QPalette::Disabled, QPalette::ButtonText), disabled);
}

void tst_PushButtonPainters::labelPlace_data()
{
    QTest::addColumn<CButtonEx::CButtonStyles>("look");
    QTest::addColumn<int>("width");
    QTest::addColumn<bool>("withImage");
    QTest::addColumn<int>("left");
    QTest::addColumn<int>("flags");
    QTest::newRow("white") << CButtonEx::BSEX_Normal << 100 << false << 0 << 0x884;
    QTest::newRow("white, image") << CButtonEx::BSEX_Normal << 100 << true << 16 + 11 << 0x881;
    QTest::newRow("transparent, image") << CButtonEx::BSEX_Transparent << 100 << true << 16 + 11 << 0x881;
    QTest::newRow("green, image, narrow") << CButtonEx::BSEX_Active << 110 << true << 16 + 21 << 0x881;
    QTest::newRow("green, image, wide") << CButtonEx::BSEX_Active << 111 << true << 16 + 11 << 0x881;
    QTest::newRow("blue, image, narrow") << CButtonEx::BSEX_Tray << 110 << true << 16 + 21 << 0x881;
    QTest::newRow("blue, image, wide") << CButtonEx::BSEX_Tray << 111 << true << 16 + 11 << 0x881;
    QTest::newRow("glowing, image") << CButtonEx::BSEX_Glowing << 100 << true << 0 << 0x844;
}

void tst_PushButtonPainters::labelPlace()
{
    QFETCH(CButtonEx::CButtonStyles, look);
    QFETCH(int, width);
    QFETCH(bool, withImage);
    QFETCH(int, left);
    QFETCH(int, flags);
    CButtonEx button;
    button.setButtonStyle(look);
    QFont font = button.font();
    font.setPixelSize(18);
    button.setFont(font);
    if (withImage)
        button.setPixmap(imageOf(16, 16));
    for (const QStyle::State state : {resting, sunken}) {
        QStyleOptionButton option = optionFor(button, QStringLiteral("Text"), state);
        option.rect.setWidth(width);
        control(QStyle::CE_PushButtonLabel, button, option);
        QCOMPARE(m_style->textRect, QRect(left, 0, width - left, 20)); // pressed or not
        QCOMPARE(m_style->textFlags, flags);
    }
    QCOMPARE(m_style->textFont.pixelSize(), look == CButtonEx::BSEX_Glowing ? 14 : 18);
    QCOMPARE(m_style->textFont.styleStrategy(), QFont::PreferAntialias);
}

void tst_PushButtonPainters::everyStateAndSizeIsSafe()
{
    CButtonEx button;
    button.setPixmap(imageOf(3, 3));
    button.setChevron(true);
    button.setButtonStyle(CButtonEx::BSEX_Glowing);
    Pointer::enter(button);
    QTRY_VERIFY(button.getGlowAlpha() > 0.95F);
    const QPoint place(4, 6);
    for (const auto look : looks) {
        button.setButtonStyle(look);
        const bool isBitmapLook =
            look == CButtonEx::BSEX_Normal || look == CButtonEx::BSEX_Active || look == CButtonEx::BSEX_Tray;
        for (int bits = 0; bits < 256; ++bits) {
            QStyleOptionButton option = optionFor(button, QString(), QStyle::State_None);
            option.state.setFlag(QStyle::State_Enabled, (bits & 1) != 0);
            option.state.setFlag(QStyle::State_Sunken, (bits & 2) != 0);
            option.state.setFlag(QStyle::State_On, (bits & 4) != 0);
            option.state.setFlag(QStyle::State_MouseOver, (bits & 8) != 0);
            option.features.setFlag(QStyleOptionButton::AutoDefaultButton, (bits & 16) != 0);
            option.features.setFlag(QStyleOptionButton::Flat, (bits & 32) != 0);
            option.direction = (bits & 64) != 0 ? Qt::RightToLeft : Qt::LeftToRight;
            const qreal ratio = (bits & 128) != 0 ? 2.0 : 1.0;
            for (const QSize &size : {QSize(0, 0), QSize(1, 1), QSize(7, 3), QSize(43, 27), QSize(60, 60)}) {
                option.rect = QRect(place, size);
                const auto draw = [&](QPainter *painter) {
                    const QPen pen = painter->pen();
                    const QBrush brush = painter->brush();
                    m_style->drawControl(QStyle::CE_PushButtonBevel, &option, painter, &button);
                    QCOMPARE(painter->pen(), pen);
                    QCOMPARE(painter->brush(), brush);
                    QCOMPARE(painter->compositionMode(), QPainter::CompositionMode_SourceOver);
                    QVERIFY(!painter->hasClipping());
                };
                const QImage image = Picture::of(QSize(80, 80), draw, ratio);
                const QRect allowed(place * ratio, size * ratio);
                QVERIFY2(!isBitmapLook || !Picture::paintsOutside(image, allowed), qPrintable(QString::number(bits)));
            }
        }
    }
}

HOUSE_TEST_MAIN(tst_PushButtonPainters)
#include "tst_PushButtonPainters.moc"
