// Metrics, hints, polishing and the painters of standard widgets.
#include "helpers/HouseTest.h"

#include "ButtonEx/ButtonEx.h"
#include "CC4Styles/CC4StyleFactory.h"
#include "MenuEx/MenuEx.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QPixmapCache>
#include <QScrollBar>
#include <QSpinBox>
#include <QTabBar>
#include <QTemporaryDir>
#include <QToolTip>

namespace {

const QColor nothing(0, 0, 0, 0);

QColor grey(int value)
{
    return QColor(value, value, value);
}

template <typename Option>
Option optionFor(const QRect &rect, QStyle::State state = QStyle::State_Enabled)
{
    Option option;
    option.rect = rect;
    option.state = state;
    option.palette = QApplication::style()->standardPalette();
    return option;
}

QLabel *toolTip()
{
    for (QWidget *widget : QApplication::topLevelWidgets())
        if (widget->inherits("QTipLabel") && widget->isVisible())
            return qobject_cast<QLabel *>(widget);
    return nullptr;
}

} // namespace

class tst_StandardWidgets : public HouseTest
{
    Q_OBJECT

public:
    tst_StandardWidgets() { qputenv("ZEL_GRAPHICS_DIR", m_graphics.path().toLocal8Bit()); }

private Q_SLOTS:
    void initTestCase();
    void init();
    void metricsAndHints();
    void spinBoxLayout_data();
    void spinBoxLayout();
    void comboBoxIsEighteenHigh();
    void toolTipsAreShapedEachTime();
    void polishing();
    void indicatorBitmaps_data();
    void indicatorBitmaps();
    void indicatorPlaces();
    void branches();
    void tabShape_data();
    void tabShape();
    void pageFrame();
    void tabBarBase();
    void menuItems();
    void headerAndSplitter();
    void scrollBar_data();
    void scrollBar();
    void comboBox();
    void spinBox();
    void everythingIsSafe();

private:
    template <typename Draw>
    QImage paint(const QSize &size, Draw &&draw) const
    {
        return Picture::of(
            size, [&](QPainter *painter) { draw(*m_style, painter); });
    }

    QTemporaryDir m_graphics;
    CCommonControlStyle *m_style = nullptr;
};

// Bitmaps of one colour each, told apart by their red; the name decides.
const QStringList indicators = {
    QStringLiteral("CheckboxActive"),
    QStringLiteral("CheckboxActiveHover"),
    QStringLiteral("CheckboxActiveChecked"),
    QStringLiteral("CheckboxActiveCheckedHover"),
    QStringLiteral("CheckboxInactive"),
    QStringLiteral("CheckboxInactiveChecked"),
    QStringLiteral("RadiobuttonActive"),
    QStringLiteral("RadiobuttonActiveHover"),
    QStringLiteral("RadiobuttonActiveSelected"),
    QStringLiteral("RadiobuttonActiveSelectedHover"),
    QStringLiteral("RadiobuttonInactive"),
    QStringLiteral("RadiobuttonInactiveSelected"),
};

QColor colorOf(const QString &bitmap)
{
    return QColor(10 + static_cast<int>(indicators.indexOf(bitmap)), 0, 0);
}

void tst_StandardWidgets::initTestCase()
{
    const QDir directory(m_graphics.path());
    const auto save = [&directory](const QString &name, const QSize &size, const QColor &color) {
        QImage image(size, QImage::Format_ARGB32);
        image.fill(color);
        QVERIFY(image.save(directory.filePath(name + QStringLiteral(".png"))));
    };
    for (const QString &name : indicators)
        save(name, QSize(14, 14), colorOf(name));
    save(QStringLiteral("CheckboxActivePressed"), QSize(2, 2), Qt::green);
    for (const char *end : {"ArrowTop", "ArrowBottom", "ArrowLeft", "ArrowRight"})
        save(QStringLiteral("ScrollbarBlue") + QLatin1String(end), QSize(5, 5), Qt::green);
    save(QStringLiteral("dropdown-menu-arrow"), QSize(16, 17), Qt::green);
    m_style = qobject_cast<CCommonControlStyle *>(CC4StyleFactory::getStyle(CC4StyleFactory::CC4Style));
    QVERIFY(m_style != nullptr);
}

void tst_StandardWidgets::init()
{
    HouseTest::init();
    QPixmapCache::clear();
}

