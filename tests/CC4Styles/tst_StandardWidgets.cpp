// The painters of standard widgets.
#include "TestLook.h"
#include "helpers/HouseTest.h"

#include "ButtonEx/ButtonEx.h"
#include "CC4Styles/CC4StyleFactory.h"
#include "MenuEx/MenuEx.h"
#include "TextBoxEx/TextBoxEx.h"
#include "UiGraphics.h"

#include <QApplication>
#include <QPixmapCache>
#include <QScopeGuard>
#include <QSpinBox>
#include <QTabBar>
#include <qdrawutil.h>

#include <memory>

namespace {

using Picture::boundsOf;
using Picture::Layers;

const QColor callersPen(Qt::green);

const QColor red(0xF0, 0x10, 0x10);
const QColor green(0x20, 0xE0, 0x20);
const QColor blue(0x30, 0x30, 0xD0);

// One colour each, so that a pixel tells which bitmap it came from.
const QStringList bitmaps =
    QStringLiteral("CheckboxActive CheckboxActiveHover CheckboxActiveChecked CheckboxActiveCheckedHover "
                   "CheckboxInactive CheckboxInactiveChecked CheckboxActivePressed RadiobuttonActive "
                   "RadiobuttonActiveHover RadiobuttonActiveSelected RadiobuttonActiveSelectedHover "
                   "RadiobuttonInactive RadiobuttonInactiveSelected ScrollbarBlueArrowTop ScrollbarBlueArrowBottom "
                   "ScrollbarBlueArrowLeft ScrollbarBlueArrowRight ScrollbarBlueSliderTop ScrollbarBlueSliderBottom "
                   "ScrollbarBlueSliderLeft ScrollbarBlueSliderRight ScrollbarGreySliderTop ScrollbarGreySliderBottom "
                   "ScrollbarGreySliderLeft ScrollbarGreySliderRight dropdown-menu-arrow")
        .split(QLatin1Char(' '));

QSize sizeOf(const QString &bitmap)
{
    const auto has = [&bitmap](const char *part) {
        return bitmap.contains(QLatin1String(part));
    };
    if (has("Pressed"))
        return QSize(2, 2);
    if (has("ScrollbarBlueArrow"))
        return QSize(5, 5);
    if (has("Slider"))
        return has("Top") || has("Bottom") ? QSize(8, 4) : QSize(4, 8);
    return has("dropdown") ? QSize(16, 17) : QSize(14, 14);
}

QColor colorOf(const QString &bitmap)
{
    return QColor(10 + static_cast<int>(bitmaps.indexOf(bitmap)), 0, 0);
}

QColor colorOf(const char *bitmap)
{
    return colorOf(QString::fromLatin1(bitmap));
}

QColor grey(int value)
{
    return QColor(value, value, value);
}

QString note(const char *what, int element, const QRect &rect)
{
    QString text;
    QDebug(&text) << what << element << rect;
    return text;
}

/** Notes what it is asked to draw. Its tab bars overlap their pages by two pixels; the bases do not agree on that. */
class NotingStyle : public CCommonControlStyle
{
public:
    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override
    {
        return metric == PM_TabBarBaseOverlap ? 2 : CCommonControlStyle::pixelMetric(metric, option, widget);
    }
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        notes.append(note("primitive", element, option->rect));
        buttonText = option->palette.color(QPalette::ButtonText);
        CCommonControlStyle::drawPrimitive(element, option, painter, widget);
    }
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override
    {
        notes.append(note("control", element, option->rect));
        CCommonControlStyle::drawControl(element, option, painter, widget);
    }
    void drawItemText(QPainter *, const QRect &rect, int flags, const QPalette &, bool, const QString &text,
                      QPalette::ColorRole) const override
    {
        notes.append(note(qPrintable(text), flags, rect));
    }
    void drawItemPixmap(QPainter *, const QRect &rect, int flags, const QPixmap &) const override
    {
        notes.append(note("pixmap", flags, rect));
    }

    mutable QStringList notes;
    mutable QColor buttonText;
};

} // namespace

Q_DECLARE_METATYPE(QStyle::State)

class tst_StandardWidgets : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void plainFrame();
    void menuFrameAndTipPanel();
    void indicatorBitmaps_data();
    void indicatorBitmaps();
    void indicatorPlaces();
    void branches();
    void tabShapes_data();
    void tabShapes();
    void selectedTabs();
    void tabLabelPlaces_data();
    void tabLabelPlaces();
    void pageFrames_data();
    void pageFrames();
    void tabBarBase();
    void menuItems();
    void menuIcons_data();
    void menuIcons();
    void menuTexts_data();
    void menuTexts();
    void subMenuArrow();
    void headers();
    void headerSection();
    void splitters();
    void scrollBar_data();
    void scrollBar();
    void scrollBarParts();
    void comboBox();
    void comboBoxLabel();
    void spinBox();
    void wrongOptionsPaintNothing();
    void everythingIsSafe();

private:
    template <typename Draw>
    QImage picture(const QStyleOption &option, const QBrush &brush, Draw &&draw) const
    {
        const QSize size(option.rect.right() + 11, option.rect.bottom() + 11);
        return Picture::of(size, [&](QPainter *painter) {
            painter->setPen(callersPen);
            painter->setBrush(brush);
            draw(painter);
        });
    }
    // With room to see what is painted beside the rectangle, and a brush of the caller.
    QImage primitive(QStyle::PrimitiveElement element, const QStyleOption &option, const QWidget *widget = nullptr,
                     const QBrush &brush = Qt::NoBrush) const
    {
        return picture(
            option, brush, [&](QPainter *painter) { m_noting->drawPrimitive(element, &option, painter, widget); });
    }
    QImage control(QStyle::ControlElement element, const QStyleOption &option, const QBrush &brush = Qt::NoBrush) const
    {
        return picture(
            option, brush, [&](QPainter *painter) { m_noting->drawControl(element, &option, painter, nullptr); });
    }
    QImage complex(QStyle::ComplexControl element, const QStyleOptionComplex &option, const QWidget *widget = nullptr,
                   const QBrush &brush = Qt::NoBrush) const
    {
        return picture(
            option, brush, [&](QPainter *painter) { m_noting->drawComplexControl(element, &option, painter, widget); });
    }

    const TestLook m_look;
    CCommonControlStyle *m_style = nullptr; // the application's
    std::unique_ptr<NotingStyle> m_noting;  // paints
};

void tst_StandardWidgets::initTestCase()
{
    for (const QString &bitmap : bitmaps)
        m_look.addBitmap(bitmap, sizeOf(bitmap), colorOf(bitmap));
    // What the look itself has here is too much alike, or white on white.
    m_look.setColors({{"RECTGRAD1 PE_PANELTIPLABEL_GRAD1 SPIN_BORDER TABBAR_SHADOW", red},
                      {"SPIN_BACKGROUND", green},
                      {"RECTGRAD2 PE_PANELTIPLABEL_GRAD2 SPIN_ARROW", blue}});
    m_style = qobject_cast<CCommonControlStyle *>(CC4StyleFactory::getStyle(CC4StyleFactory::CC4Style));
    QVERIFY(m_style != nullptr);
    m_noting = std::make_unique<NotingStyle>();
}

