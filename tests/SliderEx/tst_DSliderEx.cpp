#include "helpers/HouseTest.h"

#include "CC4Styles/CommonControlStyle.h"
#include "SliderEx/DSliderEx.h"

#include <QAccessible>
#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QWheelEvent>

#include <algorithm>
#include <limits>

namespace {

QTemporaryDir logDirectory;

// 110 pixels less the handle's ten, for 0 to 100: a pixel is a value. A handle is drawn one or two pixels beside that.
constexpr QSize sliderSize(110, 30);
constexpr int rowOfHandles = 14;

struct Part
{
    QStyle::SubControls parts;
    QStyle::SubControls active;
    bool isSunken;
    int position;
};

/** Tells what it was asked to draw. */
struct SpyStyle : public CCommonControlStyle
{
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget) const override
    {
        const auto *slider = qstyleoption_cast<const QStyleOptionSlider *>(option);
        drawn.append({slider->subControls, slider->activeSubControls, slider->state.testFlag(State_Sunken),
                      slider->sliderPosition});
        CCommonControlStyle::drawComplexControl(control, option, painter, widget);
    }
    mutable QList<Part> drawn;
};

/** A range slider from 0 to 100 that writes down its signals. */
struct Recorded : public CDSliderEx
{
    explicit Recorded(QStyle *style, int lower = 20, int upper = 80, QWidget *parent = nullptr) : CDSliderEx(parent)
    {
        setStyle(style);
        resize(sliderSize);
        setMinimum(0);
        setMaximum(100);
        setSliderPosition(1, upper);
        setSliderPosition(0, lower);
        connect(
            this, &CDSliderEx::valueChanged, this,
            [this](int value, int handle) { told.append(QStringLiteral("%1 to %2").arg(handle).arg(value)); });
        connect(this, &CDSliderEx::sliderReleased, this, [this](int value, int handle) {
            told.append(QStringLiteral("%1 let go at %2").arg(handle).arg(value));
        });
    }

    QString takeTold()
    {
        const QString all = told.join(QLatin1String(", "));
        told.clear();
        return all;
    }

    QAccessibleInterface *handle(int number) { return QAccessible::queryAccessibleInterface(this)->child(number); }
    int at(int number) { return handle(number)->valueInterface()->currentValue().toInt(); }
    /** Three pixels in from the left edge of a handle. */
    QPoint on(int number) { return mapFromGlobal(handle(number)->rect().topLeft()) + QPoint(3, 8); }

    QStringList told;
};

bool sendMouse(QWidget &widget, QEvent::Type type, int x, Qt::MouseButton button, Qt::MouseButtons buttons)
{
    QMouseEvent event(type, QPointF(x, rowOfHandles), QPointF(x, rowOfHandles), button, buttons, Qt::NoModifier);
    static_cast<QObject &>(widget).event(&event); // the application passes on what is ignored
    return event.isAccepted();
}

bool press(QWidget &widget, int x, Qt::MouseButton button = Qt::LeftButton)
{
    return sendMouse(widget, QEvent::MouseButtonPress, x, button, button);
}

bool drag(QWidget &widget, int x, Qt::MouseButtons buttons = Qt::LeftButton)
{
    return sendMouse(widget, QEvent::MouseMove, x, Qt::NoButton, buttons);
}

bool release(QWidget &widget, int x, Qt::MouseButton button = Qt::LeftButton, Qt::MouseButtons held = Qt::NoButton)
{
    return sendMouse(widget, QEvent::MouseButtonRelease, x, button, held);
}

/** The last two records, as "level message". */
QStringList lastRecords()
{
    QFile file(logDirectory.filePath(QStringLiteral("log")));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QStringList records;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts))
        records.append(line.section(QLatin1String(" CommonControls "), 0, 0).right(1) +
                       line.mid(line.indexOf(QLatin1String("): ")) + 2));
    return records.mid(records.size() - 2);
}

} // namespace