void tst_StandardWidgets::metricsAndHints()
{
    const QStyle *base = m_style->baseStyle();
    QCOMPARE(m_style->pixelMetric(QStyle::PM_ScrollBarExtent),
             std::max(21, base->pixelMetric(QStyle::PM_ScrollBarExtent) + 4));
    QCOMPARE(m_style->pixelMetric(QStyle::PM_ComboBoxFrameWidth), 8);
    QCOMPARE(m_style->pixelMetric(QStyle::PM_TabBarTabHSpace), 20);
    QCOMPARE(m_style->pixelMetric(QStyle::PM_SplitterWidth), 9);
    QCOMPARE(m_style->pixelMetric(QStyle::PM_IndicatorHeight), 16);
    QCOMPARE(m_style->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth), 18);
    QCOMPARE(m_style->styleHint(QStyle::SH_EtchDisabledText), 1);
    QCOMPARE(m_style->styleHint(QStyle::SH_DitherDisabledText), 0);
    QCOMPARE(m_style->styleHint(QStyle::SH_Table_GridLineColor), static_cast<int>(0xFFEEEEFF)); // opaque
    QCOMPARE(m_style->visualAlignment(Qt::RightToLeft, Qt::AlignVCenter),
             Qt::AlignVCenter | Qt::AlignRight | Qt::AlignAbsolute);
}

void tst_StandardWidgets::spinBoxLayout_data()
{
    QTest::addColumn<int>("subControl");
    QTest::addColumn<bool>("rightToLeft");
    QTest::addColumn<QRect>("expected");
    const int f = QApplication::style()->pixelMetric(QStyle::PM_DefaultFrameWidth);
    const auto row = [](const char *name, QStyle::SubControl subControl, bool rightToLeft, const QRect &expected) {
        QTest::newRow(name) << static_cast<int>(subControl) << rightToLeft << expected;
    };
    row("up", QStyle::SC_SpinBoxUp, false, QRect(99 - 18, 2, 16, 8));
    row("down", QStyle::SC_SpinBoxDown, false, QRect(99 - 18, 10, 16, 8));
    row("up, mirrored", QStyle::SC_SpinBoxUp, true, QRect(3, 2, 16, 8));
    row("field", QStyle::SC_SpinBoxEditField, false, QRect(f, f, 100 - 18 - 2 * f, 20 - 2 * f));
    row("frame", QStyle::SC_SpinBoxFrame, false, QRect());
}

void tst_StandardWidgets::spinBoxLayout()
{
    QFETCH(int, subControl);
    QFETCH(bool, rightToLeft);
    QFETCH(QRect, expected);
    auto option = optionFor<QStyleOptionSpinBox>(QRect(0, 0, 100, 20));
    option.direction = rightToLeft ? Qt::RightToLeft : Qt::LeftToRight;
    QCOMPARE(m_style->subControlRect(QStyle::CC_SpinBox, &option, static_cast<QStyle::SubControl>(subControl)),
             expected);
    const QStyleOptionComplex wrong;
    QCOMPARE(m_style->subControlRect(QStyle::CC_SpinBox, &wrong, QStyle::SC_SpinBoxUp), QRect());
}

void tst_StandardWidgets::comboBoxIsEighteenHigh()
{
    auto option = optionFor<QStyleOptionComboBox>(QRect(0, 0, 100, 30));
    for (const auto part : {QStyle::SC_ComboBoxFrame, QStyle::SC_ComboBoxEditField, QStyle::SC_ComboBoxArrow})
        QCOMPARE(m_style->subControlRect(QStyle::CC_ComboBox, &option, part).height(), 18);
    const QRect list = m_style->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxListBoxPopup);
    QCOMPARE(list.height(), 18);
    QCOMPARE(list.bottom(), 20); // of the drawn box
    QCOMPARE(m_style->styleHint(QStyle::SH_ComboBox_Popup, &option), 0);
}

