// The frames of text boxes and spin boxes, pixel by pixel. Every key has a colour of its own here, so that no two can
// be mistaken.
#include "TestLook.h"
#include "helpers/HouseTest.h"

#include "CC4Styles/CommonControlStyle.h"
#include "CC4Styles/PixelTable.h"
#include "TextBoxEx/TextBoxEx.h"

#include <QApplication>
#include <QSpinBox>

#include <memory>

namespace {

using Picture::Layers;
using Picture::Legend;

const QColor red(0xF0, 0x10, 0x10);
const QColor green(0x20, 0xE0, 0x20);
const QColor blue(0x30, 0x30, 0xD0);
const QColor yellow(0xC0, 0xC0, 0x40);
const QColor white(0xFF, 0xFF, 0xFF);
const QColor ground(0x28, 0x50, 0x78);

QColor faint(QColor color, int alpha)
{
    color.setAlpha(alpha);
    return color;
}

const char normalFrame[] = R"(
.BBBBBBBB.
BCDTTTTDCB
BDLHHHHLDB
BLH....HLB
BL......LB
BL......LB
blhhhhhhlb
blhhhhhhlb
BL......LB
BL......LB
blhhhhhhlb
blhhhhhhlb
blhhhhhhlb
BL......LB
BDH....HDB
BEDH..HDEB
BCEDLLDECB
.BBBBBBBB.)";

Legend normalLegend()
{
    const QColor soft = faint(white, 100);
    const QColor stripe = faint(yellow, 40);
    return {{'B', {red}},
            {'C', {red, soft}},
            {'D', {blue, soft}},
            {'E', {blue, faint(white, 200)}},
            {'T', {green}},
            {'L', {blue}},
            {'H', {yellow}},
            {'b', {red, stripe}},
            {'l', {blue, stripe}},
            {'h', {stripe}},
            {'.', {}}};
}

const char transparentFrame[] = R"(
..aaaaaaaa..
.c.dddddd.c.
a.deeeeeegei
adeeffffffea
adefkkkkkkka
adefkkkkkkka
adefkkkkkkka
adefkkkkkkka
adefkkkkkkka
acgfkkkkkkka
.cccccccccc.
...bbbbbb...)";

struct Alphas
{
    int outer, lower, corner, inner, fill, fillEdge;
};

constexpr Alphas resting{80, 60, 80, 100, 100, 100};
constexpr Alphas hovered{120, 100, 120, 140, 140, 140};
constexpr Alphas focussed{200, 180, 120, 220, 255, 220};

Legend transparentLegend(const QList<Alphas> &passes)
{
    Legend legend{{'.', {}}};
    for (const Alphas &pass : passes) {
        const QColor outer = faint(red, pass.outer);
        const QColor dark = faint(green, pass.inner);
        const QColor light = faint(blue, pass.inner);
        legend['a'] += outer;
        legend['b'] += faint(red, pass.lower);
        legend['c'] += faint(red, pass.corner);
        legend['d'] += dark;
        legend['e'] += light;
        legend['f'] += faint(yellow, pass.fillEdge);
        legend['g'] += Layers{dark, light};
        legend['i'] += Layers{outer, light};
        legend['k'] += faint(yellow, pass.fill);
    }
    return legend;
}

void giveFocus(QWidget &widget)
{
    QFocusEvent event(QEvent::FocusIn);
    QCoreApplication::sendEvent(&widget, &event);
}

QStyleOptionFrame frameOption(const QSize &size)
{
    QStyleOptionFrame option;
    option.rect = QRect(QPoint(0, 0), size);
    option.state = QStyle::State_Enabled;
    return option;
}

} // namespace

class tst_TextBoxPainters : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void normalFrameIsOneForAllStates();
    void transparentFrames();
    void panels_data();
    void panels();
    void spinBoxFrame();
    void pixelsStayWhole();
    void smallAndMovedFramesStayInside();
    void crossedAndLongLines();

private:
    QImage panel(const QWidget *widget, const QSize &size) const;
    void drawBoth(QPainter *painter, const QStyleOption &option, const QWidget &box) const;

    const TestLook m_look;
    std::unique_ptr<CCommonControlStyle> m_style;
};