void tst_StandardWidgets::init()
{
    HouseTest::init();
    QPixmapCache::clear();
    m_noting->notes.clear();
}

// Four times enlarged, so that a line of one pixel is told from one of the painter's scale.
void tst_StandardWidgets::plainFrame()
{
    auto option = optionFor<QStyleOption>(QRect(2, 2, 5, 5));
    option.palette.setColor(QPalette::Window, Qt::yellow);
    const QImage image = Picture::of(QSize(50, 50), [&](QPainter *painter) {
        painter->scale(4, 4);
        m_style->drawPrimitive(QStyle::PE_Frame, &option, painter, nullptr);
        QVERIFY(painter->testRenderHint(QPainter::Antialiasing));
    });
    QVERIFY(!Picture::paintsOutside(image, QRect(7, 7, 22, 22)));
    QCOMPARE(boundsOf(image, Qt::yellow), QRect(9, 9, 18, 18));
    QColor halfLine = image.pixelColor(7, 18);
    QVERIFY(halfLine.alpha() > 100 && halfLine.alpha() < 156);
    QVERIFY(qAbs(halfLine.red() - 0xAC) < 3 && qAbs(halfLine.blue() - 0xAC) < 3);
}

void tst_StandardWidgets::menuFrameAndTipPanel()
{
    const CMenuEx menu;
    QImage image = primitive(QStyle::PE_FrameMenu, optionFor<QStyleOption>(QRect(3, 4, 20, 10)), &menu);
    QCOMPARE(boundsOf(image, grey(0xD2)), QRect(3, 4, 20, 10));
    QVERIFY(!Picture::paintsOutside(image, QRect(3, 4, 20, 10)));

    QWidget tip;
    tip.resize(20, 46);
    image = primitive(QStyle::PE_PanelTipLabel, optionFor<QStyleOption>(QRect(0, 0, 30, 60)), &tip);
    QVERIFY(!Picture::paintsOutside(image, tip.rect()));
    for (const int x : {0, 19}) {
        QVERIFY(qAbs(image.pixelColor(x, 0).red() - red.red()) < 6);
        QVERIFY(qAbs(image.pixelColor(x, 20).red() - (red.red() + blue.red()) / 2) < 6); // from 0 to 40
        QCOMPARE(image.pixelColor(x, 40), blue);
        QCOMPARE(image.pixelColor(x, 45), blue);
    }
}

void tst_StandardWidgets::indicatorBitmaps_data()
{
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QString>("end");
    const QStyle::State on = QStyle::State_Enabled;
    const QStyle::State hovered = QStyle::State_MouseOver;
    QTest::newRow("at rest") << on << "Active";
    QTest::newRow("hovered") << (on | hovered) << "ActiveHover";
    QTest::newRow("focused") << (on | QStyle::State_HasFocus) << "ActiveHover";
    QTest::newRow("checked") << (on | QStyle::State_On) << "ActiveChecked";
    QTest::newRow("partly") << (on | QStyle::State_NoChange) << "ActiveChecked";
    QTest::newRow("checked, hovered") << (on | hovered | QStyle::State_On) << "ActiveCheckedHover";
    QTest::newRow("disabled, hovered") << hovered << "Inactive";
    QTest::newRow("disabled, checked") << QStyle::State(QStyle::State_On) << "InactiveChecked";
}

void tst_StandardWidgets::indicatorBitmaps()
{
    QFETCH(QStyle::State, state);
    QFETCH(QString, end);
    auto option = optionFor<QStyleOptionButton>(QRect(0, 0, 16, 16), state);
    QCOMPARE(primitive(QStyle::PE_IndicatorCheckBox, option).pixelColor(9, 9),
             colorOf(QStringLiteral("Checkbox") + end));
    end.replace(QLatin1String("Checked"), QLatin1String("Selected"));
    QCOMPARE(primitive(QStyle::PE_IndicatorRadioButton, option).pixelColor(9, 9),
             colorOf(QStringLiteral("Radiobutton") + end));
}

// The pictures are fitted into rectangles that are a little smaller than they.
void tst_StandardWidgets::indicatorPlaces()
{
    const QColor pressed = colorOf("CheckboxActivePressed");
    auto option = optionFor<QStyleOptionButton>(QRect(4, 4, 16, 16), QStyle::State_Enabled | QStyle::State_Sunken);
    QImage image = primitive(QStyle::PE_IndicatorCheckBox, option);
    QVERIFY(!Picture::paintsOutside(image, QRect(7, 6, 12, 13)));
    QCOMPARE(boundsOf(image, colorOf("CheckboxActiveChecked")), QRect(7, 6, 12, 13));
    QCOMPARE(boundsOf(image, pressed).topLeft(), QPoint(7, 6)); // over the bitmap
    option.state = QStyle::State_Sunken;
    QCOMPARE(boundsOf(primitive(QStyle::PE_IndicatorCheckBox, option), pressed), QRect());

    option.rect = QRect(4, 4, 18, 18);
    option.state |= QStyle::State_Enabled;
    image = primitive(QStyle::PE_IndicatorRadioButton, option);
    QCOMPARE(boundsOf(image, colorOf("RadiobuttonActiveSelected")), QRect(7, 6, 13, 14));
    QVERIFY(!Picture::paintsOutside(image, QRect(7, 6, 13, 14)));
    QCOMPARE(boundsOf(image, pressed), QRect());
}

void tst_StandardWidgets::branches()
{
    auto option = optionFor<QStyleOption>(QRect(3, 2, 20, 20), QStyle::State_Children);
    const Picture::Legend legend = {{'#', {Qt::black}}};
    QImage image = primitive(QStyle::PE_IndicatorBranch, option);
    QCOMPARE(boundsOf(image, Qt::black), QRect(15, 9, 4, 7));
    QCOMPARE(image.copy(15, 9, 4, 7), Picture::fromLetters("\n#...\n##..\n###.\n####\n###.\n##..\n#...", legend));
    option.state |= QStyle::State_Open;
    image = primitive(QStyle::PE_IndicatorBranch, option);
    QCOMPARE(boundsOf(image, Qt::black), QRect(13, 11, 7, 4));
    QCOMPARE(image.copy(13, 11, 7, 4), Picture::fromLetters("\n#######\n.#####.\n..###..\n...#...", legend));
    option.state = QStyle::State_Open;
    QVERIFY(Picture::isBlank(primitive(QStyle::PE_IndicatorBranch, option)));
}