void tst_StandardWidgets::toolTipsAreShapedEachTime()
{
    QWidget window;
    window.resize(300, 200);
    window.show();
    const QString longText = QStringLiteral("A tip of many words. ").repeated(20).trimmed();
    const QString shortText = QStringLiteral("Short");
    for (const QString &text : {shortText, longText, shortText, longText}) {
        QToolTip::showText(window.mapToGlobal(QPoint(10, 10)), text, &window);
        QLabel *tip = toolTip();
        QVERIFY(tip != nullptr);
        QCOMPARE(tip->text(), text);
        QCOMPARE(tip->font().pixelSize(), 11);
        QVERIFY(tip->height() >= 26);
        const bool isLong = text == longText;
        QCOMPARE(tip->wordWrap(), isLong);
        QVERIFY2(isLong ? tip->width() == 400 : tip->width() < 200, qPrintable(QString::number(tip->width())));
        QVERIFY(tip->height() >= tip->heightForWidth(tip->width())); // nothing of the text is cut
    }
    QToolTip::hideText();
}

void tst_StandardWidgets::polishing()
{
    CButtonEx button;
    button.ensurePolished();
    QCOMPARE(button.palette().color(QPalette::Active, QPalette::ButtonText), QColor(0, 0, 0, 200));
    QCOMPARE(button.palette().color(QPalette::Disabled, QPalette::ButtonText), QColor(0, 0, 0, 60));
    QVERIFY(button.testAttribute(Qt::WA_Hover));
    m_style->unpolish(&button);
    QVERIFY(!button.testAttribute(Qt::WA_Hover));

    QMenu menu;
    menu.addAction(QStringLiteral("Entry"));
    menu.ensurePolished();
    const QGradient *gradient = menu.palette().brush(QPalette::Window).gradient();
    QVERIFY(gradient != nullptr);
    QCOMPARE(static_cast<const QLinearGradient *>(gradient)->finalStop(), QPointF(menu.width(), menu.height()));
    QCOMPARE(gradient->stops().last().second, grey(0xEA));

    QSpinBox spinBox;
    spinBox.ensurePolished();
    QCOMPARE(spinBox.palette().color(QPalette::Active, QPalette::Text), QColor(0x33, 0x99, 0xCC));
    QCOMPARE(spinBox.palette().color(QPalette::Inactive, QPalette::Text), grey(0x66));
    QCOMPARE(spinBox.font().pixelSize(), 12);
    QCOMPARE(spinBox.contextMenuPolicy(), Qt::NoContextMenu);
    QScrollBar scrollBar;
    m_style->polish(&scrollBar);
    QCOMPARE(scrollBar.contextMenuPolicy(), Qt::NoContextMenu);
}

void tst_StandardWidgets::indicatorBitmaps_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("end");
    const auto row = [](const char *name, QStyle::State state, const char *end) {
        QTest::newRow(name) << static_cast<int>(state) << QString::fromLatin1(end);
    };
    const QStyle::State on = QStyle::State_Enabled;
    row("at rest", on, "Active");
    row("hovered", on | QStyle::State_MouseOver, "ActiveHover");
    row("focused", on | QStyle::State_HasFocus, "ActiveHover");
    row("checked", on | QStyle::State_On, "ActiveChecked");
    row("partly", on | QStyle::State_NoChange, "ActiveChecked");
    row("checked, hovered", on | QStyle::State_On | QStyle::State_MouseOver, "ActiveCheckedHover");
    row("disabled, hovered", QStyle::State_MouseOver, "Inactive");
    row("disabled, checked", QStyle::State_On, "InactiveChecked");
}

void tst_StandardWidgets::indicatorBitmaps()
{
    QFETCH(int, state);
    QFETCH(QString, end);
    auto option = optionFor<QStyleOptionButton>(QRect(0, 0, 16, 16), static_cast<QStyle::State>(state));
    QImage image = paint(QSize(20, 20), [&](const QStyle &style, QPainter *painter) {
        style.drawPrimitive(QStyle::PE_IndicatorCheckBox, &option, painter);
    });
    QCOMPARE(image.pixelColor(9, 9), colorOf(QStringLiteral("Checkbox") + end));
    option.rect = QRect(0, 0, 18, 18);
    image = paint(QSize(20, 20), [&](const QStyle &style, QPainter *painter) {
        style.drawPrimitive(QStyle::PE_IndicatorRadioButton, &option, painter);
    });
    end.replace(QLatin1String("Checked"), QLatin1String("Selected"));
    QCOMPARE(image.pixelColor(9, 9), colorOf(QStringLiteral("Radiobutton") + end));
}

