// The scroll bars of the blue and of the drop-down style, and the small header style.
#include "helpers/HouseTest.h"

#include "CC4Styles/BlueScrollBarStyle.h"
#include "CC4Styles/DropDownScrollBarStyle.h"
#include "CC4Styles/TBWStyle.h"

#include <QApplication>
#include <QDir>
#include <QHeaderView>
#include <QPixmapCache>
#include <QScrollBar>
#include <QTemporaryDir>

namespace {

struct Bitmap
{
    const char *name;
    QSize size;
    QRgb color;
};

// One colour each, so that a pixel tells which bitmap it came from.
const Bitmap bitmaps[] = {
    {"BlueCenterScrollBarVGrooveBlt", {21, 1}, 0xFF010000}, {"BlueCenterScrollBarHGrooveBlt", {1, 21}, 0xFF020000},
    {"BlueCenterScrollbarArrowUp", {4, 4}, 0xFF030000},     {"BlueCenterScrollbarArrowDown", {4, 4}, 0xFF040000},
    {"BlueCenterScrollbarArrowLeft", {4, 4}, 0xFF050000},   {"BlueCenterScrollbarArrowRight", {4, 4}, 0xFF060000},
    {"BlueCenterVSliderBlit", {20, 1}, 0xFF070000},         {"BlueCenterHSliderBlit", {1, 20}, 0xFF080000},
    {"BlueCenterScrollBarTop", {8, 4}, 0xFF090000},         {"BlueCenterScrollBarBottom", {8, 4}, 0xFF0A0000},
    {"BlueCenterScrollBarLeft", {4, 8}, 0xFF0B0000},        {"BlueCenterScrollBarRight", {4, 8}, 0xFF0C0000},
    {"ddScrollbarSliderGrayBlit", {20, 1}, 0xFF0D0000},     {"ddScrollbarArrowUp", {5, 5}, 0xFF0E0000},
    {"ddScrollbarArrowDown", {5, 5}, 0xFF0F0000},           {"ddScrollbarSliderTop", {16, 4}, 0xFF100000},
    {"ddScrollbarSliderBottom", {16, 4}, 0xFF110000},       {"ddScrollbarSliderBlit", {16, 1}, 0xFF120000},
    {"ScrollbarBlueArrowLeft", {10, 10}, 0xFF130000},       {"ScrollbarBlueArrowRight", {10, 10}, 0xFF140000},
    {"ScrollbarBlueSliderRight", {4, 8}, 0xFF170000},       {"ScrollbarBlueSliderLeft", {4, 8}, 0xFF150000},
    {"ScrollbarGreySliderLeft", {4, 8}, 0xFF160000},
};

QString from(const char *name)
{
    for (const Bitmap &bitmap : bitmaps)
        if (qstrcmp(bitmap.name, name) == 0)
            return QColor::fromRgba(bitmap.color).name(QColor::HexArgb);
    return QString::fromLatin1(name);
}

/** The pixels of a bitmap. */
QRect boundsOf(const QImage &image, const char *name)
{
    return Picture::boundsOf(image, QColor(from(name)));
}

struct Bar
{
    explicit Bar(Qt::Orientation orientation) : widget(orientation)
    {
        const bool vertical = orientation == Qt::Vertical;
        option.rect = QRect(QPoint(0, 0), vertical ? QSize(25, 200) : QSize(200, 25));
        widget.resize(option.rect.size());
        option.orientation = orientation;
        option.state = QStyle::State_Enabled | (vertical ? QStyle::State_None : QStyle::State_Horizontal);
        option.palette.setColor(QPalette::Base, Qt::yellow);
        option.palette.setColor(QPalette::Window, Qt::yellow);
        option.maximum = 100;
        option.pageStep = 50;
        option.sliderPosition = 50;
        option.sliderValue = 50;
        option.subControls = QStyle::SC_All;
    }