// A tab as it stands on its page, seen from its upper left corner: 15 along the page, 12 high. The face, F, is looked
// at apart.
const char standingTab[] = R"(
.......OOOOOOOOOOO............
......OIIIIIIIIIIIO...........
.....O.FFFFFFFFFFF.O..........
.....OIFFFFFFFFFFFISO.........
.....OIFFFFFFFFFFFISO.........
.....OIFFFFFFFFFFFISO.........
.....OIFFFFFFFFFFFISO.........
.....OIFFFFFFFFFFFISO.........
.....OIFFFFFFFFFFFISO.........
.....OIFFFFFFFFFFFISO.........
BBBBBBBBBBBBBBBBBBBBBBBBBBBBBB
..............................)";

// The shadow is one pixel wide, and so is the line behind it.
const Picture::Legend tabLegend = {{'O', {grey(0xD7)}},      {'I', {grey(0xE7)}},        {'S', {red}},
                                   {'B', {grey(0xD8)}},      {'F', {QColor(Qt::black)}}, {'W', {QColor(Qt::white)}},
                                   {'C', {QColor(Qt::cyan)}}};

void tst_StandardWidgets::tabShapes_data()
{
    QTest::addColumn<QTabBar::Shape>("shape");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QRect>("rect"); // of the tab with its gaps
    QTest::addColumn<QPoint>("corner");
    QTest::addColumn<QPoint>("right");
    QTest::addColumn<QPoint>("down");
    const auto ltr = Qt::LeftToRight;
    const auto rtl = Qt::RightToLeft;
    const QRect lying(10, 15, 20, 12);
    const QRect upright(10, 15, 17, 15);
    const QPoint right(1, 0);
    const QPoint down(0, 1);
    QTest::newRow("north") << QTabBar::RoundedNorth << ltr << lying << QPoint(12, 15) << right << down;
    QTest::newRow("north, mirrored") << QTabBar::RoundedNorth << rtl << lying << QPoint(26, 15) << -right << down;
    QTest::newRow("south") << QTabBar::RoundedSouth << ltr << lying << QPoint(12, 26) << right << -down;
    QTest::newRow("south, mirrored") << QTabBar::RoundedSouth << rtl << lying << QPoint(26, 26) << -right << -down;
    QTest::newRow("west") << QTabBar::RoundedWest << ltr << upright << QPoint(12, 15) << down << right;
    QTest::newRow("west, mirrored") << QTabBar::RoundedWest << rtl << upright << QPoint(12, 15) << down << right;
    QTest::newRow("east") << QTabBar::RoundedEast << ltr << upright << QPoint(23, 15) << down << -right;
}

void tst_StandardWidgets::tabShapes()
{
    QFETCH(QTabBar::Shape, shape);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(QRect, rect);
    QFETCH(QPoint, corner);
    QFETCH(QPoint, right);
    QFETCH(QPoint, down);
    auto option = optionFor<QStyleOptionTab>(rect);
    option.shape = shape;
    option.position = QStyleOptionTab::Middle;
    option.direction = direction;
    const QImage image = control(QStyle::CE_TabBarTabShape, option, Qt::cyan);
    QImage standing(30, 12, image.format());
    for (int y = 0; y < standing.height(); ++y)
        for (int x = 0; x < standing.width(); ++x)
            standing.setPixelColor(x, y, image.pixelColor(corner + (x - 5) * right + y * down));
    // The gradient of the face runs along the page.
    QVERIFY(standing.pixelColor(8, 5).red() > standing.pixelColor(16, 5).red() + 50);
    QVERIFY(standing.pixelColor(8, 5).blue() < standing.pixelColor(16, 5).blue() - 50);
    QCOMPARE(standing.pixelColor(8, 4), standing.pixelColor(8, 7));
    QPainter(&standing).fillRect(7, 2, 11, 8, Qt::black);
    QCOMPARE(Picture::difference(standing, Picture::fromLetters(standingTab, tabLegend)), QString());
    option.state |= QStyle::State_MouseOver;
    QCOMPARE(control(QStyle::CE_TabBarTabShape, option, Qt::cyan), image);
}

// The caller's brush, C, shows where the outline leaves it free.
void tst_StandardWidgets::selectedTabs()
{
    const char letters[] = R"(
.......OOOOOOOOOOO............
......OIIIIIIIIIIIOC..........
.....OCWWWWWWWWWWWCO..........
.....OIWWWWWWWWWWWISO.........
.....OIWWWWWWWWWWWISO.........
.....OIWWWWWWWWWWWISO.........
.....OIWWWWWWWWWWWISO.........
.....OIWWWWWWWWWWWISO.........
.....OIWWWWWWWWWWWISO.........
.....OIWWWWWWWWWWWISO.........
BBBBBBIWWWWWWWWWWWIBBBBBB.....
..............................)";
    auto option = optionFor<QStyleOptionTab>(QRect(10, 15, 20, 12), QStyle::State_Enabled | QStyle::State_Selected);
    option.shape = QTabBar::RoundedNorth;
    option.position = QStyleOptionTab::Middle;
    const auto differenceTo = [&](const Picture::Legend &legend) {
        return Picture::difference(control(QStyle::CE_TabBarTabShape, option, Qt::cyan).copy(7, 15, 30, 12),
                                   Picture::fromLetters(letters, legend));
    };
    QCOMPARE(differenceTo(tabLegend), QString());
    option.state = QStyle::State_Enabled;
    option.position = QStyleOptionTab::OnlyOneTab;
    QCOMPARE(differenceTo(tabLegend), QString());
    option.state = QStyle::State_Selected; // disabled: the face alone
    Picture::Legend faded = tabLegend;
    faded.remove('C');
    QCOMPARE(differenceTo(faded), QString());
}

void tst_StandardWidgets::tabLabelPlaces_data()
{
    QTest::addColumn<QTabBar::Shape>("shape");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QRect>("icon");
    QTest::newRow("beside the text") << QTabBar::RoundedNorth << "." << QRect(6, 7, 10, 10);
    QTest::newRow("alone") << QTabBar::RoundedSouth << "" << QRect(15, 8, 10, 10);
    QTest::newRow("read upwards") << QTabBar::RoundedWest << "." << QRect(14, 3 + 20 - 16, 10, 10);
    QTest::newRow("read downwards") << QTabBar::TriangularEast << "." << QRect(16, 3 + 6, 10, 10);
}

void tst_StandardWidgets::tabLabelPlaces()
{
    QFETCH(QTabBar::Shape, shape);
    QFETCH(QString, text);
    QFETCH(QRect, icon);
    auto option = optionFor<QStyleOptionTab>(QRect(0, 3, 40, 20), QStyle::State_Enabled | QStyle::State_Selected);
    option.shape = shape;
    option.text = text;
    option.icon = QIcon(pixmapOf(QSize(10, 10), blue));
    option.iconSize = QSize(10, 10);
    QCOMPARE(boundsOf(control(QStyle::CE_TabBarTabLabel, option), blue), icon);
}