class tst_DSliderEx : public HouseTest
{
    Q_OBJECT

public:
    tst_DSliderEx()
    {
        qputenv("ZEL_LOG", "trace");
        qputenv("ZEL_LOG_FILE", logDirectory.filePath(QStringLiteral("log")).toLocal8Bit());
    }

private Q_SLOTS:
    void initTestCase() { m_style = new SpyStyle; }
    void cleanupTestCase() { delete m_style; }
    void startsAsTold();
    void rangeAndPositions();
    void pressDragRelease();
    void handlesStaySevenApart();
    void overlappingHandles_data();
    void overlappingHandles();
    void grooveMovesNothing();
    void refusals();
    void wheelMovesNothing();
    void keys_data();
    void keys();
    void brokenRanges_data();
    void brokenRanges();
    void whatIsDrawn();
    void sameFromRightToLeft();
    void pointerShape();
    void assistants();
    void mayBeDestroyedWhileAnAssistantSetsIt();

private:
    SpyStyle *m_style = nullptr;
};

void tst_DSliderEx::startsAsTold()
{
    CDSliderEx slider(nullptr, Qt::WindowFlags());
    slider.setStyle(m_style);
    QCOMPARE(slider.focusPolicy(), Qt::StrongFocus);
    QVERIFY(slider.minimum() == 0 && slider.maximum() == 0 && slider.sliderPosition() == 0);
    QCOMPARE(slider.sizeHint().width(), 84);
    QVERIFY(slider.sizeHint().height() >= 20); // the handle's 18 with some room
    QStyleOptionSlider option;
    option.initFrom(&slider);
    option.orientation = Qt::Horizontal;
    QCOMPARE(slider.minimumSizeHint(),
             QSize(m_style->pixelMetric(QStyle::PM_SliderLength, &option, &slider), slider.sizeHint().height()));
    slider.resize(sliderSize);
    m_style->drawn.clear();
    slider.grab();
    QCOMPARE(m_style->drawn.at(1).position, 100); // the private range, though maximum() gives 0
}

void tst_DSliderEx::rangeAndPositions()
{
    Recorded slider(m_style);
    slider.setSliderPosition(1, 70);
    QVERIFY(slider.sliderPosition() == 70);
    slider.setSliderPosition(65); // handle 1 is the active one now
    slider.setSliderPosition(7, 66);
    slider.setSliderPosition(-1, 66); // unchanged, and told all the same
    QCOMPARE(slider.takeTold(), QStringLiteral("1 to 70, 1 to 65, 1 to 66, 1 to 66"));
    slider.setSliderPosition(0, 90); // order and range are the caller's business
    slider.setSliderPosition(1, -3);
    QCOMPARE(slider.takeTold(), QStringLiteral("0 to 90, 1 to -3"));
    QVERIFY(slider.at(0) == 90 && slider.at(1) == -3);
    const QList<QRect> ends = {QRect(1, 5, 10, 18), QRect(99, 5, 10, 18)};
    QVERIFY(ends.contains(slider.handle(1)->rect()));
    slider.setSliderPosition(101);
    QVERIFY(ends.contains(slider.handle(1)->rect())); // which one is up to Qt
    slider.takeTold();

    slider.setMaximum(50);
    QVERIFY(slider.maximum() == 50 && slider.at(0) == 0 && slider.at(1) == 50 && slider.told.isEmpty());
    slider.setMinimum(10); // does not move the beginning of the track
    QCOMPARE(slider.minimum(), 10);
    slider.setSliderPosition(0, 5);
    press(slider, slider.on(0).x());
    drag(slider, 0);
    QCOMPARE(slider.at(0), 0);
}

void tst_DSliderEx::pressDragRelease()
{
    for (const auto &[handle, button] : {std::pair(0, Qt::LeftButton), {1, Qt::MiddleButton}}) {
        Recorded slider(m_style);
        QTest::mousePress(&slider, button, Qt::NoModifier, slider.on(handle));
        QVERIFY(slider.told.isEmpty());
        QVERIFY(drag(slider, 40 + 3, button) && drag(slider, 50 + 3, button));
        QTest::mouseRelease(&slider, button, Qt::NoModifier, QPoint(50 + 3, rowOfHandles));
        QCOMPARE(slider.takeTold(), QStringLiteral("%1 to 40, %1 to 50, %1 let go at 50").arg(handle));
        QCOMPARE(slider.at(1 - handle), handle == 0 ? 80 : 20);
        drag(slider, handle == 0 ? -500 : 500, button); // far out, and the button still held
        QCOMPARE(slider.takeTold(), handle == 0 ? QStringLiteral("0 to 0") : QStringLiteral("1 to 100"));
        QTest::keyClick(&slider, Qt::Key_Left); // on the handle that was dragged
        QCOMPARE(slider.takeTold(),
                 handle == 0 ? QStringLiteral("0 let go at 0") : QStringLiteral("1 to 99, 1 let go at 99"));
    }
}