void tst_StandardWidgets::indicatorPlaces()
{
    auto option = optionFor<QStyleOptionButton>(QRect(4, 4, 16, 16), QStyle::State_Enabled | QStyle::State_Sunken);
    QImage image = paint(QSize(30, 30), [&](const QStyle &style, QPainter *painter) {
        style.drawPrimitive(QStyle::PE_IndicatorCheckBox, &option, painter);
    });
    // A picture of 16 by 16 fitted into 14 by 15 at (6, 5).
    QVERIFY(!Picture::paintsOutside(image, QRect(6, 5, 14, 15)));
    QCOMPARE(image.pixelColor(7, 6), QColor(Qt::green)); // pressed, over the bitmap
    QCOMPARE(image.pixelColor(12, 12), colorOf(QStringLiteral("CheckboxActiveChecked")));
    option.state = QStyle::State_Sunken;
    image = paint(QSize(30, 30), [&](const QStyle &style, QPainter *painter) {
        style.drawPrimitive(QStyle::PE_IndicatorCheckBox, &option, painter);
    });
    QCOMPARE(image.pixelColor(7, 6), colorOf(QStringLiteral("CheckboxInactiveChecked")));
}

void tst_StandardWidgets::branches()
{
    auto option = optionFor<QStyleOption>(QRect(0, 0, 20, 20), QStyle::State_Children);
    const auto rows = [&] {
        const QImage image = paint(QSize(24, 24), [&](const QStyle &style, QPainter *painter) {
            style.drawPrimitive(QStyle::PE_IndicatorBranch, &option, painter);
        });
        QList<int> widths;
        for (int y = 0; y < image.height(); ++y) {
            int width = 0;
            for (int x = 0; x < image.width(); ++x)
                width += image.pixelColor(x, y) == QColor(Qt::black) ? 1 : 0;
            if (width > 0)
                widths.append(width);
        }
        return widths;
    };
    QCOMPARE(rows(), QList<int>({1, 2, 3, 4, 3, 2, 1}));
    option.state |= QStyle::State_Open;
    QCOMPARE(rows(), QList<int>({7, 5, 3, 1}));
    option.state = QStyle::State_Open;
    QCOMPARE(rows(), QList<int>());
}

void tst_StandardWidgets::tabShape_data()
{
    QTest::addColumn<int>("shape");
    QTest::addColumn<QPoint>("topMiddle"); // of the outline, and one pixel further in
    QTest::addColumn<QPoint>("inwards");
    QTest::newRow("north") << static_cast<int>(QTabBar::RoundedNorth) << QPoint(30, 0) << QPoint(0, 1);
    QTest::newRow("south") << static_cast<int>(QTabBar::RoundedSouth) << QPoint(30, 39) << QPoint(0, -1);
    QTest::newRow("west") << static_cast<int>(QTabBar::RoundedWest) << QPoint(2, 20) << QPoint(1, 0);
    QTest::newRow("east") << static_cast<int>(QTabBar::RoundedEast) << QPoint(56, 20) << QPoint(-1, 0);
}

void tst_StandardWidgets::tabShape()
{
    QFETCH(int, shape);
    QFETCH(QPoint, topMiddle);
    QFETCH(QPoint, inwards);
    auto option = optionFor<QStyleOptionTab>(QRect(0, 0, 60, 40)); // its shape: (2, 0) to (56, 39)
    option.shape = static_cast<QTabBar::Shape>(shape);
    option.position = QStyleOptionTab::Middle;
    const auto draw = [&] {
        return paint(QSize(80, 60), [&](const QStyle &style, QPainter *painter) {
            painter->translate(10, 10);
            style.drawControl(QStyle::CE_TabBarTabShape, &option, painter);
        });
    };
    const QPoint origin(10, 10);
    QImage image = draw();
    QCOMPARE(image.pixelColor(origin + topMiddle), grey(0xD7));
    QCOMPARE(image.pixelColor(origin + topMiddle + inwards), grey(0xE7));
    QVERIFY(qAbs(image.pixelColor(origin + QPoint(29, 20)).red() - 0xF4) <= 2); // the face's gradient
    option.state |= QStyle::State_Selected;
    QCOMPARE(draw().pixelColor(origin + QPoint(29, 20)), QColor(Qt::white));
    option.state = QStyle::State_Enabled;
    option.position = QStyleOptionTab::OnlyOneTab;
    QCOMPARE(draw().pixelColor(origin + QPoint(29, 20)), QColor(Qt::white));
}