void tst_StandardWidgets::pageFrames_data()
{
    QTest::addColumn<QTabBar::Shape>("shape");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QRect>("opening"); // a tab bar of 10 by 6, behind a corner of 5 by 4
    const auto ltr = Qt::LeftToRight;
    const auto rtl = Qt::RightToLeft;
    QTest::newRow("north") << QTabBar::RoundedNorth << ltr << QRect(4 + 5, 3, 10, 2);
    QTest::newRow("north, mirrored") << QTabBar::RoundedNorth << rtl << QRect(4 + 40 - 15, 3, 10, 2);
    QTest::newRow("south") << QTabBar::RoundedSouth << ltr << QRect(4 + 5, 3 + 18, 10, 2);
    QTest::newRow("south, mirrored") << QTabBar::RoundedSouth << rtl << QRect(4 + 40 - 15, 3 + 18, 10, 2);
    QTest::newRow("west") << QTabBar::RoundedWest << rtl << QRect(4, 3 + 4, 2, 6);
    QTest::newRow("east") << QTabBar::RoundedEast << ltr << QRect(4 + 38, 3 + 4, 2, 6);
}

void tst_StandardWidgets::pageFrames()
{
    QFETCH(QTabBar::Shape, shape);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(QRect, opening);
    auto option = optionFor<QStyleOptionTabWidgetFrame>(QRect(4, 3, 40, 20));
    option.shape = shape;
    option.direction = direction;
    QImage wanted = primitive(QStyle::PE_FrameTabWidget, option);
    QPainter painter(&wanted);
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
    painter.fillRect(opening, Qt::black);
    painter.end();
    option.tabBarSize = QSize(10, 6);
    option.leftCornerWidgetSize = QSize(5, 4);
    QCOMPARE(Picture::difference(primitive(QStyle::PE_FrameTabWidget, option), wanted), QString());

    const char letters[] = R"(
.MBBBBM.
MBLLLLBM
BL....DB
BL....DB
BL....DB
MBDDDDBM
.MBBBBM.)";
    option = optionFor<QStyleOptionTabWidgetFrame>(QRect(0, 0, 8, 7));
    option.palette.setColor(QPalette::Window, Qt::black);
    const QColor button = option.palette.color(QPalette::Button);
    const Picture::Legend legend = {{'B', {grey(0xC4)}},
                                    {'M', {grey(0xC4 / 2)}}, // half way to the window's black
                                    {'L', {button.lighter(105).rgb()}},
                                    {'D', {button.darker(115).rgb()}}};
    const QImage image = primitive(QStyle::PE_FrameTabWidget, option).copy(option.rect);
    QCOMPARE(Picture::difference(image, Picture::fromLetters(letters, legend)), QString());

    option.shape = QTabBar::TriangularWest;
    const QImage panel =
        picture(option, Qt::NoBrush, [&](QPainter *target) { qDrawWinPanel(target, option.rect, option.palette); });
    QCOMPARE(primitive(QStyle::PE_FrameTabWidget, option), panel);
}

void tst_StandardWidgets::tabBarBase()
{
    auto option = optionFor<QStyleOptionTabBarBase>(QRect(0, 0, 60, 10));
    option.shape = QTabBar::RoundedNorth;
    option.tabBarRect = QRect(0, 0, 20, 10);
    QImage image = primitive(QStyle::PE_FrameTabBarBase, option);
    QCOMPARE(image.pixelColor(40, 8), grey(0xA4));
    QCOMPARE(image.pixelColor(40, 9), QColor(Qt::white));
    QVERIFY(!Picture::paintsOutside(image, QRect(20, 8, 40, 2)));
    option.shape = QTabBar::RoundedSouth;
    image = primitive(QStyle::PE_FrameTabBarBase, option);
    QCOMPARE(image.pixelColor(40, 8), grey(0xD1));
    QCOMPARE(image.pixelColor(40, 9), grey(0xA4));
}

void tst_StandardWidgets::menuItems()
{
    auto option =
        optionFor<QStyleOptionMenuItem>(QRect(0, 10, 100, 20), QStyle::State_Enabled | QStyle::State_Selected);
    option.menuItemType = QStyleOptionMenuItem::Separator;
    QImage image = control(QStyle::CE_MenuItem, option);
    QCOMPARE(boundsOf(image, Qt::black), QRect(8, 10, 84, 1));
    QVERIFY(!Picture::paintsOutside(image, QRect(8, 10, 84, 1))); // and no highlight

    option.menuItemType = QStyleOptionMenuItem::Normal;
    image = control(QStyle::CE_MenuItem, option);
    QCOMPARE(boundsOf(image, grey(0xE5)), QRect(0, 12, 100, 15));
    QVERIFY(!Picture::paintsOutside(image, QRect(0, 12, 100, 15)));
    option.checkType = QStyleOptionMenuItem::NonExclusive;
    option.checked = true;
    const QRect mark(6, 12, 14, 14); // centred on 13 by 13 pixels at (7, 13)
    QCOMPARE(boundsOf(control(QStyle::CE_MenuItem, option), colorOf("CheckboxActiveChecked")), mark);
    option.checked = false;
    QCOMPARE(boundsOf(control(QStyle::CE_MenuItem, option), colorOf("CheckboxActive")), mark);
    option.direction = Qt::RightToLeft;
    QCOMPARE(boundsOf(control(QStyle::CE_MenuItem, option), colorOf("CheckboxActive")), mark.translated(73, 0));
}

void tst_StandardWidgets::menuIcons_data()
{
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<bool>("checked");
    QTest::addColumn<QColor>("expected");
    const QStyle::State on = QStyle::State_Enabled;
    const QStyle::State selected = QStyle::State_Selected;
    QTest::newRow("off") << on << false << QColor(0, 0, 200);
    QTest::newRow("on") << on << true << QColor(0, 0, 201);
    QTest::newRow("selected") << (on | selected) << false << QColor(0, 0, 202);
    QTest::newRow("disabled") << selected << false << QColor(0, 0, 203);
}

// In place of a check mark, and 15 by 15 whatever its own size.
void tst_StandardWidgets::menuIcons()
{
    QFETCH(QStyle::State, state);
    QFETCH(bool, checked);
    QFETCH(QColor, expected);
    auto option = optionFor<QStyleOptionMenuItem>(QRect(0, 10, 100, 20), state);
    option.menuItemType = QStyleOptionMenuItem::Normal;
    option.checkType = QStyleOptionMenuItem::NonExclusive;
    option.checked = checked;
    QIcon icon;
    icon.addPixmap(pixmapOf(QSize(8, 8), QColor(0, 0, 200)), QIcon::Normal, QIcon::Off);
    icon.addPixmap(pixmapOf(QSize(8, 8), QColor(0, 0, 201)), QIcon::Normal, QIcon::On);
    icon.addPixmap(pixmapOf(QSize(8, 8), QColor(0, 0, 202)), QIcon::Active, QIcon::Off);
    icon.addPixmap(pixmapOf(QSize(8, 8), QColor(0, 0, 203)), QIcon::Disabled, QIcon::Off);
    option.icon = icon;
    QImage image = control(QStyle::CE_MenuItem, option);
    QCOMPARE(boundsOf(image, expected), QRect(3, 13, 15, 15)); // centred on a column of 20
    for (const char *mark : {"CheckboxActive", "CheckboxActiveChecked"})
        QCOMPARE(boundsOf(image, colorOf(mark)), QRect());
    option.maxIconWidth = 40;
    option.direction = Qt::RightToLeft;
    QCOMPARE(boundsOf(control(QStyle::CE_MenuItem, option), expected), QRect(60 + 13, 13, 15, 15));
}