    QImage paintedBy(const QStyle &style) const
    {
        return Picture::of(
            option.rect.size(),
            [&](QPainter *painter) { style.drawComplexControl(QStyle::CC_ScrollBar, &option, painter, &widget); });
    }

    QRect partOf(const QStyle &style, QStyle::SubControl part) const
    {
        return style.subControlRect(QStyle::CC_ScrollBar, &option, part, &widget);
    }

    QScrollBar widget;
    QStyleOptionSlider option;
};

} // namespace

class tst_StyleVariants : public HouseTest
{
    Q_OBJECT

public:
    tst_StyleVariants() { qputenv("ZEL_GRAPHICS_DIR", m_graphics.path().toLocal8Bit()); }

private Q_SLOTS:
    void initTestCase();
    void blueScrollBar();
    void blueScrollBarIsStored();
    void dropDownScrollBar();
    void dropDownCoversItsWidget();
    void mainStyleFindsDropDownPictures();
    void everySizeIsSafe();
    void headerFill_data();
    void headerFill();
    void headerArrow();

private:
    QTemporaryDir m_graphics;
};

void tst_StyleVariants::initTestCase()
{
    for (const Bitmap &bitmap : bitmaps) {
        QImage image(bitmap.size, QImage::Format_ARGB32);
        image.fill(bitmap.color);
        QVERIFY(image.save(QDir(m_graphics.path()).filePath(QLatin1String(bitmap.name) + QLatin1String(".png"))));
    }
}

void tst_StyleVariants::blueScrollBar()
{
    const CBlueScrollBarStyle style;
    Bar vertical(Qt::Vertical);
    QImage image = vertical.paintedBy(style);
    QCOMPARE(Picture::colorAt(image, 0, 30), from("BlueCenterScrollBarVGrooveBlt"));
    QCOMPARE(Picture::colorAt(image, 20, 30), from("BlueCenterScrollBarVGrooveBlt"));
    QCOMPARE(Picture::colorAt(image, 21, 30), QColor(Qt::yellow).name(QColor::HexArgb));
    QCOMPARE(boundsOf(image, "BlueCenterScrollbarArrowUp"), QRect(7, 7, 4, 4));
    QCOMPARE(Picture::colorAt(image, 6, 7), from("BlueCenterScrollBarVGrooveBlt"));
    QCOMPARE(Picture::colorAt(image, 7, 199 - 8), from("BlueCenterScrollbarArrowDown"));
    QRect slider = vertical.partOf(style, QStyle::SC_ScrollBarSlider);
    QCOMPARE(Picture::colorAt(image, 0, slider.top()), from("BlueCenterScrollBarVGrooveBlt")); // the body starts below
    QCOMPARE(Picture::colorAt(image, 0, slider.top() + 1), from("BlueCenterVSliderBlit"));
    QCOMPARE(Picture::colorAt(image, 19, slider.bottom() - 1), from("BlueCenterVSliderBlit"));
    QCOMPARE(Picture::colorAt(image, 2, slider.top()), from("BlueCenterScrollBarTop"));
    QCOMPARE(Picture::colorAt(image, 9, slider.bottom() - 3), from("BlueCenterScrollBarBottom"));

    vertical.option.state &= ~QStyle::State_Enabled;
    QCOMPARE(vertical.paintedBy(style), image);

    Bar horizontal(Qt::Horizontal);
    image = horizontal.paintedBy(style);
    QCOMPARE(Picture::colorAt(image, 30, 20), from("BlueCenterScrollBarHGrooveBlt"));
    QCOMPARE(boundsOf(image, "BlueCenterScrollbarArrowLeft"), QRect(7, 7, 4, 4));
    QCOMPARE(boundsOf(image, "BlueCenterScrollbarArrowRight"), QRect(199 - 8, 7, 4, 4));
    slider = horizontal.partOf(style, QStyle::SC_ScrollBarSlider);
    QCOMPARE(Picture::colorAt(image, slider.left() + 1, 19), from("BlueCenterHSliderBlit"));
    QCOMPARE(Picture::colorAt(image, slider.left(), 2), from("BlueCenterScrollBarLeft"));
    QCOMPARE(Picture::colorAt(image, slider.right() - 3, 9), from("BlueCenterScrollBarRight"));

    horizontal.option.direction = Qt::RightToLeft; // each arrow still points outward
    image = horizontal.paintedBy(style);
    QVERIFY(boundsOf(image, "BlueCenterScrollbarArrowLeft").left() < 100);
    QVERIFY(boundsOf(image, "BlueCenterScrollbarArrowRight").left() > 100);
}