void tst_DSliderEx::handlesStaySevenApart()
{
    Recorded slider(m_style, 20, 80);
    press(slider, slider.on(1).x());
    QVERIFY(drag(slider, 27 + 3));
    QVERIFY(drag(slider, 26 + 3)); // refused, and yet the slider's event
    QCOMPARE(lastRecords(),
             QStringList({QStringLiteral("1 CDSliderEx::mouseMoveEvent"),
                          QStringLiteral("6 CDSliderEx::mouseMoveEvent - handle 1 stays at 27: 26 is too near to the "
                                         "other handle at 20, or beyond it")}));
    drag(slider, 40 + 3);
    drag(slider, 3); // fast: no stop at the limit
    QCOMPARE(slider.takeTold(), QStringLiteral("1 to 27, 1 to 40"));
    press(slider, slider.on(0).x());
    drag(slider, 33 + 3);
    drag(slider, 34 + 3);
    drag(slider, 99);
    QCOMPARE(slider.takeTold(), QStringLiteral("0 to 33"));

    slider.setSliderPosition(0, 38); // too near already
    slider.takeTold();
    press(slider, slider.on(0).x() - 3); // on the one pixel where the other handle is not over it
    drag(slider, 36);
    drag(slider, 37);
    QCOMPARE(slider.takeTold(), QStringLiteral("0 to 36"));
}

// The pressed handle is one that drags: the other one has to stay.
void tst_DSliderEx::overlappingHandles_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("lower");
    QTest::addColumn<int>("upper");
    QTest::addColumn<int>("taken"); // -1 for none
    QTest::newRow("lower half") << 0 << 100 << 20 << 25 << 1;
    QTest::newRow("upper half") << 0 << 100 << 70 << 75 << 0;
    QTest::newRow("across the middle") << 0 << 100 << 49 << 54 << 1;
    QTest::newRow("in the middle") << 0 << 100 << 50 << 50 << 1;
    QTest::newRow("above the middle") << 0 << 100 << 51 << 51 << 0;
    QTest::newRow("odd range, half is cut") << 0 << 101 << 51 << 52 << 0;
    QTest::newRow("below the own minimum") << 30 << 100 << 20 << 22 << -1;
    QTest::newRow("halved by the own minimum") << 30 << 100 << 36 << 38 << 0;
}

void tst_DSliderEx::overlappingHandles()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(int, lower);
    QFETCH(int, upper);
    Recorded slider(m_style);
    slider.setMinimum(minimum);
    slider.setMaximum(maximum);
    QFETCH(int, taken);
    // The one that was named last is active until another one is taken.
    const bool lowerIsNamedLast = taken != 0;
    if (lowerIsNamedLast)
        slider.setSliderPosition(1, upper);
    slider.setSliderPosition(0, lower);
    if (!lowerIsNamedLast)
        slider.setSliderPosition(1, upper);
    press(slider, slider.on(1).x()); // on both
    slider.takeTold();
    QTest::keyClick(&slider, Qt::Key_Shift);
    const int active = taken == 1 ? 1 : 0;
    QCOMPARE(slider.takeTold(), QStringLiteral("%1 let go at %2").arg(active).arg(active == 1 ? upper : lower));
    m_style->drawn.clear();
    slider.grab();
    QCOMPARE(m_style->drawn.at(0).active, QStyle::SubControls(QStyle::SC_SliderHandle));
    QCOMPARE(m_style->drawn.at(1).active, QStyle::SubControls(QStyle::SC_SliderHandle));
    // An earlier offset would show by a drag that jumps.
    slider.takeTold();
    drag(slider, active == 1 ? 90 + 3 : 3);
    QCOMPARE(slider.told.size(), 1);
}

void tst_DSliderEx::grooveMovesNothing()
{
    CDSliderEx fresh;
    fresh.setStyle(m_style);
    fresh.resize(sliderSize);
    QVERIFY(press(fresh, 55));
    QVERIFY(!drag(fresh, 60));
    QCOMPARE(lastRecords().last(), QStringLiteral("6 CDSliderEx::mouseMoveEvent - ev->ignore()"));
    QVERIFY(!release(fresh, 60));
    QCOMPARE(lastRecords().last(), QStringLiteral("6 CDSliderEx::mouseReleaseEvent - ev->ignore()"));

    Recorded slider(m_style);
    press(slider, slider.on(1).x() + 4); // seven pixels in
    release(slider, 0);
    slider.takeTold();
    QVERIFY(press(slider, 50) && slider.told.isEmpty());
    drag(slider, 70); // by the offset of the press before
    release(slider, 70);
    QCOMPARE(slider.takeTold(), QStringLiteral("1 to 63, 1 let go at 63"));
}

