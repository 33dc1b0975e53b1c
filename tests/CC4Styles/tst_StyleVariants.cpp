// The scroll bars of the blue and of the drop-down style, and the small header style.
#include "TestLook.h"
#include "helpers/HouseTest.h"

#include "CC4Styles/BlueScrollBarStyle.h"
#include "CC4Styles/DropDownScrollBarStyle.h"
#include "CC4Styles/TBWStyle.h"

#include <QApplication>
#include <QHeaderView>
#include <QPixmapCache>
#include <QScrollBar>

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

private Q_SLOTS:
    void initTestCase();
    void blueScrollBar();
    void dropDownScrollBar();
    void dropDownCoversItsWidget();
    void mainStyleFindsDropDownPictures();
    void everySizeIsSafe();
    void headerFill_data();
    void headerFill();
    void headerArrow();

private:
    const TestLook m_look;
};

void tst_StyleVariants::initTestCase()
{
    for (const Bitmap &bitmap : bitmaps)
        m_look.addBitmap(QLatin1String(bitmap.name), bitmap.size, QColor(bitmap.color));
}

void tst_StyleVariants::blueScrollBar()
{
    const CBlueScrollBarStyle style;
    Bar vertical(Qt::Vertical);
    QImage image = vertical.paintedBy(style);
    QCOMPARE(boundsOf(image, "BlueCenterScrollBarVGrooveBlt"), QRect(0, 0, 21, 200));
    QCOMPARE(Picture::colorAt(image, 21, 30), QColor(Qt::yellow).name(QColor::HexArgb));
    QCOMPARE(boundsOf(image, "BlueCenterScrollbarArrowUp"), QRect(7, 7, 4, 4));
    QCOMPARE(boundsOf(image, "BlueCenterScrollbarArrowDown").topLeft(), QPoint(7, 199 - 8));
    QRect slider = vertical.partOf(style, QStyle::SC_ScrollBarSlider);
    QCOMPARE(boundsOf(image, "BlueCenterVSliderBlit"), QRect(0, slider.top() + 1, 20, slider.height() - 2));
    QCOMPARE(boundsOf(image, "BlueCenterScrollBarTop").topLeft(), QPoint(2, slider.top()));
    QCOMPARE(boundsOf(image, "BlueCenterScrollBarBottom").bottomRight(), QPoint(9, slider.bottom()));

    vertical.option.state &= ~QStyle::State_Enabled;
    QCOMPARE(vertical.paintedBy(style), image);

    Bar horizontal(Qt::Horizontal);
    image = horizontal.paintedBy(style);
    QCOMPARE(boundsOf(image, "BlueCenterScrollBarHGrooveBlt"), QRect(0, 0, 200, 21));
    QCOMPARE(boundsOf(image, "BlueCenterScrollbarArrowLeft"), QRect(7, 7, 4, 4));
    QCOMPARE(boundsOf(image, "BlueCenterScrollbarArrowRight"), QRect(199 - 8, 7, 4, 4));
    slider = horizontal.partOf(style, QStyle::SC_ScrollBarSlider);
    QCOMPARE(boundsOf(image, "BlueCenterHSliderBlit"), QRect(slider.left() + 1, 0, slider.width() - 2, 20));
    QCOMPARE(boundsOf(image, "BlueCenterScrollBarLeft").topLeft(), QPoint(slider.left(), 2));
    QCOMPARE(boundsOf(image, "BlueCenterScrollBarRight").bottomRight(), QPoint(slider.right(), 9));

    horizontal.option.direction = Qt::RightToLeft; // each arrow still points outward
    image = horizontal.paintedBy(style);
    QVERIFY(boundsOf(image, "BlueCenterScrollbarArrowLeft").left() < 100);
    QVERIFY(boundsOf(image, "BlueCenterScrollbarArrowRight").left() > 100);
}

void tst_StyleVariants::dropDownScrollBar()
{
    const CDropDownScrollBarStyle style;
    Bar vertical(Qt::Vertical);
    QImage image = vertical.paintedBy(style);
    // Everything keeps three pixels off the left edge, the groove one more.
    QCOMPARE(Picture::colorAt(image, 3, 30), QColor(Qt::yellow).name(QColor::HexArgb));
    QCOMPARE(Picture::colorAt(image, 4, 30), from("ddScrollbarSliderGrayBlit"));
    const auto arrowIn = [&](QStyle::SubControl part) {
        const QRect rect = vertical.partOf(style, part).adjusted(3, 0, 0, 0);
        return QRect(rect.topLeft() + QRect(QPoint(0, 0), rect.size()).center() - QPoint(1, 2), QSize(5, 5));
    };
    QCOMPARE(boundsOf(image, "ddScrollbarArrowUp"), arrowIn(QStyle::SC_ScrollBarSubLine));
    QCOMPARE(boundsOf(image, "ddScrollbarArrowDown"), arrowIn(QStyle::SC_ScrollBarAddLine));
    // The slider's picture is 22 wide, has its bitmaps one pixel in, and is squeezed into 19.
    const QRect slider = vertical.partOf(style, QStyle::SC_ScrollBarSlider);
    QCOMPARE(boundsOf(image, "ddScrollbarSliderBlit").left(), 7);   // 3 + 3 + its own 1
    QCOMPARE(boundsOf(image, "ddScrollbarSliderBlit").width(), 14); // 16 of 22 in 19
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
    option.palette.setColor(QPalette::ButtonText, Qt::black);
    const auto paint = [&](QStyleOptionHeader::SortIndicator sorting, const QString &text) {
        option.sortIndicator = sorting;
        option.text = text;
        return Picture::of(QSize(100, 20), [&](QPainter *painter) {
            style.drawPrimitive(QStyle::PE_IndicatorHeaderArrow, &option, painter, nullptr);
        });
    };
    const QString name = QStringLiteral("Name");
    QVERIFY(Picture::isBlank(paint(QStyleOptionHeader::None, name)));
    QVERIFY(Picture::isBlank(paint(QStyleOptionHeader::SortUp, QString())));
    const QRect place(46, 8, 7, 4);
    const QImage up = paint(QStyleOptionHeader::SortUp, name);
    const QImage wanted = Picture::fromLetters("\n...#...\n..###..\n.#####.\n#######", {{'#', {Qt::black}}});
    QVERIFY(!Picture::paintsOutside(up, place));
    QCOMPARE(Picture::difference(up.copy(place), wanted), QString());
    const QImage down = paint(QStyleOptionHeader::SortDown, name);
    QVERIFY(!Picture::paintsOutside(down, place));
    QCOMPARE(Picture::difference(down.copy(place), wanted.mirrored()), QString());
}

HOUSE_TEST_MAIN(tst_StyleVariants)
#include "tst_StyleVariants.moc"
