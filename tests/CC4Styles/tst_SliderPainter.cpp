// Where the house style puts the parts of a slider, and what it paints of them.
#include "helpers/HouseTest.h"

#include "CC4Styles/CommonControlStyle.h"
#include "SliderEx/SliderEx.h"
#include "UiGraphics.h"

#include <QApplication>

namespace {

const QColor window(240, 240, 240);
const QColor button(200, 200, 200);

QStyleOptionSlider optionFor(Qt::Orientation orientation, QSize size, QSlider::TickPosition ticks = QSlider::NoTicks)
{
    QStyleOptionSlider option;
    option.state = QStyle::State_Enabled;
    option.palette = QPalette(button, window);
    option.rect = QRect(QPoint(0, 0), size);
    option.orientation = orientation;
    option.maximum = 100;
    option.sliderPosition = option.sliderValue = 50;
    option.tickPosition = ticks;
    option.subControls = QStyle::SC_SliderGroove | QStyle::SC_SliderHandle | QStyle::SC_SliderTickmarks;
    return option;
}

QColor named(const QString &key)
{
    return UIGGetColor(QStringLiteral("UIGCLR_COMPLEX_BORDER_") + key);
}

QStyleOptionSlider partOption(QStyle::SubControls parts, Qt::Orientation orientation, QSize size,
                              QSlider::TickPosition ticks = QSlider::NoTicks)
{
    QStyleOptionSlider option = optionFor(orientation, size, ticks);
    option.subControls = parts;
    return option;
}

/** The painted stretches of a row, or of a column, as "begin-end". */
QStringList stretches(const QImage &image, Qt::Orientation along, int line)
{
    const auto isPainted = [&](int i) {
        return qAlpha(along == Qt::Horizontal ? image.pixel(i, line) : image.pixel(line, i)) != 0;
    };
    const int length = along == Qt::Horizontal ? image.width() : image.height();
    QStringList found;
    for (int i = 0, begin = 0; i <= length; ++i) {
        if (i < length && isPainted(i))
            continue;
        if (i > begin)
            found.append(QStringLiteral("%1-%2").arg(begin).arg(i - 1));
        begin = i + 1;
    }
    return found;
}

QList<int> singles(const QImage &image, Qt::Orientation along, int line)
{
    QList<int> places;
    for (const QString &stretch : stretches(image, along, line))
        places.append(stretch.section(QLatin1Char('-'), 0, 0).toInt());
    return places;
}

} // namespace

class tst_SliderPainter : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_style = new CCommonControlStyle; }
    void cleanupTestCase() { delete m_style; }
    void geometry_data();
    void geometry();
    void groovePixels();
    void handlePixels();
    void verticalHandle();
    void mirroredHandle();
    void knobReplacesHandle();
    void partGround();
    void tickMarks_data();
    void tickMarks();
    void verticalTickMarks();
    void wholePixelsOnDenseScreens();
    void everySizeIsSafe();

private:
    QImage paint(const QStyleOptionSlider &option, const QWidget *widget = nullptr, qreal ratio = 1.0) const
    {
        return Picture::of(
            option.rect.size(),
            [&](QPainter *painter) {
                painter->setPen(Qt::cyan);
                m_style->drawComplexControl(QStyle::CC_Slider, &option, painter, widget);
                QCOMPARE(painter->pen().color(), QColor(Qt::cyan));
            },
            ratio);
    }
    QRect handleOf(const QStyleOptionSlider &option, const QWidget *widget = nullptr) const
    {
        return m_style->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, widget);
    }

    CCommonControlStyle *m_style = nullptr;
};