void tst_DSliderEx::refusals()
{
    const QString refusal = QStringLiteral("6 CDSliderEx::mousePressEvent - (d->maximum == d->minimum || "
                                           "(ev->buttons() ^ ev->button()) || (ev->button() == Qt::RightButton))");
    Recorded slider(m_style);
    slider.setSliderPosition(1, 80);
    slider.takeTold();
    const int lower = slider.on(0).x();
    QVERIFY(!press(slider, lower, Qt::RightButton));
    QCOMPARE(lastRecords(), QStringList({QStringLiteral("1 CDSliderEx::mousePressEvent"), refusal}));
    QVERIFY(!sendMouse(slider, QEvent::MouseButtonPress, lower, Qt::LeftButton, Qt::LeftButton | Qt::MiddleButton));
    QCOMPARE(lastRecords().last(), refusal);
    QVERIFY(!drag(slider, 60, Qt::LeftButton | Qt::RightButton));
    QCOMPARE(lastRecords().last(), QStringLiteral("6 CDSliderEx::mouseMoveEvent - (ev->buttons() & Qt::RightButton)"));
    QVERIFY(!release(slider, 60, Qt::LeftButton, Qt::RightButton));
    QCOMPARE(lastRecords().last(),
             QStringLiteral("6 CDSliderEx::mouseReleaseEvent - (ev->buttons() & Qt::RightButton)"));
    QVERIFY(slider.told.isEmpty());
    QVERIFY(release(slider, 60, Qt::RightButton)); // of the handle that was active before
    QCOMPARE(slider.takeTold(), QStringLiteral("1 let go at 80"));

    slider.setMaximum(0);
    QVERIFY(!press(slider, 5));
    QCOMPARE(lastRecords().last(), refusal);
}