void tst_StandardWidgets::pageFrame()
{
    auto option = optionFor<QStyleOptionTabWidgetFrame>(QRect(0, 0, 60, 40));
    option.shape = QTabBar::RoundedNorth;
    option.tabBarSize = QSize(20, 15);
    const QImage image = paint(QSize(60, 40), [&](const QStyle &style, QPainter *painter) {
        style.drawPrimitive(QStyle::PE_FrameTabWidget, &option, painter);
    });
    QCOMPARE(image.pixelColor(40, 0), grey(0xC4));
    QCOMPARE(image.pixelColor(0, 20), grey(0xC4));
    QCOMPARE(image.pixelColor(59, 0), nothing);
    QCOMPARE(image.pixelColor(58, 1), grey(0xC4));
    const QColor button(0xDD, 0xDF, 0xE4);
    QCOMPARE(image.pixel(1, 20), button.lighter(105).rgb());
    QCOMPARE(image.pixel(58, 20), button.darker(115).rgb());
    QCOMPARE(image.pixelColor(0, 38), QColor(0xE1, 0xE1, 0xE1)); // half white, half border
    const int overlap = m_style->pixelMetric(QStyle::PM_TabBarBaseOverlap);
    QCOMPARE(image.pixelColor(10, 0), overlap > 0 ? nothing : grey(0xC4)); // where the tab bar lies
}

void tst_StandardWidgets::tabBarBase()
{
    auto option = optionFor<QStyleOptionTabBarBase>(QRect(0, 0, 60, 10));
    option.shape = QTabBar::RoundedNorth;
    option.tabBarRect = QRect(0, 0, 20, 10);
    const auto draw = [&] {
        return paint(QSize(60, 10), [&](const QStyle &style, QPainter *painter) {
            style.drawPrimitive(QStyle::PE_FrameTabBarBase, &option, painter);
        });
    };
    QImage image = draw();
    QCOMPARE(image.pixelColor(40, 8), grey(0xA4));
    QCOMPARE(image.pixelColor(40, 9), QColor(Qt::white));
    QVERIFY(!Picture::paintsOutside(image, QRect(20, 8, 40, 2)));
    option.shape = QTabBar::RoundedSouth;
    image = draw();
    QCOMPARE(image.pixelColor(40, 8), grey(0xD1));
    QCOMPARE(image.pixelColor(40, 9), grey(0xA4));
}

void tst_StandardWidgets::menuItems()
{
    auto option =
        optionFor<QStyleOptionMenuItem>(QRect(0, 10, 100, 20), QStyle::State_Enabled | QStyle::State_Selected);
    option.menuItemType = QStyleOptionMenuItem::Separator;
    const auto draw = [&] {
        return paint(QSize(100, 40), [&](const QStyle &style, QPainter *painter) {
            style.drawControl(QStyle::CE_MenuItem, &option, painter);
        });
    };
    QImage image = draw();
    QCOMPARE(image.pixelColor(8, 10), QColor(Qt::black));
    QVERIFY(!Picture::paintsOutside(image, QRect(8, 10, 84, 1))); // and no highlight

    option.menuItemType = QStyleOptionMenuItem::Normal;
    image = draw();
    QCOMPARE(image.pixelColor(0, 12), grey(0xE5));
    QVERIFY(!Picture::paintsOutside(image, QRect(0, 12, 100, 15)));
    option.checkType = QStyleOptionMenuItem::NonExclusive;
    option.checked = true;
    QCOMPARE(draw().pixelColor(13, 20), colorOf(QStringLiteral("CheckboxActiveChecked")));
    option.checked = false;
    QCOMPARE(draw().pixelColor(13, 20), colorOf(QStringLiteral("CheckboxActive")));
    option.direction = Qt::RightToLeft;
    QCOMPARE(draw().pixelColor(99 - 13, 20), colorOf(QStringLiteral("CheckboxActive")));
    QPixmap pixmap(8, 8);
    pixmap.fill(Qt::blue);
    option.icon = QIcon(pixmap);
    option.direction = Qt::LeftToRight;
    QCOMPARE(draw().pixelColor(10, 20), QColor(Qt::blue)); // the icon in place of the check mark
}