void tst_StyleVariants::blueScrollBarIsStored()
{
    const CBlueScrollBarStyle style;
    const Bar bar(Qt::Horizontal);
    QPixmapCache::clear();
    bar.paintedBy(style);
    const QStyleOption *option = &bar.option;
    const auto key = [&](const char *element, const QSize &size, const char *suffix) {
        return style.uniqueName(QLatin1String(element), option, size) + QLatin1String(suffix);
    };
    const QSize slider = bar.partOf(style, QStyle::SC_ScrollBarSlider).size();
    const QSize back = bar.partOf(style, QStyle::SC_ScrollBarSubLine).size();
    QPixmap found;
    QVERIFY(QPixmapCache::find(key("blue_scrollbar_groove", bar.option.rect.size(), ""), &found));
    QVERIFY(QPixmapCache::find(key("blue_scrollbar_subline", back, "-horizontal"), &found));
    QVERIFY(QPixmapCache::find(key("blue_scrollbar_addline", QSize(16, 16), "-horizontal"), &found));
    QVERIFY(QPixmapCache::find(key("blue_scrollbar_slider", slider, "-horizontal"), &found));
}

void tst_StyleVariants::dropDownScrollBar()
{
    const CDropDownScrollBarStyle style;
    Bar vertical(Qt::Vertical);
    QImage image = vertical.paintedBy(style);
    // Everything keeps three pixels off the left edge, the groove one more.
    QCOMPARE(Picture::colorAt(image, 3, 30), QColor(Qt::yellow).name(QColor::HexArgb));
    QCOMPARE(Picture::colorAt(image, 4, 30), from("ddScrollbarSliderGrayBlit"));
    const QRect back = vertical.partOf(style, QStyle::SC_ScrollBarSubLine).adjusted(3, 0, 0, 0);
    const QPoint arrow = back.topLeft() + QRect(QPoint(0, 0), back.size()).center() - QPoint(1, 2);
    QCOMPARE(Picture::colorAt(image, arrow.x(), arrow.y()), from("ddScrollbarArrowUp"));
    QCOMPARE(Picture::colorAt(image, arrow.x() - 1, arrow.y()), from("ddScrollbarSliderGrayBlit"));
    QCOMPARE(Picture::colorAt(image, arrow.x() + 4, arrow.y() + 4), from("ddScrollbarArrowUp"));
    // The slider's picture is 22 wide, has its bitmaps one pixel in, and is squeezed into 19.
    const QRect slider = vertical.partOf(style, QStyle::SC_ScrollBarSlider);
    QCOMPARE(boundsOf(image, "ddScrollbarSliderBlit").left(), 7);   // 3 + 3 + its own 1
    QCOMPARE(boundsOf(image, "ddScrollbarSliderBlit").width(), 14); // 16 of 22 in 19
    const QRect forward = vertical.partOf(style, QStyle::SC_ScrollBarAddLine).adjusted(3, 0, 0, 0);
    const QPoint down = forward.topLeft() + QRect(QPoint(0, 0), forward.size()).center() - QPoint(1, 2);
    QCOMPARE(boundsOf(image, "ddScrollbarArrowDown"), QRect(down, QSize(5, 5)));
    QCOMPARE(Picture::colorAt(image, 8, slider.top()), from("ddScrollbarSliderTop"));
    QCOMPARE(Picture::colorAt(image, 8, slider.top() + 4), from("ddScrollbarSliderBlit"));
    QCOMPARE(Picture::colorAt(image, 8, slider.bottom() - 4), from("ddScrollbarSliderBlit"));
    QCOMPARE(Picture::colorAt(image, 8, slider.bottom()), from("ddScrollbarSliderBottom"));
    QCOMPARE(Picture::colorAt(image, 5, slider.center().y()), from("ddScrollbarSliderGrayBlit"));

    vertical.option.state &= ~QStyle::State_Enabled;
    QCOMPARE(vertical.paintedBy(style), image);

    Bar horizontal(Qt::Horizontal);
    const int sliderLeft = horizontal.partOf(style, QStyle::SC_ScrollBarSlider).left() + 6;
    image = horizontal.paintedBy(style);
    QCOMPARE(boundsOf(image, "ScrollbarBlueArrowLeft"), QRect(3, 0, 10, 10));
    QCOMPARE(boundsOf(image, "ScrollbarBlueArrowRight").right(), 199 - 21 + 9);
    QCOMPARE(Picture::colorAt(image, sliderLeft, 2), from("ScrollbarBlueSliderLeft"));
    QCOMPARE(Picture::colorAt(image, sliderLeft + 8, 2), from("ddScrollbarSliderGrayBlit")); // caps only
    horizontal.option.state &= ~QStyle::State_Enabled;
    QCOMPARE(Picture::colorAt(horizontal.paintedBy(style), sliderLeft, 2), from("ScrollbarGreySliderLeft"));
}