void tst_StandardWidgets::menuTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isDefault");
    QTest::addColumn<bool>("isEnabled");
    QTest::addColumn<int>("iconWidth");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QRect>("label");
    QTest::addColumn<QRect>("shortcut");
    const QString both = QStringLiteral("Fill\tCtrl+F");
    const auto ltr = Qt::LeftToRight;
    const auto rtl = Qt::RightToLeft;
    const QRect label(4 + 25, 12, 200 - 25 - 14, 16);
    const QRect shortcut(label.topRight(), QPoint(203, 29));
    const QRect mirroredShortcut(QPoint(4, 12), shortcut.size());
    QTest::newRow("label") << QStringLiteral("&Fill") << false << true << 0 << ltr << label << QRect();
    QTest::newRow("shortcut") << both << false << true << 0 << ltr << label << shortcut;
    QTest::newRow("default") << both << true << true << 0 << ltr << label << shortcut;
    QTest::newRow("disabled") << both << false << false << 0 << ltr << label << shortcut;
    QTest::newRow("wide icons") << both << false << true << 30 << ltr << label.adjusted(10, 0, 0, 0) << shortcut;
    QTest::newRow("mirrored") << both << false << true << 0 << rtl << label.translated(14 - 25, 0) << mirroredShortcut;
}

void tst_StandardWidgets::menuTexts()
{
    QFETCH(QString, text);
    QFETCH(bool, isDefault);
    QFETCH(bool, isEnabled);
    QFETCH(int, iconWidth);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(QRect, label);
    QFETCH(QRect, shortcut);
    const QStyle::State state = isEnabled ? QStyle::State_Enabled : QStyle::State_None;
    auto option = optionFor<QStyleOptionMenuItem>(QRect(4, 10, 200, 20), state);
    option.text = text;
    option.menuItemType = isDefault ? QStyleOptionMenuItem::DefaultItem : QStyleOptionMenuItem::Normal;
    option.maxIconWidth = iconWidth;
    option.direction = direction;
    option.palette.setColor(QPalette::Text, blue);
    option.palette.setColor(QPalette::Light, red);
    constexpr int flags =
        Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip | Qt::TextShowMnemonic;
    QFont callersFont;
    callersFont.setPixelSize(9);
    QFont labelFont = UIGGetFont(12, -1, false);
    labelFont.setBold(isDefault);
    const QImage wanted = picture(option, Qt::NoBrush, [&](QPainter *painter) {
        const auto draw = [&](const QFont &font, const QRect &rect, const QString &string) {
            painter->setFont(font);
            painter->setPen(red);
            if (!isEnabled)
                painter->drawText(rect.translated(1, 1), flags, string); // etched
            painter->setPen(blue);
            painter->drawText(rect, flags, string);
        };
        draw(callersFont, shortcut, text.section(QLatin1Char('\t'), 1));
        draw(labelFont, label, text.section(QLatin1Char('\t'), 0, 0));
    });
    QVERIFY(!Picture::isBlank(wanted));
    const QImage image = picture(option, Qt::NoBrush, [&](QPainter *painter) {
        painter->setFont(callersFont);
        m_noting->drawControl(QStyle::CE_MenuItem, &option, painter, nullptr);
        QCOMPARE(painter->font(), callersFont);
    });
    QCOMPARE(Picture::difference(image, wanted), QString());
}

void tst_StandardWidgets::subMenuArrow()
{
    auto option = optionFor<QStyleOptionMenuItem>(QRect(3, 10, 100, 20), QStyle::State_Enabled);
    option.menuItemType = QStyleOptionMenuItem::SubMenu;
    option.palette.setColor(QPalette::ButtonText, red);
    option.palette.setColor(QPalette::HighlightedText, blue);
    control(QStyle::CE_MenuItem, option);
    QCOMPARE(m_noting->notes.last(), note("primitive", QStyle::PE_IndicatorArrowRight, QRect(103 - 16, 16, 8, 8)));
    QCOMPARE(m_noting->buttonText, red);
    option.state |= QStyle::State_Selected;
    option.direction = Qt::RightToLeft;
    QApplication::setLayoutDirection(Qt::RightToLeft);
    const auto back = qScopeGuard([] { QApplication::setLayoutDirection(Qt::LeftToRight); });
    control(QStyle::CE_MenuItem, option);
    QCOMPARE(m_noting->notes.last(), note("primitive", QStyle::PE_IndicatorArrowLeft, QRect(3 + 8, 16, 8, 8)));
    QCOMPARE(m_noting->buttonText, blue);
}

// The mark is painted before the section, where the style wants it.
void tst_StandardWidgets::headers()
{
    auto option = optionFor<QStyleOptionHeader>(QRect(5, 3, 80, 20), QStyle::State_Enabled | QStyle::State_Horizontal);
    option.sortIndicator = QStyleOptionHeader::SortUp;
    const QRect place = m_noting->subElementRect(QStyle::SE_HeaderArrow, &option, nullptr);
    const QString header = note("control", QStyle::CE_Header, option.rect);
    const QString section = note("control", QStyle::CE_HeaderSection, option.rect);
    const QString mark = note("primitive", QStyle::PE_IndicatorHeaderArrow, place);
    const auto notesOf = [&](QStyleOptionHeader::SortIndicator sorting) {
        option.sortIndicator = sorting;
        m_noting->notes.clear();
        control(QStyle::CE_Header, option);
        return m_noting->notes;
    };
    const QStringList unsorted = notesOf(QStyleOptionHeader::None);
    QVERIFY(unsorted.contains(section) && !unsorted.contains(mark));
    const QStringList up{header, mark, note("primitive", QStyle::PE_IndicatorArrowUp, place)};
    QCOMPARE(notesOf(QStyleOptionHeader::SortUp).mid(0, 3), up);
    const QStringList down{header, mark, note("primitive", QStyle::PE_IndicatorArrowDown, place)};
    QCOMPARE(notesOf(QStyleOptionHeader::SortDown).mid(0, 3), down);
    QVERIFY(m_noting->notes.indexOf(section) >= 3);
}