void tst_StandardWidgets::headerAndSplitter()
{
    auto section = optionFor<QStyleOption>(QRect(0, 0, 20, 10), QStyle::State_Enabled | QStyle::State_On);
    const auto draw = [&](QStyle::ControlElement element) {
        return paint(QSize(30, 30), [&](const QStyle &style, QPainter *painter) {
            painter->setPen(Qt::green);
            style.drawControl(element, &section, painter);
        });
    };
    QCOMPARE(draw(QStyle::CE_HeaderSection).pixelColor(0, 5), QColor(0xEB, 0x83, 0x4B));
    section.state = QStyle::State_Raised;
    QCOMPARE(draw(QStyle::CE_HeaderSection).pixelColor(5, 5), QColor(0xDD, 0xDF, 0xE4));
    QCOMPARE(draw(QStyle::CE_HeaderSection).pixelColor(0, 5), QColor(Qt::green)); // outlined in the caller's pen

    section.rect = QRect(0, 3, 9, 21);
    section.state = QStyle::State_Horizontal;
    const QImage grip = draw(QStyle::CE_Splitter);
    QVERIFY(!Picture::paintsOutside(grip, QRect(2, 5, 6, 11)));
    for (int y = 5; y < 16; ++y)
        QCOMPARE(grip.pixelColor(7, y), (y - 5) % 2 == 0 ? grey(0x9A) : nothing);
}

void tst_StandardWidgets::scrollBar_data()
{
    QTest::addColumn<int>("orientation");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("vertical") << static_cast<int>(Qt::Vertical) << true;
    QTest::newRow("horizontal, disabled") << static_cast<int>(Qt::Horizontal) << false;
}

void tst_StandardWidgets::scrollBar()
{
    QFETCH(int, orientation);
    QFETCH(bool, enabled);
    const bool vertical = orientation == Qt::Vertical;
    const QSize size = vertical ? QSize(21, 200) : QSize(200, 21);
    auto option =
        optionFor<QStyleOptionSlider>(QRect(QPoint(0, 0), size), enabled ? QStyle::State_Enabled : QStyle::State_None);
    option.orientation = static_cast<Qt::Orientation>(orientation);
    option.maximum = 100;
    option.pageStep = 50;
    option.subControls = QStyle::SC_All;
    const QImage image = paint(size, [&](const QStyle &style, QPainter *painter) {
        style.drawComplexControl(QStyle::CC_ScrollBar, &option, painter);
    });
    // Seen from the left of a vertical bar, from the foot of a horizontal one.
    const auto at = [&](int across, int along) {
        return vertical ? image.pixelColor(across, along) : image.pixelColor(along, 20 - across);
    };
    QCOMPARE(at(10, 190 - 16), QColor(0xF0, 0xF0, 0xEF)); // groove
    QCOMPARE(at(20, 160), grey(0xCF));
    const QRect slider = m_style->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider);
    const int middle = vertical ? slider.center().y() : slider.center().x();
    QCOMPARE(at(2, middle), enabled ? QColor(0x57, 0xA2, 0xC0) : grey(0xC7));
    QCOMPARE(at(17, middle), enabled ? QColor(0xAF, 0xE1, 0xF4) : grey(0xEC));
    const QRect arrow = m_style->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSubLine);
    QCOMPARE(image.pixelColor(arrow.topLeft()), QColor(Qt::green)); // blue also when disabled
    QPixmap cached;
    QVERIFY(!QPixmapCache::find(m_style->uniqueName(QStringLiteral("scrollbar_groove"), &option, size), &cached));
}

void tst_StandardWidgets::comboBox()
{
    auto option = optionFor<QStyleOptionComboBox>(QRect(0, 0, 60, 30));
    const QImage image = paint(QSize(60, 30), [&](const QStyle &style, QPainter *painter) {
        style.drawComplexControl(QStyle::CC_ComboBox, &option, painter);
    });
    QVERIFY(!Picture::paintsOutside(image, QRect(0, 0, 60, 21)));
    QCOMPARE(image.pixelColor(0, 20), grey(0x86));
    QCOMPARE(image.pixelColor(59, 0), grey(0x86));
    QCOMPARE(image.pixelColor(20, 10), QColor(Qt::white));
    QCOMPARE(image.pixelColor(42, 2), QColor(Qt::green));
}

