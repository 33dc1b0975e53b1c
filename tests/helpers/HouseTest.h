// What every test of the house shares: no unannounced warning, pictures of what a style paints, and a main function.
#pragma once

#include <QApplication>
#include <QColor>
#include <QEvent>
#include <QImage>
#include <QMap>
#include <QObject>
#include <QPaintEvent>
#include <QPainter>
#include <QRegion>
#include <QStringList>
#include <QStyle>
#include <QStyleOption>
#include <QTest>
#include <QWidget>

/** Base of the tests. A warning that was not announced fails the test function it came in. */
class HouseTest : public QObject
{
    Q_OBJECT

public:
    /** The next warning of exactly this text is wanted; a test function that does not bring it fails. */
    static void announceWarning(const QString &message);

protected Q_SLOTS:
    void init();
    void cleanup();
};

/** Counts the paint events of the widgets that it filters, and knows the region of the last one. */
class PaintCounter : public QObject
{
public:
    PaintCounter() = default;
    explicit PaintCounter(QWidget *widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() != QEvent::Paint)
            return false;
        ++paints;
        region = static_cast<QPaintEvent *>(event)->region();
        return false;
    }

    int paints = 0;
    QRegion region;
};

/** An option as a widget of the current style would fill it in. */
template <typename Option>
Option optionFor(const QRect &rect, QStyle::State state = QStyle::State_Enabled)
{
    Option option;
    option.rect = rect;
    option.state = state;
    option.palette = QApplication::style()->standardPalette();
    return option;
}

namespace Picture {

/** What `draw(painter)` paints on a transparent image of the size, on a device of the given pixel ratio. */
template <typename Draw>
QImage of(const QSize &size, Draw &&draw, qreal ratio = 1.0)
{
    QImage image(size * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    draw(&painter);
    painter.end();
    return image;
}

/** True when any pixel outside `inside` is painted. */
bool paintsOutside(const QImage &image, const QRect &inside);

/** True when no pixel is painted. */
bool isBlank(const QImage &image);

/** The smallest rectangle around the pixels of exactly this colour; null where there is none. */
QRect boundsOf(const QImage &image, const QColor &color);

using Layers = QList<QColor>; // from the ground up
using Legend = QMap<QChar, Layers>;

/** The picture that rows of letters describe, over the ground. The first row begins behind a line break. */
QImage fromLetters(const char *letters, const Legend &legend, const QColor &ground = Qt::transparent);

/** Where two pictures differ first by more than the tolerance in a channel, and how; empty where they do not. */
QString difference(const QImage &actual, const QImage &wanted, int tolerance = 0);

constexpr int hugeSide = 9000; // of a square that is a hundred kilobytes as a file, some hundred megabytes as a pixmap

/** The file of a white square. */
QByteArray png(int side);

/** "#aarrggbb" at a point, for readable failures. */
QString colorAt(const QImage &image, int x, int y);

} // namespace Picture

namespace Pointer {

/** Tells a widget that the mouse has come in, or gone, as the window system would. */
void enter(QWidget &widget);
void leave(QWidget &widget);

} // namespace Pointer

namespace HouseTestMain {
/** Called before the application object is made: takes Qt's style plugins away when the environment says so. */
void prepare();
} // namespace HouseTestMain

/** Fails as soon as the condition does not hold, within so many milliseconds: for what must not happen. */
#define VERIFY_HOLDS_FOR(condition, milliseconds)                                                                      \
    QVERIFY2(!QTest::qWaitFor([&] { return !(condition); }, milliseconds), "did not hold: " #condition)

#define HOUSE_TEST_MAIN(TestClass)                                                                                     \
    int main(int argc, char *argv[])                                                                                   \
    {                                                                                                                  \
        HouseTestMain::prepare();                                                                                      \
        QApplication application(argc, argv);                                                                          \
        TestClass test;                                                                                                \
        return QTest::qExec(&test, argc, argv);                                                                        \
    }