void tst_SliderPainter::geometry_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QSize>("knob"); // empty for none
    QTest::addColumn<QSlider::TickPosition>("ticks");
    QTest::addColumn<int>("position");
    QTest::addColumn<QRect>("expected");
    QTest::addColumn<int>("towards"); // times the tick mark offset, across the slider
    QTest::addColumn<bool>("upsideDown");
    QTest::addColumn<QPoint>("topLeft"); // of the slider
    const QSize none;
    const auto ltr = Qt::LeftToRight;
    const auto row = [](const char *name, Qt::Orientation orientation, Qt::LayoutDirection direction, QSize knob,
                        QSlider::TickPosition ticks, int position, QRect expected, int towards, bool upsideDown = false,
                        QPoint topLeft = QPoint()) {
        QTest::newRow(name) << orientation << direction << knob << ticks << position << expected << towards
                            << upsideDown << topLeft;
    };
    const auto rtl = Qt::RightToLeft;
    const auto h = Qt::Horizontal;
    const auto v = Qt::Vertical;
    row("start", h, ltr, none, QSlider::NoTicks, 0, QRect(1, 6, 10, 18), 0);
    row("end", h, ltr, none, QSlider::NoTicks, 100, QRect(189, 6, 10, 18), 0);
    row("above", h, ltr, none, QSlider::TicksAbove, 0, QRect(1, 6, 10, 18), 1);
    row("below", h, ltr, none, QSlider::TicksBelow, 0, QRect(1, 6, 10, 18), -1);
    row("both", h, ltr, none, QSlider::TicksBothSides, 0, QRect(1, 6, 10, 18), 0);
    row("right to left", h, rtl, none, QSlider::NoTicks, 0, QRect(189, 6, 10, 18), 0);
    row("upside down", h, ltr, none, QSlider::NoTicks, 25, QRect(142, 6, 10, 18), 0, true);
    // Along the slider a place counts from the painter's origin, but a mirrored one from the slider's far end.
    row("elsewhere", h, ltr, none, QSlider::NoTicks, 0, QRect(1, 9, 10, 18), 0, false, QPoint(7, 3));
    row("elsewhere, right to left", h, rtl, none, QSlider::NoTicks, 0, QRect(203, 9, 10, 18), 0, false, QPoint(7, 3));
    row("knob", h, ltr, QSize(20, 30), QSlider::NoTicks, 0, QRect(1, 0, 20, 30), 0);
    row("vertical", v, ltr, none, QSlider::NoTicks, 0, QRect(6, 0, 18, 10), 0);
    row("vertical, end", v, ltr, none, QSlider::NoTicks, 100, QRect(6, 190, 18, 10), 0);
    row("vertical, upside down", v, ltr, none, QSlider::NoTicks, 100, QRect(6, 0, 18, 10), 0, true);
    row("vertical, elsewhere", v, rtl, none, QSlider::NoTicks, 0, QRect(13, 0, 18, 10), 0, false, QPoint(7, 3));
    row("vertical, left", v, ltr, none, QSlider::TicksLeft, 0, QRect(6, 0, 18, 10), 1);
    row("vertical, right to left", v, rtl, none, QSlider::TicksRight, 0, QRect(6, 0, 18, 10), -1);
    row("vertical knob", v, ltr, QSize(20, 30), QSlider::NoTicks, 0, QRect(0, 0, 30, 20), 0);
}

void tst_SliderPainter::geometry()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(QSize, knob);
    QFETCH(QSlider::TickPosition, ticks);
    QFETCH(int, position);
    QFETCH(QRect, expected);
    QFETCH(int, towards);
    QFETCH(bool, upsideDown);
    QFETCH(QPoint, topLeft);
    const bool isHorizontal = orientation == Qt::Horizontal;
    QStyleOptionSlider option = optionFor(orientation, isHorizontal ? QSize(200, 31) : QSize(31, 200), ticks);
    option.rect.moveTopLeft(topLeft);
    option.direction = direction;
    option.sliderPosition = position;
    option.upsideDown = upsideDown;
    CSliderEx slider(nullptr);
    if (!knob.isEmpty())
        slider.setKnobImage(QPixmap(knob));
    const int shift = towards * m_style->pixelMetric(QStyle::PM_SliderTickmarkOffset, &option, &slider);
    const int frame = m_style->pixelMetric(QStyle::PM_DefaultFrameWidth);
    // An upright handle keeps the frame's width from both ends.
    const int along = !isHorizontal && (position == 100) != upsideDown ? -frame : frame;
    QCOMPARE(handleOf(option, &slider),
             isHorizontal ? expected.translated(0, shift) : expected.translated(shift, along));
}