void tst_StandardWidgets::headerSection()
{
    auto section = optionFor<QStyleOption>(QRect(2, 3, 20, 10), QStyle::State_Enabled | QStyle::State_On);
    QImage image = control(QStyle::CE_HeaderSection, section);
    QCOMPARE(boundsOf(image, QColor(0xEB, 0x83, 0x4B)), section.rect);
    QVERIFY(!Picture::paintsOutside(image, section.rect)); // no outline
    for (const auto state : {QStyle::State_Raised, QStyle::State_Sunken}) {
        section.state = state;
        image = control(QStyle::CE_HeaderSection, section);
        QCOMPARE(image.pixelColor(5, 5), QColor(0xDD, 0xDF, 0xE4));
        QCOMPARE(boundsOf(image, callersPen), section.rect.adjusted(0, 0, 1, 1));
    }
}

void tst_StandardWidgets::splitters()
{
    const Picture::Legend legend = {{'#', {grey(0x9A)}}};
    auto option = optionFor<QStyleOption>(QRect(4, 3, 9, 21), QStyle::State_Horizontal);
    QImage image = control(QStyle::CE_Splitter, option);
    QVERIFY(!Picture::paintsOutside(image, QRect(6, 5, 6, 11))); // the rectangle's top does not count
    const QImage lying = Picture::fromLetters("\n######\n......\n######\n......\n######\n......\n######\n......\n######"
                                              "\n......\n######",
                                              legend);
    QCOMPARE(Picture::difference(image.copy(6, 5, 6, 11), lying), QString());

    option.rect = QRect(4, 3, 21, 9);
    option.state = QStyle::State_MouseOver; // disabled, so not lit
    image = control(QStyle::CE_Splitter, option);
    QVERIFY(!Picture::paintsOutside(image, QRect(9, 5, 11, 6)));
    const QImage upright = lying.transformed(QTransform().rotate(90));
    QCOMPARE(Picture::difference(image.copy(9, 5, 11, 6), upright), QString());
    option.state |= QStyle::State_Enabled;
    option.palette.setColor(QPalette::Base, red);
    image = control(QStyle::CE_Splitter, option);
    QCOMPARE(boundsOf(image, red), option.rect);
    QCOMPARE(image.pixelColor(9, 5), grey(0x9A));
}

struct Bar
{
    Bar(Qt::Orientation orientation, bool enabled)
        : vertical(orientation == Qt::Vertical),
          option(optionFor<QStyleOptionSlider>(QRect(QPoint(0, 0), vertical ? QSize(21, 200) : QSize(200, 21)),
                                               enabled ? QStyle::State_Enabled : QStyle::State_None))
    {
        option.orientation = orientation;
        option.maximum = 100;
        option.pageStep = 50;
        option.subControls = QStyle::SC_All;
    }

    QRect partOf(const QStyle &style, QStyle::SubControl part) const
    {
        return style.subControlRect(QStyle::CC_ScrollBar, &option, part);
    }

    bool vertical;
    QStyleOptionSlider option;
};

void tst_StandardWidgets::scrollBar_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("vertical") << Qt::Vertical << true;
    QTest::newRow("vertical, disabled") << Qt::Vertical << false;
    QTest::newRow("horizontal") << Qt::Horizontal << true;
    QTest::newRow("horizontal, disabled") << Qt::Horizontal << false;
}

void tst_StandardWidgets::scrollBar()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(bool, enabled);
    const Bar bar(orientation, enabled);
    const bool vertical = bar.vertical;
    const QImage image = complex(QStyle::CC_ScrollBar, bar.option);
    // Seen from the left of a vertical bar, from the foot of a horizontal one.
    const auto at = [&](int across, int along) {
        return image.pixelColor(vertical ? QPoint(across, along) : QPoint(along, 20 - across));
    };
    const int free = 130; // between slider and arrow
    QCOMPARE(at(1, free), grey(0xF0));
    QCOMPARE(at(10, free), QColor(0xF0, 0xF0, 0xEF));
    QCOMPARE(at(18, free), grey(0xFE));
    QCOMPARE(at(19, free), grey(0xE3));
    // The left or upper edge is half covered by a shade.
    const int edge = vertical ? 0 : 20;
    const QColor shade = bar.option.palette.color(QPalette::Base).darker(115).rgb();
    int shaded = 0;
    for (int along = 100; along < 140; ++along) {
        QVERIFY(at(edge, along) == grey(0xCF) || at(edge, along) == shade);
        shaded += at(edge, along) == shade ? 1 : 0;
        QCOMPARE(at(20 - edge, along), grey(0xCF));
    }
    QCOMPARE(shaded, 20);

    const QRect slider = bar.partOf(*m_noting, QStyle::SC_ScrollBarSlider);
    const int middle = vertical ? slider.center().y() : slider.center().x();
    QCOMPARE(at(2, middle), enabled ? QColor(0x57, 0xA2, 0xC0) : grey(0xC7));
    QCOMPARE(at(17, middle), enabled ? QColor(0xAF, 0xE1, 0xF4) : grey(0xEC));

    const QRect back = bar.partOf(*m_noting, QStyle::SC_ScrollBarSubLine);
    const QRect forward = bar.partOf(*m_noting, QStyle::SC_ScrollBarAddLine);
    const QSize arrow(5, 5);
    const QPoint fromEnd =
        vertical ? QPoint(forward.left(), forward.bottom() - 21) : forward.topRight() - QPoint(21, 0);
    const auto place = [&](const char *vertically, const char *horizontally) {
        return boundsOf(image, colorOf(vertical ? vertically : horizontally));
    };
    QCOMPARE(place("ScrollbarBlueArrowTop", "ScrollbarBlueArrowLeft"), QRect(back.topLeft(), arrow));
    QCOMPARE(place("ScrollbarBlueArrowBottom", "ScrollbarBlueArrowRight"), QRect(fromEnd, arrow) & forward);
    const auto cap = [&](bool inBlue, const char *end) {
        const char *name = inBlue ? "ScrollbarBlueSlider" : "ScrollbarGreySlider";
        return boundsOf(image, colorOf(QLatin1String(name) + QLatin1String(end)));
    };
    const QSize capSize = vertical ? QSize(8, 4) : QSize(4, 8);
    const QPoint inset = vertical ? QPoint(2, 0) : QPoint(0, 2);
    const QPoint last = vertical ? slider.bottomLeft() - QPoint(0, 3) : slider.topRight() - QPoint(3, 0);
    QCOMPARE(cap(enabled, vertical ? "Top" : "Left"), QRect(slider.topLeft() + inset, capSize));
    QCOMPARE(cap(enabled, vertical ? "Bottom" : "Right"), QRect(last + inset, capSize));
    for (const char *end : {"Top", "Bottom", "Left", "Right"})
        QCOMPARE(cap(!enabled, end), QRect());
}