void tst_StyleVariants::dropDownCoversItsWidget()
{
    const CDropDownScrollBarStyle style;
    QWidget widget;
    widget.resize(30, 20);
    QStyleOptionComplex option;
    option.palette.setColor(QPalette::Base, Qt::red);
    for (const auto control : {QStyle::CC_ScrollBar, QStyle::CC_ToolButton}) {
        const auto paintedFor = [&](const QWidget *target) {
            return Picture::of(QSize(40, 30),
                               [&](QPainter *painter) { style.drawComplexControl(control, &option, painter, target); });
        };
        QCOMPARE(Picture::colorAt(paintedFor(&widget), 29, 19), QColor(Qt::red).name(QColor::HexArgb));
        QVERIFY(!Picture::paintsOutside(paintedFor(&widget), QRect(0, 0, 30, 20)));
        QVERIFY(Picture::isBlank(paintedFor(nullptr)));
    }
}

void tst_StyleVariants::mainStyleFindsDropDownPictures()
{
    QPixmapCache::clear();
    const CDropDownScrollBarStyle dropDown;
    const CCommonControlStyle main;
    Bar bar(Qt::Vertical);
    bar.option.subControls = QStyle::SC_ScrollBarGroove;
    bar.paintedBy(dropDown);
    bar.option.rect.setWidth(22); // as wide as the drop-down's groove, which is kept off the edge
    QCOMPARE(Picture::colorAt(bar.paintedBy(main), 10, 100), from("ddScrollbarSliderGrayBlit"));
}

void tst_StyleVariants::everySizeIsSafe()
{
    const CBlueScrollBarStyle blue;
    const CDropDownScrollBarStyle dropDown;
    const CCommonControlStyle house;
    for (const QStyle *style : {static_cast<const QStyle *>(&blue), static_cast<const QStyle *>(&dropDown),
                                static_cast<const QStyle *>(&house)}) {
        for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
            for (const QSize &size : {QSize(0, 0), QSize(1, 1), QSize(2, 60), QSize(60, 2), QSize(5, 5)}) {
                Bar bar(orientation);
                bar.option.rect = QRect(QPoint(0, 0), size);
                bar.widget.resize(size);
                const QImage image = Picture::of(QSize(90, 90), [&](QPainter *painter) {
                    style->drawComplexControl(QStyle::CC_ScrollBar, &bar.option, painter, &bar.widget);
                    const QStyleOptionComplex wrong;
                    style->drawComplexControl(QStyle::CC_ScrollBar, &wrong, painter, &bar.widget);
                    QVERIFY(!painter->hasClipping());
                });
                // The drop-down bar moves its slider by three pixels, whatever its thickness.
                QVERIFY(style == &dropDown || !Picture::paintsOutside(image, bar.option.rect));
            }
        }
    }
}