void tst_StandardWidgets::spinBox()
{
    QSpinBox widget;
    auto option = optionFor<QStyleOptionSpinBox>(QRect(0, 0, 60, 20));
    const auto draw = [&] {
        return paint(QSize(60, 20), [&](const QStyle &style, QPainter *painter) {
            style.drawComplexControl(QStyle::CC_SpinBox, &option, painter, &widget);
        });
    };
    const QPoint up(59 - 18, 2);
    QImage image = draw();
    QCOMPARE(image.pixelColor(up + QPoint(8, 1)), QColor(0x33, 0x66, 0x99)); // the tip of the upper chevron
    QCOMPARE(image.pixelColor(QPoint(up.x() + 8, 10 + 6)), QColor(0x33, 0x66, 0x99));
    QCOMPARE(image.pixelColor(up + QPoint(0, 4)), grey(0x86)); // the square's edge
    QCOMPARE(image.pixelColor(20, 10), QColor(Qt::white));
    option.state = QStyle::State_None;
    image = draw();
    const int faded = image.pixelColor(up + QPoint(0, 4)).red();
    QVERIFY2(faded > 0xA0 && faded < 0xD8, qPrintable(QString::number(faded))); // the square at alpha 150
}

void tst_StandardWidgets::everythingIsSafe()
{
    const QList<QRect> rects = {QRect(0, 0, 0, 0), QRect(0, 0, 1, 1), QRect(3, 2, 7, 3), QRect(0, 0, 60, 24)};
    const QWidget widget;
    for (const QRect &rect : rects) {
        for (int bits = 0; bits < 16; ++bits) {
            const auto state = static_cast<QStyle::State>(bits & 1 ? QStyle::State_Enabled : QStyle::State_None) |
                               (bits & 2 ? QStyle::State_Selected | QStyle::State_On : QStyle::State_None) |
                               (bits & 4 ? QStyle::State_Horizontal | QStyle::State_Raised : QStyle::State_None);
            const auto direction = bits & 8 ? Qt::RightToLeft : Qt::LeftToRight;
            paint(QSize(80, 40), [&](const QStyle &style, QPainter *painter) {
                auto plain = optionFor<QStyleOption>(rect, state);
                plain.direction = direction;
                // A wrong option must not be taken for a right one.
                for (const auto element :
                     {QStyle::PE_Frame, QStyle::PE_FrameFocusRect, QStyle::PE_FrameTabWidget,
                      QStyle::PE_FrameTabBarBase, QStyle::PE_IndicatorArrowDown, QStyle::PE_IndicatorBranch,
                      QStyle::PE_IndicatorCheckBox, QStyle::PE_IndicatorHeaderArrow, QStyle::PE_IndicatorRadioButton,
                      QStyle::PE_PanelTipLabel})
                    style.drawPrimitive(element, &plain, painter, &widget);
                auto tab = optionFor<QStyleOptionTab>(rect, state);
                tab.direction = direction;
                tab.text = QStringLiteral("Tab");
                for (int shape = QTabBar::RoundedNorth; shape <= QTabBar::TriangularEast; ++shape) {
                    tab.shape = static_cast<QTabBar::Shape>(shape);
                    style.drawControl(QStyle::CE_TabBarTab, &tab, painter, nullptr);
                }
                auto item = optionFor<QStyleOptionMenuItem>(rect, state);
                item.text = QStringLiteral("E&ntry\tCtrl+E");
                item.menuItemType = QStyleOptionMenuItem::SubMenu;
                style.drawControl(QStyle::CE_MenuItem, &item, painter, nullptr);
                auto bar = optionFor<QStyleOptionSlider>(rect, state);
                bar.subControls = QStyle::SC_All;
                style.drawComplexControl(QStyle::CC_ScrollBar, &bar, painter, nullptr);
                auto combo = optionFor<QStyleOptionComboBox>(rect, state);
                combo.currentText = QStringLiteral("Text");
                style.drawComplexControl(QStyle::CC_ComboBox, &combo, painter, nullptr);
                style.drawControl(QStyle::CE_ComboBoxLabel, &combo, painter, nullptr);
                QVERIFY(!painter->hasClipping());
            });
        }
    }
}

HOUSE_TEST_MAIN(tst_StandardWidgets)
#include "tst_StandardWidgets.moc"