void tst_StandardWidgets::scrollBarParts()
{
    for (const auto orientation : {Qt::Vertical, Qt::Horizontal}) {
        for (const auto part : {QStyle::SC_ScrollBarGroove, QStyle::SC_ScrollBarSubLine, QStyle::SC_ScrollBarAddLine,
                                QStyle::SC_ScrollBarSlider}) {
            Bar bar(orientation, true);
            bar.option.subControls = part;
            const QRect rect = part == QStyle::SC_ScrollBarGroove ? bar.option.rect : bar.partOf(*m_noting, part);
            const QImage image = complex(QStyle::CC_ScrollBar, bar.option);
            QVERIFY(!Picture::isBlank(image) && !Picture::paintsOutside(image, rect));
        }
    }
}

void tst_StandardWidgets::comboBox()
{
    auto option = optionFor<QStyleOptionComboBox>(QRect(3, 4, 60, 30));
    QImage image = complex(QStyle::CC_ComboBox, option);
    QVERIFY(!Picture::paintsOutside(image, QRect(3, 4, 60, 21)));
    QCOMPARE(boundsOf(image, grey(0x86)), QRect(3, 4, 60, 21));
    QCOMPARE(boundsOf(image, Qt::white), QRect(4, 5, 58, 19));
    QCOMPARE(boundsOf(image, colorOf("dropdown-menu-arrow")), QRect(3 + 42, 4 + 2, 16, 17));
    QPixmap stored;
    QVERIFY(QPixmapCache::find(m_style->uniqueName(QStringLiteral("combobox"), &option, option.rect.size()), &stored));
    // The brush of the caller is the face, whatever has been drawn before.
    for (const QBrush &brush : {QBrush(red), QBrush(), QBrush(blue), QBrush(red)}) {
        const QColor face = brush.style() == Qt::NoBrush ? QColor(Qt::white) : brush.color();
        QCOMPARE(complex(QStyle::CC_ComboBox, option, nullptr, brush).pixelColor(20, 10), face);
    }
    option.direction = Qt::RightToLeft;
    image = complex(QStyle::CC_ComboBox, option);
    QCOMPARE(boundsOf(image, colorOf("dropdown-menu-arrow")), QRect(3 + 2, 4 + 2, 16, 17));
}

void tst_StandardWidgets::comboBoxLabel()
{
    auto option = optionFor<QStyleOptionComboBox>(QRect(3, 4, 100, 21));
    option.currentText = QStringLiteral("Text");
    option.currentIcon = QIcon(pixmapOf(QSize(10, 10), blue));
    option.iconSize = QSize(10, 10);
    option.palette.setColor(QPalette::Base, red);
    const auto back = qScopeGuard([] { QApplication::setLayoutDirection(Qt::LeftToRight); });
    for (const bool editable : {false, true}) {
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            QApplication::setLayoutDirection(direction);
            option.direction = direction;
            option.editable = editable;
            const bool mirrored = direction == Qt::RightToLeft;
            const QRect field = m_noting->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField);
            const QRect icon(mirrored ? field.right() - 13 : field.left(), field.top(), 14, field.height());
            const QRect text = field.translated(mirrored ? -14 : 14, 0);
            m_noting->notes.clear();
            const QImage image = control(QStyle::CE_ComboBoxLabel, option);
            QVERIFY2(m_noting->notes.contains(note("pixmap", Qt::AlignCenter, icon)),
                     qPrintable(m_noting->notes.join(QLatin1Char('\n'))));
            QCOMPARE(m_noting->notes.contains(note("Text", Qt::AlignLeft | Qt::AlignVCenter, text)), !editable);
            QCOMPARE(boundsOf(image, red), editable ? icon : QRect()); // the ground of the icon
        }
    }
}

// The square of both buttons. Letters with capitals have the darker column at either side.
const char spinButtons[] = R"(
c..............c
.aaaaaaa#aaaaaa.
.bbbbbb###bbbbd.
.dbbdd#####ddbd.
.aaaa###a###aaa.
.dee###eee###ee.
.eeee#eeeee#eee.
.ffffffffffffff.
.GggggggggggggG.
.Hhhh#hhhhh#hhH.
.Iii###iii###iI.
.Jjjj###j###jjJ.
.Kkkkk#####kkkK.
.llllll###llllL.
.kkkkkkk#kkkkkk.
c..............c)";

Picture::Legend spinLegend(const Layers &edge, const Layers &face)
{
    const auto sheen = [](int alpha) {
        return QColor(green.red(), green.green(), green.blue(), alpha);
    };
    Picture::Legend legend = {{'.', edge}, {'c', edge + Layers{sheen(130)}}, {'#', {blue}}};
    const QMap<char, QList<int>> alphas = {{'a', {220}}, {'b', {230, 255}}, {'d', {230}}, {'e', {190}},
                                           {'f', {130}}, {'g', {245}},      {'h', {185}}, {'i', {180}},
                                           {'j', {160}}, {'k', {170}},      {'l', {235}}};
    for (auto entry = alphas.begin(); entry != alphas.end(); ++entry) {
        Layers layers = face;
        for (const int alpha : entry.value())
            layers.append(sheen(alpha));
        legend.insert(QLatin1Char(entry.key()), layers);
        legend.insert(QChar(QLatin1Char(entry.key())).toUpper(), layers + Layers{sheen(50)});
    }
    return legend;
}

void tst_StandardWidgets::spinBox()
{
    QSpinBox widget;
    auto option = optionFor<QStyleOptionSpinBox>(QRect(4, 3, 60, 20));
    const auto differenceTo = [&](int x, const Picture::Legend &legend) {
        const QImage image = complex(QStyle::CC_SpinBox, option, &widget);
        return Picture::difference(image.copy(4 + x, 3 + 2, 16, 16), Picture::fromLetters(spinButtons, legend));
    };
    const Picture::Legend plain = spinLegend({red}, {red});
    QCOMPARE(differenceTo(59 - 18, plain), QString());
    option.direction = Qt::RightToLeft;
    QCOMPARE(differenceTo(3, plain), QString());
    option.direction = Qt::LeftToRight;
    option.state |= QStyle::State_Sunken;
    option.activeSubControls = QStyle::SC_SpinBoxDown;
    QCOMPARE(differenceTo(59 - 18, plain), QString()); // the square covers the lit button

    const QImage framed = complex(QStyle::CC_SpinBox, option, &widget);
    QCOMPARE(boundsOf(framed, red), option.rect);
    QCOMPARE(framed.pixelColor(20, 10), green);
    const QDoubleSpinBox frameless;
    const QImage image = complex(QStyle::CC_SpinBox, option, &frameless);
    QCOMPARE(image.pixelColor(4, 3), QColor(Qt::white));
    QCOMPARE(image.pixelColor(20, 10), QColor(Qt::white));

    option.state = QStyle::State_None;
    QColor wash = red;
    wash.setAlpha(10);
    QColor faded = red;
    faded.setAlpha(150);
    QCOMPARE(differenceTo(59 - 18, spinLegend({green, wash, faded}, {green, faded})), QString());
}