void tst_StyleVariants::headerFill_data()
{
    QTest::addColumn<int>("indicator");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QColor>("fill");
    QTest::newRow("sorted") << int(QStyleOptionHeader::SortUp) << QStringLiteral("Name") << QColor(Qt::green);
    QTest::newRow("not sorted") << int(QStyleOptionHeader::None) << QStringLiteral("Name") << QColor(Qt::red);
    QTest::newRow("sorted, no text") << int(QStyleOptionHeader::SortDown) << QString() << QColor(Qt::red);
}

void tst_StyleVariants::headerFill()
{
    QFETCH(int, indicator);
    QFETCH(QString, text);
    QFETCH(QColor, fill);
    const CTBWStyle style(nullptr);
    QStyleOptionHeader option;
    option.rect = QRect(10, 0, 80, 20);
    option.state = QStyle::State_Enabled | QStyle::State_Horizontal;
    option.text = text;
    option.sortIndicator = static_cast<QStyleOptionHeader::SortIndicator>(indicator);
    option.palette.setColor(QPalette::Button, Qt::red);
    option.palette.setColor(QPalette::Highlight, Qt::green);
    const QHeaderView header(Qt::Horizontal);
    const auto paint = [&](QStyle::ControlElement element) {
        return Picture::of(QSize(100, 20), [&](QPainter *painter) {
            painter->setPen(Qt::blue);
            style.drawControl(element, &option, painter, &header);
        });
    };
    const QImage image = paint(QStyle::CE_Header);
    QVERIFY(!Picture::paintsOutside(image, QRect(9, 0, 81, 20)));
    QCOMPARE(image.pixelColor(10, 18), fill);
    QCOMPARE(image.pixelColor(9, 5), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(89, 5), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(40, 19), QColor(Qt::blue));
    option.palette.setColor(QPalette::ButtonText, Qt::white);
    QCOMPARE(Picture::boundsOf(paint(QStyle::CE_Header), Qt::white).isEmpty(), text.isEmpty()); // label or arrow
    QVERIFY(Picture::isBlank(paint(QStyle::CE_HeaderSection)));
}

void tst_StyleVariants::headerArrow()
{
    const CTBWStyle style(nullptr);
    QStyleOptionHeader option;
    option.rect = QRect(40, 0, 20, 20); // its middle is (50, 10)
    option.text = QStringLiteral("Name");
    option.palette.setColor(QPalette::ButtonText, Qt::black);
    const auto paint = [&] {
        return Picture::of(QSize(100, 20), [&](QPainter *painter) {
            style.drawPrimitive(QStyle::PE_IndicatorHeaderArrow, &option, painter, nullptr);
        });
    };
    QVERIFY(Picture::isBlank(paint())); // not sorted
    option.sortIndicator = QStyleOptionHeader::SortUp;
    QImage image = paint();
    QVERIFY(!Picture::paintsOutside(image, QRect(46, 8, 7, 4)));
    QCOMPARE(image.pixelColor(46, 11), QColor(Qt::black));
    QCOMPARE(image.pixelColor(52, 11), QColor(Qt::black));
    QCOMPARE(image.pixelColor(49, 8), QColor(Qt::black));
    option.sortIndicator = QStyleOptionHeader::SortDown;
    image = paint();
    QVERIFY(!Picture::paintsOutside(image, QRect(46, 8, 7, 4)));
    QCOMPARE(image.pixelColor(46, 8), QColor(Qt::black));
    QCOMPARE(image.pixelColor(49, 11), QColor(Qt::black));
    option.text.clear();
    QVERIFY(Picture::isBlank(paint()));
}

HOUSE_TEST_MAIN(tst_StyleVariants)
#include "tst_StyleVariants.moc"