void tst_DSliderEx::wheelMovesNothing()
{
    Recorded slider(m_style);
    slider.takeTold();
    const QPointF point(slider.on(0));
    QWheelEvent wheel(point, slider.mapToGlobal(point.toPoint()), QPoint(), QPoint(0, 120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    static_cast<QObject &>(slider).event(&wheel);
    QVERIFY(!wheel.isAccepted() && slider.told.isEmpty() && slider.at(0) == 20);
}

void tst_DSliderEx::keys_data()
{
    QTest::addColumn<int>("lower");
    QTest::addColumn<int>("upper");
    QTest::addColumn<int>("handle");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<int>("target");
    const auto row = [](const char *name, int lower, int upper, int handle, Qt::Key key, int target) {
        QTest::newRow(name) << lower << upper << handle << key << target;
    };
    row("0 left", 20, 40, 0, Qt::Key_Left, 19);
    row("0 down", 20, 40, 0, Qt::Key_Down, 19);
    row("0 left at the start", 0, 40, 0, Qt::Key_Left, 0);
    row("0 left above the other", 50, 40, 0, Qt::Key_Left, 50);
    row("0 right", 32, 40, 0, Qt::Key_Right, 33);
    row("0 right at the other", 33, 40, 0, Qt::Key_Right, 33);
    row("0 up", 20, 40, 0, Qt::Key_Up, 21);
    row("0 page down to the start", 4, 40, 0, Qt::Key_PageDown, 0);
    row("0 page down above the other", 50, 40, 0, Qt::Key_PageDown, 40);
    row("0 page up", 20, 40, 0, Qt::Key_PageUp, 30);
    row("0 page up to the other", 25, 40, 0, Qt::Key_PageUp, 33);
    row("1 left", 20, 28, 1, Qt::Key_Left, 27);
    row("1 left at the other", 20, 27, 1, Qt::Key_Left, 27);
    row("1 left at the start", -20, 0, 1, Qt::Key_Left, 0);
    row("1 right at the end", 20, 100, 1, Qt::Key_Right, 100);
    row("1 up near the other", 20, 21, 1, Qt::Key_Up, 22);
    row("1 page down", 20, 40, 1, Qt::Key_PageDown, 30);
    row("1 page down to the other", 20, 33, 1, Qt::Key_PageDown, 27);
    row("1 page up to the end", 20, 95, 1, Qt::Key_PageUp, 100);
    row("0 home", 20, 40, 0, Qt::Key_Home, -1); // not a key of the slider
}

void tst_DSliderEx::keys()
{
    QFETCH(int, lower);
    QFETCH(int, upper);
    QFETCH(int, handle);
    QFETCH(Qt::Key, key);
    QFETCH(int, target);
    Recorded slider(m_style, lower, upper);
    const int before = handle == 0 ? lower : upper;
    slider.setSliderPosition(handle, before);
    slider.takeTold();
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(&slider, &event);
    QCOMPARE(event.isAccepted(), target != -1);
    const int after = target == -1 ? before : target;
    const QString moved = QStringLiteral("%1 to %2, ").arg(handle).arg(after);
    const QString released = QStringLiteral("%1 let go at %2").arg(handle).arg(after);
    QCOMPARE(slider.takeTold(), after == before ? released : moved + released);
}

void tst_DSliderEx::brokenRanges_data()
{
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("lower");
    QTest::addColumn<int>("upper");
    constexpr int least = std::numeric_limits<int>::min();
    constexpr int most = std::numeric_limits<int>::max();
    QTest::newRow("empty") << 0 << 0 << 0;
    QTest::newRow("reversed, far") << least << 0 << least;
    QTest::newRow("narrower than the gap") << 5 << 0 << 5;
    QTest::newRow("huge") << most << 0 << most;
    QTest::newRow("positions far out") << 100 << most << least;
}

void tst_DSliderEx::brokenRanges()
{
    QFETCH(int, maximum);
    QFETCH(int, lower);
    QFETCH(int, upper);
    Recorded slider(m_style);
    slider.setMinimum(std::numeric_limits<int>::min());
    for (const int handle : {0, 1}) {
        for (const auto key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_PageUp, Qt::Key_PageDown}) {
            slider.setMaximum(maximum);
            slider.setSliderPosition(1 - handle, handle == 0 ? upper : lower);
            slider.setSliderPosition(handle, handle == 0 ? lower : upper);
            slider.takeTold();
            QTest::keyClick(&slider, key);
            if (maximum <= 0) // nothing to move in
                QCOMPARE(slider.told.size(), 1);
            const QVariant reach = slider.handle(handle)->valueInterface()->maximumValue();
            QVERIFY(reach.toInt() >= 0 && reach.toInt() <= std::max(maximum, 0));
            slider.handle(handle)->valueInterface()->setCurrentValue(50);
            for (const int x : {0, 5, 55, 109}) {
                press(slider, x);
                drag(slider, 109 - x);
                release(slider, 109 - x);
            }
            if (maximum < 0)
                QVERIFY(slider.at(0) == lower && slider.at(1) == upper);
            QVERIFY(!slider.grab().isNull());
        }
    }
}

void tst_DSliderEx::whatIsDrawn()
{
    Recorded slider(m_style);
    const auto drawnBy = [&](auto &&act) {
        act();
        m_style->drawn.clear();
        slider.grab();
        return m_style->drawn;
    };
    const QStyle::SubControls none = QStyle::SC_None;
    const QStyle::SubControls groove = QStyle::SC_SliderGroove;
    const QStyle::SubControls handle = QStyle::SC_SliderHandle;
    QList<Part> drawn = drawnBy([] {});
    QCOMPARE(int(drawn.size()), 2);
    QVERIFY(drawn.at(0).parts == (groove | handle) && drawn.at(0).position == 20 && !drawn.at(0).isSunken);
    QVERIFY(drawn.at(1).parts == handle && drawn.at(1).position == 80 && drawn.at(1).active == none);
    drawn = drawnBy([&] { press(slider, slider.on(1).x()); });
    QVERIFY(drawn.at(0).active == groove && drawn.at(0).isSunken); // what the press hit, as each handle sees it
    QVERIFY(drawn.at(1).active == handle && drawn.at(1).isSunken);
    drawn = drawnBy([&] { release(slider, slider.on(1).x()); });
    QVERIFY(drawn.at(1).active == handle); // until the next press

    // Both handles and nothing else in a row above the groove.
    const QImage image = slider.grab().toImage();
    const QRgb ground = image.pixel(55, 2);
    const auto isPainted = [&](int x) {
        return image.pixel(x, slider.on(0).y() - 7) != ground;
    };
    QVERIFY(isPainted(slider.on(0).x()) && isPainted(slider.on(1).x()));
    QVERIFY(!isPainted(55) && !isPainted(5) && !isPainted(105));
}

void tst_DSliderEx::sameFromRightToLeft()
{
    Recorded slider(m_style);
    const QImage before = slider.grab().toImage();
    slider.setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(slider.grab().toImage(), before);
    press(slider, slider.on(0).x());
    drag(slider, 40 + 3);
    QTest::keyClick(&slider, Qt::Key_Right);
    QCOMPARE(slider.takeTold(), QStringLiteral("0 to 40, 0 to 41, 0 let go at 41"));
}

void tst_DSliderEx::pointerShape()
{
    CDSliderEx slider;
    Pointer::enter(slider);
    QCOMPARE(slider.cursor().shape(), Qt::PointingHandCursor);
    Pointer::leave(slider);
    QCOMPARE(slider.cursor().shape(), Qt::ArrowCursor);
}

void tst_DSliderEx::assistants()
{
    QWidget window;
    const QAccessibleInterface *application = QAccessible::queryAccessibleInterface(qApp);
    const int windows = application->childCount();
    Recorded slider(m_style, 20, 80, &window);
    QCOMPARE(application->childCount(), windows); // what the slider keeps for itself is nobody's window
    slider.setAccessibleName(QStringLiteral("Price"));
    QAccessibleInterface *whole = QAccessible::queryAccessibleInterface(&slider);
    QCOMPARE(whole->role(), QAccessible::Slider);
    QCOMPARE(whole->text(QAccessible::Name), QStringLiteral("Price"));
    QCOMPARE(whole->text(QAccessible::Value), QStringLiteral("20 to 80"));
    QCOMPARE(whole->text(QAccessible::Description), QStringLiteral("From 20 to 80"));
    slider.setAccessibleDescription(QStringLiteral("In euros"));
    QCOMPARE(whole->text(QAccessible::Description), QStringLiteral("In euros. From 20 to 80"));
    QCOMPARE(whole->childCount(), 2);
    QVERIFY(whole->child(2) == nullptr && whole->child(-1) == nullptr && whole->indexOfChild(whole) == -1);
    for (const int number : {0, 1}) {
        QAccessibleInterface *part = whole->child(number);
        QVERIFY(part == slider.handle(number) && part->parent() == whole && whole->indexOfChild(part) == number);
        QCOMPARE(part->role(), QAccessible::Slider);
        QCOMPARE(whole->childAt(part->rect().center().x(), part->rect().center().y()), part);
    }
    QCOMPARE(whole->child(0)->text(QAccessible::Name), QStringLiteral("Lower value"));
    QCOMPARE(whole->child(1)->text(QAccessible::Name), QStringLiteral("Upper value"));

    QAccessibleValueInterface *lower = whole->child(0)->valueInterface();
    QAccessibleValueInterface *upper = whole->child(1)->valueInterface();
    QVERIFY(lower->minimumValue() == 0 && lower->maximumValue() == 73);
    QVERIFY(upper->minimumValue() == 27 && upper->maximumValue() == 100);
    upper->setCurrentValue(3); // as far as it may go, and as a key would tell it
    QCOMPARE(slider.takeTold(), QStringLiteral("1 to 27, 1 let go at 27"));
    QCOMPARE(whole->valueInterface()->currentValue(), QVariant(27)); // of the handle that the keys move now
    whole->valueInterface()->setCurrentValue(60);
    lower->setCurrentValue(lower->currentValue());
    QCOMPARE(slider.takeTold(), QStringLiteral("1 to 60, 1 let go at 60"));
    slider.setEnabled(false);
    lower->setCurrentValue(1);
    QVERIFY(slider.at(0) == 20 && whole->child(0)->state().disabled);
}

// By pointer and keys: see tst_SelfDeletion.
void tst_DSliderEx::mayBeDestroyedWhileAnAssistantSetsIt()
{
    const QPointer<Recorded> slider = new Recorded(m_style);
    connect(slider.data(), &CDSliderEx::valueChanged, this, [slider] { delete slider.data(); });
    slider->handle(0)->valueInterface()->setCurrentValue(30);
    QVERIFY(slider.isNull());
}

HOUSE_TEST_MAIN(tst_DSliderEx)
#include "tst_DSliderEx.moc"