void tst_StandardWidgets::wrongOptionsPaintNothing()
{
    const QWidget widget;
    const CButtonEx button;
    const CTextBoxEx textBox;
    const auto wrong =
        optionFor<QStyleOption>(QRect(3, 2, 60, 24), QStyle::State_Enabled | QStyle::State_On | QStyle::State_Selected |
                                                         QStyle::State_Children);
    for (const QWidget *target : std::initializer_list<const QWidget *>{nullptr, &widget, &button, &textBox}) {
        for (const auto element :
             {QStyle::PE_FrameFocusRect, QStyle::PE_FrameLineEdit, QStyle::PE_FrameTabWidget,
              QStyle::PE_FrameTabBarBase, QStyle::PE_PanelButtonCommand, QStyle::PE_PanelLineEdit,
              QStyle::PE_IndicatorCheckBox, QStyle::PE_IndicatorHeaderArrow, QStyle::PE_IndicatorRadioButton})
            QVERIFY2(Picture::isBlank(primitive(element, wrong, target, Qt::cyan)),
                     qPrintable(QString::number(element)));
    }
    for (const auto element : {QStyle::CE_PushButtonBevel, QStyle::CE_PushButtonLabel, QStyle::CE_TabBarTab,
                               QStyle::CE_TabBarTabShape, QStyle::CE_TabBarTabLabel, QStyle::CE_MenuItem,
                               QStyle::CE_MenuEmptyArea, QStyle::CE_Header, QStyle::CE_ComboBoxLabel})
        QVERIFY2(Picture::isBlank(control(element, wrong, Qt::cyan)), qPrintable(QString::number(element)));
    auto complexOption = optionFor<QStyleOptionComplex>(wrong.rect);
    complexOption.subControls = QStyle::SC_All;
    for (const auto element : {QStyle::CC_ComboBox, QStyle::CC_SpinBox, QStyle::CC_ScrollBar, QStyle::CC_Slider})
        QVERIFY2(Picture::isBlank(complex(element, complexOption, &widget)), qPrintable(QString::number(element)));
    QVERIFY(Picture::isBlank(primitive(QStyle::PE_PanelTipLabel, wrong)));
}

// Every element with the option that it wants, in all states, at sizes that nothing fits into.
void tst_StandardWidgets::everythingIsSafe()
{
    const QSpinBox spinBox;
    const QWidget widget;
    const CMenuEx menu;
    const QStyle::State groups[] = {QStyle::State_Enabled, QStyle::State_Selected | QStyle::State_On,
                                    QStyle::State_Horizontal | QStyle::State_Raised,
                                    QStyle::State_Sunken | QStyle::State_MouseOver | QStyle::State_HasFocus,
                                    QStyle::State_NoChange | QStyle::State_Children | QStyle::State_Open};
    const auto draw = [&](QPainter *painter, const QRect &rect, QStyle::State state, Qt::LayoutDirection direction) {
        const auto prepared = [&](auto option) {
            option.rect = rect;
            option.state = state;
            option.direction = direction;
            return option;
        };
        const QStyleOption plain = prepared(QStyleOption());
        for (const auto element : {QStyle::PE_Frame, QStyle::PE_FrameMenu, QStyle::PE_IndicatorArrowDown,
                                   QStyle::PE_IndicatorBranch, QStyle::PE_PanelTipLabel})
            m_noting->drawPrimitive(element, &plain, painter, &menu);
        for (const auto element : {QStyle::CE_HeaderSection, QStyle::CE_Splitter})
            m_noting->drawControl(element, &plain, painter, nullptr);
        const auto button = prepared(QStyleOptionButton());
        for (const auto element : {QStyle::PE_IndicatorCheckBox, QStyle::PE_IndicatorRadioButton})
            m_noting->drawPrimitive(element, &button, painter, &widget);
        auto tab = prepared(QStyleOptionTab());
        auto page = prepared(QStyleOptionTabWidgetFrame());
        auto base = prepared(QStyleOptionTabBarBase());
        tab.text = QStringLiteral("Tab");
        tab.icon = QIcon(pixmapOf(QSize(8, 8), blue));
        page.tabBarSize = QSize(9, 9);
        for (int shape = QTabBar::RoundedNorth; shape <= QTabBar::TriangularEast; ++shape) {
            tab.shape = page.shape = base.shape = static_cast<QTabBar::Shape>(shape);
            m_noting->drawControl(QStyle::CE_TabBarTab, &tab, painter, nullptr);
            m_noting->drawPrimitive(QStyle::PE_FrameTabWidget, &page, painter, &widget);
            m_noting->drawPrimitive(QStyle::PE_FrameTabBarBase, &base, painter, &widget);
        }
        auto item = prepared(QStyleOptionMenuItem());
        item.text = QStringLiteral("E&ntry\tCtrl+E");
        item.menuItemType = QStyleOptionMenuItem::SubMenu;
        m_noting->drawControl(QStyle::CE_MenuItem, &item, painter, nullptr);
        auto header = prepared(QStyleOptionHeader());
        header.sortIndicator = QStyleOptionHeader::SortDown;
        painter->save(); // Qt's own part of it leaves a clip
        m_noting->drawControl(QStyle::CE_Header, &header, painter, nullptr);
        painter->restore();
        auto bar = prepared(QStyleOptionSlider());
        bar.subControls = QStyle::SC_All;
        for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
            bar.orientation = orientation;
            m_noting->drawComplexControl(QStyle::CC_ScrollBar, &bar, painter, nullptr);
        }
        auto combo = prepared(QStyleOptionComboBox());
        combo.currentText = QStringLiteral("Text");
        combo.currentIcon = tab.icon;
        m_noting->drawComplexControl(QStyle::CC_ComboBox, &combo, painter, nullptr);
        m_noting->drawControl(QStyle::CE_ComboBoxLabel, &combo, painter, nullptr);
        const auto spin = prepared(QStyleOptionSpinBox());
        m_noting->drawComplexControl(QStyle::CC_SpinBox, &spin, painter, &spinBox);
        QVERIFY(!painter->hasClipping());
    };
    for (const QRect &rect : {QRect(0, 0, 0, 0), QRect(0, 0, 1, 1), QRect(3, 2, 7, 3), QRect(0, 0, 60, 24)}) {
        for (unsigned bits = 0; bits < 64; ++bits) {
            QStyle::State state = QStyle::State_None;
            for (unsigned group = 0; group < std::size(groups); ++group)
                state |= bits & (1U << group) ? groups[group] : QStyle::State_None;
            Picture::of(QSize(80, 40), [&](QPainter *painter) {
                draw(painter, rect, state, bits & 32U ? Qt::RightToLeft : Qt::LeftToRight);
            });
        }
    }
}

HOUSE_TEST_MAIN(tst_StandardWidgets)
#include "tst_StandardWidgets.moc"