void tst_TextBoxPainters::initTestCase()
{
    m_look.setColors({{"LE_BORDER TB_TRANS_BORDER1 SPIN_BORDER", red},
                      {"LE_TOPBORDER1 TB_TRANS_BORDER2 SPIN_BACKGROUND", green},
                      {"LE_BOTTOMBORDER1 TB_TRANS_BORDER3", blue},
                      {"LE_TOPBORDER2 TB_TRANS_FILLRECT", yellow},
                      {"LE_BACKGROUND", white}});
    m_style = std::make_unique<CCommonControlStyle>();
}

QImage tst_TextBoxPainters::panel(const QWidget *widget, const QSize &size) const
{
    const QStyleOptionFrame option = frameOption(size);
    return Picture::of(size, [&](QPainter *painter) {
        painter->fillRect(option.rect, ground);
        m_style->drawPrimitive(QStyle::PE_PanelLineEdit, &option, painter, widget);
    });
}

void tst_TextBoxPainters::normalFrameIsOneForAllStates()
{
    CTextBoxEx box;
    QStyleOption option; // of no special type
    const QImage wanted = Picture::fromLetters(normalFrame, normalLegend(), ground);
    option.rect = wanted.rect();
    const auto frame = [&](const QWidget *widget) {
        return Picture::of(wanted.size(), [&](QPainter *painter) {
            painter->fillRect(option.rect, ground);
            m_style->drawNormalTextBox(&option, painter, widget);
        });
    };
    QCOMPARE(Picture::difference(frame(nullptr), wanted), QString());
    Pointer::enter(box);
    giveFocus(box);
    box.setEnabled(false);
    QCOMPARE(Picture::difference(frame(&box), wanted), QString());
}

void tst_TextBoxPainters::transparentFrames()
{
    CTextBoxEx box;
    const auto differenceTo = [&](const QList<Alphas> &passes) {
        const QImage wanted = Picture::fromLetters(transparentFrame, transparentLegend(passes), ground);
        return Picture::difference(panel(&box, wanted.size()), wanted);
    };
    QCOMPARE(differenceTo({resting}), QString());
    box.setReadOnly(true); // makes no difference
    QCOMPARE(differenceTo({resting}), QString());
    Pointer::enter(box);
    QCOMPARE(differenceTo({hovered}), QString());
    giveFocus(box);
    QCOMPARE(differenceTo({hovered, focussed}), QString());
    Pointer::leave(box);
    QCOMPARE(differenceTo({resting, focussed}), QString());
}

void tst_TextBoxPainters::panels_data()
{
    QTest::addColumn<int>("style"); // -1: a plain QLineEdit
    QTest::addColumn<bool>("readOnly");
    QTest::addColumn<bool>("isFilled");
    QTest::addColumn<bool>("hasFrame");
    QTest::newRow("normal") << 1 << false << true << true;
    QTest::newRow("normal, read-only") << 1 << true << false << false;
    QTest::newRow("other look") << 2 << false << false << false;
    QTest::newRow("QLineEdit") << -1 << false << true << false;
    QTest::newRow("QLineEdit, read-only") << -1 << true << true << false;
}

void tst_TextBoxPainters::panels()
{
    QFETCH(int, style);
    QFETCH(bool, readOnly);
    QFETCH(bool, isFilled);
    QFETCH(bool, hasFrame);
    CTextBoxEx box;
    box.setLineEditStyle(static_cast<CTextBoxEx::CLineEditStyles>(style));
    QLineEdit plain;
    QLineEdit &edit = style < 0 ? plain : box;
    edit.setReadOnly(readOnly);
    const QImage image = panel(&edit, QSize(30, 24));
    QCOMPARE(image.pixelColor(10, 14), isFilled ? white : ground);
    QCOMPARE(image.pixelColor(1, 8), hasFrame ? blue : isFilled ? white : ground);
    QCOMPARE(image.pixelColor(28, 22) == ground, !isFilled);
    QCOMPARE(image.pixelColor(0, 8), hasFrame ? red : ground);
    QCOMPARE(image.pixelColor(29, 23), ground);
}