// An upright one is the same, mirrored at the diagonal. The bases do not agree on how thick it is.
void tst_SliderPainter::groovePixels()
{
    const Picture::Legend legend = {{'T', {named(QStringLiteral("TOP"))}},
                                    {'t', {named(QStringLiteral("TOP_INNER"))}},
                                    {'B', {named(QStringLiteral("BOTTOM"))}}};
    for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
        const bool isHorizontal = orientation == Qt::Horizontal;
        const QSize size = isHorizontal ? QSize(10, 31) : QSize(31, 10);
        const QStyleOptionSlider option = partOption(QStyle::SC_SliderGroove, orientation, size);
        QImage groove =
            paint(option).copy(m_style->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove));
        if (!isHorizontal)
            groove = groove.transformed(QTransform().rotate(90)).mirrored(true, false);
        const QByteArray letters = "\n.TTTTTTTT."
                                   "\nB.tttttt.B" +
                                   QByteArray("\nB........B").repeated(groove.height() - 3) + "\n.BBBBBBBB.";
        QCOMPARE(Picture::difference(groove, Picture::fromLetters(letters, legend, window)), QString());
    }
}

void tst_SliderPainter::handlePixels()
{
    const char letters[] = R"(
.PPPPPPPP.
PIaaaaaaIP
P.bbbbbb.P
P.cccccc.P
P.dddddd.P
P.eeeeee.P
P.ffffff.P
P.gggggg.P
P.hhhhhh.P
P.iiiiii.P
P.jjjjjj.P
P.kkkkkk.P
P.llllll.P
PI.mmmm.IP
.PI....IP.
..PI..IP..
...PIIP...
....PP....)";
    Picture::Legend legend = {{'P', {named(QStringLiteral("PEN"))}}, {'I', {named(QStringLiteral("INNER_PEN"))}}};
    for (int line = 0; line < 13; ++line)
        legend.insert(QLatin1Char(char('a' + line)), {named(QStringLiteral("INNER_LINE%1").arg(line + 1))});
    QStyleOptionSlider option = partOption(QStyle::SC_SliderHandle, Qt::Horizontal, QSize(100, 31));
    const QImage handle = paint(option).copy(handleOf(option));
    QCOMPARE(Picture::difference(handle, Picture::fromLetters(letters, legend, window)), QString());
    option.state |= QStyle::State_Sunken;
    option.activeSubControls = QStyle::SC_SliderHandle;
    QCOMPARE(paint(option).copy(handleOf(option)), handle);
}

void tst_SliderPainter::verticalHandle()
{
    QStyleOptionSlider option = partOption(QStyle::SC_SliderHandle, Qt::Vertical, QSize(41, 100));
    const auto handle = [&] {
        return paint(option).copy(handleOf(option));
    };
    const QString ground = window.name(QColor::HexArgb);
    const QImage pointsRight = handle();
    QCOMPARE(pointsRight.size(), QSize(18, 10));
    QVERIFY(Picture::colorAt(pointsRight, 12, 5) != ground && Picture::colorAt(pointsRight, 2, 5) != ground);
    QCOMPARE(Picture::colorAt(pointsRight, 16, 5), ground);
    QVERIFY(pointsRight.pixelColor(5, 2).lightness() > pointsRight.pixelColor(5, 8).lightness());
    QVERIFY(pointsRight.pixelColor(5, 2).lightness() > button.lightness());
    for (const auto ticks : {QSlider::TicksBothSides, QSlider::TicksRight}) {
        option.tickPosition = ticks;
        QCOMPARE(Picture::colorAt(handle(), 16, 3), ground); // two pixels lower, and still points to the right
        QVERIFY(Picture::colorAt(handle(), 12, 7) != ground && Picture::colorAt(handle(), 2, 7) != ground);
    }
    option.state = QStyle::State_None;
    QCOMPARE(handle().pixelColor(5, 7), window); // disabled: filled like the ground
    option.state = QStyle::State_Enabled;
    option.tickPosition = QSlider::TicksLeft;
    // Mirrored like every handle with ticks above, but there is no difference at half the height.
    const QImage pointsLeft = handle();
    QVERIFY(Picture::colorAt(pointsLeft, 5, 4) != ground && Picture::colorAt(pointsLeft, 15, 4) != ground);
    QCOMPARE(Picture::colorAt(pointsLeft, 1, 4), ground);
}