void tst_TextBoxPainters::spinBoxFrame()
{
    const char *frame = "\nRRRRRR\nRGGGGR\nRGGGGR\nRRRRRR";
    QSpinBox spinBox;
    QStyleOptionFrame option = frameOption(QSize(6, 4));
    const auto draw = [&](QPainter *painter) {
        m_style->drawPrimitive(QStyle::PE_FrameLineEdit, &option, painter, &spinBox);
    };
    const auto differenceTo = [&](const Layers &inside) {
        return Picture::difference(Picture::of(option.rect.size(), draw),
                                   Picture::fromLetters(frame, {{'R', {red}}, {'G', inside}}));
    };
    QCOMPARE(differenceTo({green}), QString());
    option.state = QStyle::State_None; // disabled
    QCOMPARE(differenceTo({green, faint(red, 10)}), QString());
}

void tst_TextBoxPainters::drawBoth(QPainter *painter, const QStyleOption &option, const QWidget &box) const
{
    m_style->drawNormalTextBox(&option, painter, &box);
    m_style->drawTransparentTextBox(&option, painter, &box);
}

void tst_TextBoxPainters::pixelsStayWhole()
{
    const CTextBoxEx box;
    const QStyleOptionFrame option = frameOption(QSize(30, 20));
    const auto drawn = [&](qreal ratio, bool antialiased) {
        const auto draw = [&](QPainter *painter) {
            painter->setRenderHint(QPainter::Antialiasing, antialiased); // the style's text painting leaves it on
            drawBoth(painter, option, box);
            QCOMPARE(painter->testRenderHint(QPainter::Antialiasing), antialiased);
        };
        return Picture::of(option.rect.size(), draw, ratio);
    };
    QCOMPARE(Picture::difference(drawn(1.5, true), drawn(1.5, false)), QString());
    QCOMPARE(Picture::difference(drawn(2.0, true), drawn(1.0, true).scaled(option.rect.size() * 2)), QString());
}

void tst_TextBoxPainters::smallAndMovedFramesStayInside()
{
    CTextBoxEx box;
    giveFocus(box);
    CTextBoxEx normal;
    normal.setLineEditStyle(CTextBoxEx::LineEditNormal);
    const QLineEdit plain;
    const QSpinBox spinBox;
    for (int width = 0; width <= 13; ++width) {
        for (int height = 0; height <= 13; ++height) {
            QStyleOptionFrame option = frameOption(QSize(width, height));
            option.rect.translate(20, 15);
            const QImage image = Picture::of(QSize(60, 50), [&](QPainter *painter) {
                drawBoth(painter, option, box);
                for (const QWidget *widget : std::initializer_list<const QWidget *>{&box, &normal, &plain})
                    m_style->drawPrimitive(QStyle::PE_PanelLineEdit, &option, painter, widget);
                m_style->drawPrimitive(QStyle::PE_FrameLineEdit, &option, painter, &spinBox);
            });
            QVERIFY(!Picture::paintsOutside(image, option.rect));
            QCOMPARE(Picture::isBlank(image), option.rect.isEmpty());
        }
    }
}

void tst_TextBoxPainters::crossedAndLongLines()
{
    constexpr PixelTable::Ink ink{"UIGCLR_LE_BORDER"};
    constexpr PixelTable::Operation crossed[] = {PixelTable::row(ink, 3, -4, 0), PixelTable::column(ink, 0, 4, -5),
                                                 PixelTable::area(ink, 3, 0, -4, -1)};
    constexpr PixelTable::Operation tooLong[] = {PixelTable::row(ink, 0, 9, 0)};
    const QRect rect(0, 0, 5, 5);
    const auto drawn = [&rect](const auto &table) {
        return Picture::of(QSize(12, 12), [&](QPainter *painter) { PixelTable::draw(painter, rect, table); });
    };
    QVERIFY(Picture::isBlank(drawn(crossed)));
    QVERIFY(!Picture::paintsOutside(drawn(tooLong), rect));
    QCOMPARE(drawn(tooLong).pixelColor(4, 0), red);
}

HOUSE_TEST_MAIN(tst_TextBoxPainters)
#include "tst_TextBoxPainters.moc"