void tst_SliderPainter::mirroredHandle()
{
    const auto handle = [&](QSlider::TickPosition ticks, int dy) {
        const QStyleOptionSlider option = partOption(QStyle::SC_SliderHandle, Qt::Horizontal, QSize(100, 51), ticks);
        return paint(option).copy(handleOf(option).translated(0, dy));
    };
    const QImage plain = handle(QSlider::NoTicks, 0);
    QVERIFY(plain != plain.mirrored());
    QCOMPARE(handle(QSlider::TicksAbove, -1), plain.mirrored(false, true));
    QCOMPARE(handle(QSlider::TicksBelow, 2), plain);
    QCOMPARE(handle(QSlider::TicksBothSides, 2), plain);
}

void tst_SliderPainter::knobReplacesHandle()
{
    CSliderEx slider(nullptr);
    QImage image(20, 30, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    image.setPixelColor(3, 0, Qt::red);
    slider.setKnobImage(QPixmap::fromImage(image));
    QStyleOptionSlider option = partOption(QStyle::SC_SliderHandle, Qt::Horizontal, QSize(100, 51));
    const QImage painted = paint(option, &slider);
    QCOMPARE(slider.handleRect(), handleOf(option, &slider));
    QCOMPARE(painted.copy(slider.handleRect()), image); // and no ground
    option.tickPosition = QSlider::TicksAbove;
    QCOMPARE(paint(option, &slider).copy(handleOf(option, &slider).translated(0, -1)), image.mirrored(false, true));
}

void tst_SliderPainter::partGround()
{
    QStyleOptionSlider option = partOption(QStyle::SC_SliderHandle, Qt::Horizontal, QSize(100, 31));
    for (const QGradient &gradient : std::initializer_list<QGradient>{
             QLinearGradient(0, 0, 100, 0), QRadialGradient(50, 15, 60), QConicalGradient(50, 15, 0)}) {
        option.palette.setBrush(QPalette::Window, gradient);
        QCOMPARE(paint(option).pixelColor(handleOf(option).topLeft()).alpha(), 0);
    }
}

// The slider is 112 wide, so tick marks go from 5 to 106, with 55 in the middle.
void tst_SliderPainter::tickMarks_data()
{
    QTest::addColumn<int>("interval");
    QTest::addColumn<QList<int>>("places");
    QTest::addColumn<QList<int>>("longPlaces");
    QTest::newRow("0") << 0 << QList<int>({5, 12, 19, 26, 33, 40, 47, 55, 62, 69, 76, 84, 91, 98, 106})
                       << QList<int>({55, 106});
    QTest::newRow("20") << 20 << QList<int>({5, 30, 55, 80, 106}) << QList<int>({55, 106});
    QTest::newRow("25") << 25 << QList<int>({5, 38, 72, 106}) << QList<int>({5, 106});
    QTest::newRow("100") << 100 << QList<int>({55}) << QList<int>({55});
    QTest::newRow("150") << 150 << QList<int>() << QList<int>();
    QTest::newRow("below 0") << -10 << QList<int>() << QList<int>();
}

void tst_SliderPainter::tickMarks()
{
    QFETCH(int, interval);
    QFETCH(QList<int>, places);
    QFETCH(QList<int>, longPlaces);
    QStyleOptionSlider option =
        partOption(QStyle::SC_SliderTickmarks, Qt::Horizontal, QSize(112, 40), QSlider::TicksBothSides);
    option.tickInterval = interval;
    option.maximum = 7; // the range does not matter
    const QImage both = paint(option);
    const int offset = m_style->pixelMetric(QStyle::PM_SliderTickmarkOffset, &option);
    QCOMPARE(singles(both, Qt::Horizontal, 2), places);
    QCOMPARE(singles(both, Qt::Horizontal, 37), places);
    QCOMPARE(singles(both, Qt::Horizontal, 1), longPlaces);
    QCOMPARE(singles(both, Qt::Horizontal, 38), longPlaces);
    if (places.isEmpty())
        return;
    const QString long2 = QStringLiteral("1-%1 %2-38").arg(offset).arg(39 - offset);
    QCOMPARE(stretches(both, Qt::Vertical, longPlaces.constFirst()).join(QLatin1Char(' ')), long2);
    QCOMPARE(both.pixel(longPlaces.constFirst(), 2), window.darker(178).rgba());
    option.tickPosition = QSlider::TicksAbove;
    QVERIFY(!Picture::paintsOutside(paint(option), QRect(0, 0, 112, offset + 1)));
    option.tickPosition = QSlider::TicksBelow;
    QVERIFY(!Picture::paintsOutside(paint(option), QRect(0, 39 - offset, 112, offset + 1)));
}

void tst_SliderPainter::verticalTickMarks()
{
    QStyleOptionSlider option =
        partOption(QStyle::SC_SliderTickmarks, Qt::Vertical, QSize(40, 151), QSlider::TicksBothSides);
    option.tickInterval = 25; // does not matter
    const QImage both = paint(option);
    for (int column : {2, 37})
        QCOMPARE(singles(both, Qt::Vertical, column),
                 QList<int>({5, 15, 25, 35, 45, 55, 65, 75, 85, 95, 105, 115, 125, 135, 145}));
    for (int column : {1, 38})
        QCOMPARE(singles(both, Qt::Vertical, column), QList<int>({5, 145}));
}

void tst_SliderPainter::wholePixelsOnDenseScreens()
{
    for (const auto ticks : {QSlider::NoTicks, QSlider::TicksAbove, QSlider::TicksBelow}) {
        const QStyleOptionSlider option = optionFor(Qt::Horizontal, QSize(100, 41), ticks);
        const QImage plain = paint(option);
        QImage dense = paint(option, nullptr, 2.0);
        dense.setDevicePixelRatio(1.0);
        QCOMPARE(dense, plain.scaled(200, 82));
    }
}

void tst_SliderPainter::everySizeIsSafe()
{
    for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
        for (const auto ticks : {QSlider::NoTicks, QSlider::TicksAbove, QSlider::TicksBothSides}) {
            for (int size = 0; size < 14; ++size) {
                QStyleOptionSlider option = optionFor(orientation, QSize(size, 13 - size), ticks);
                option.rect.translate(20, 20);
                const auto painted = [&] {
                    return Picture::of(QSize(60, 60), [&](QPainter *painter) {
                        m_style->drawComplexControl(QStyle::CC_Slider, &option, painter, nullptr);
                    });
                };
                painted();
                // The lines of a groove that is too narrow for them have crossed.
                option.subControls = QStyle::SC_SliderGroove;
                const QRect groove = m_style->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove);
                QVERIFY(!Picture::paintsOutside(painted(), groove));
            }
        }
    }
}

HOUSE_TEST_MAIN(tst_SliderPainter)
#include "tst_SliderPainter.moc"
