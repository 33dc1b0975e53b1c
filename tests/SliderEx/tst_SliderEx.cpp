#include "helpers/HouseTest.h"

#include "CC4Styles/CommonControlStyle.h"
#include "SliderEx/SliderEx.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QWheelEvent>

namespace {

/** Counts the presses that a slider lets pass. */
class Parent : public QWidget
{
public:
    int presses = 0;

protected:
    bool event(QEvent *event) override
    {
        if (event->type() != QEvent::MouseButtonPress)
            return QWidget::event(event);
        ++presses;
        return true;
    }
};

QPixmap knob(int width, int height, const QColor &color = Qt::red)
{
    QPixmap pixmap(width, height);
    pixmap.fill(color);
    return pixmap;
}

} // namespace

class tst_SliderEx : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_style = new CCommonControlStyle; }
    void cleanupTestCase() { delete m_style; }
    void pressDragRelease();
    void clickPlaces_data();
    void clickPlaces();
    void everyPlaceBeginsADrag();
    void otherButtonsAndWheelPass();
    void keys_data();
    void keys();
    void cursorAndFocusFrame();
    void knobImages();

private:
    void prepare(CSliderEx &slider, Qt::Orientation orientation = Qt::Horizontal, QSize size = QSize(200, 30)) const
    {
        slider.setStyle(m_style);
        slider.setOrientation(orientation);
        slider.setRange(0, 100);
        slider.resize(size);
    }

    CCommonControlStyle *m_style = nullptr;
};

void tst_SliderEx::pressDragRelease()
{
    CSliderEx slider(nullptr);
    prepare(slider);
    QStringList told;
    connect(
        &slider, &QSlider::sliderPressed, this, [&] { told.append(QStringLiteral("pressed")); });
    connect(
        &slider, &QSlider::sliderReleased, this, [&] { told.append(QStringLiteral("released")); });
    connect(
        &slider, &QSlider::valueChanged, this, [&](int value) { told.append(QString::number(value)); });
    connect(
        &slider, &CSliderEx::tempSliderPressed, this,
        [&](int position) { told.append(QStringLiteral("press at %1").arg(position)); });
    connect(&slider, &CSliderEx::tempSliderReleased, this,
            [&](int position) { told.append(QStringLiteral("release at %1").arg(position)); });

    QTest::mousePress(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(100, 15));
    // The class's own connection is the first one of the two.
    QCOMPARE(told.join(QLatin1Char(',')), QStringLiteral("50,press at 50,pressed"));
    slider.grab();
    QVERIFY(slider.isSliderDown() && slider.handleRect().contains(100, 15));
    told.clear();
    QMouseEvent move(QEvent::MouseMove, QPointF(138, 15), QPointF(138, 15), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(&slider, &move);
    QCOMPARE(told, QStringList(QStringLiteral("70")));
    told.clear();
    QTest::mouseRelease(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(138, 15));
    QCOMPARE(told.join(QLatin1Char(',')), QStringLiteral("release at 70,released"));
    QVERIFY(!slider.isSliderDown());

    told.clear();
    slider.slot_sliderPressed();
    slider.slot_sliderReleased();
    QCOMPARE(told.join(QLatin1Char(',')), QStringLiteral("press at 70,release at 70"));
}

// 200 pixels of track less the handle's length are worth 0 to 100; five pixels are taken off x.
void tst_SliderEx::clickPlaces_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<int>("knobWidth"); // 0 for the drawn handle
    QTest::addColumn<bool>("inverted");
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<int>("expected");
    QTest::newRow("left of the track") << Qt::Horizontal << 0 << false << QPoint(0, 10) << 0;
    QTest::newRow("quarter") << Qt::Horizontal << 0 << false << QPoint(5 + 48, 10) << 25;
    QTest::newRow("last pixel") << Qt::Horizontal << 0 << false << QPoint(199, 10) << 100;
    QTest::newRow("wide knob") << Qt::Horizontal << 100 << false << QPoint(5 + 25, 10) << 25;
    QTest::newRow("inverted") << Qt::Horizontal << 0 << true << QPoint(5 + 48, 10) << 25;
    QTest::newRow("vertical") << Qt::Vertical << 0 << false << QPoint(10, 48) << 25;
    QTest::newRow("vertical, inverted") << Qt::Vertical << 0 << true << QPoint(10, 48) << 25;
    QTest::newRow("vertical, wide knob") << Qt::Vertical << 100 << true << QPoint(10, 25) << 25;
}

void tst_SliderEx::clickPlaces()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(int, knobWidth);
    QFETCH(bool, inverted);
    QFETCH(QPoint, point);
    QFETCH(int, expected);
    CSliderEx slider(nullptr);
    prepare(slider, orientation, orientation == Qt::Horizontal ? QSize(200, 30) : QSize(30, 200));
    slider.setInvertedAppearance(inverted);
    slider.setValue(100 - expected); // elsewhere; that is on the handle of an upright slider, which grows upwards
    if (knobWidth > 0)
        slider.setKnobImage(knob(knobWidth, 20));
    QList<int> values;
    connect(&slider, &QSlider::valueChanged, this, [&](int value) { values.append(value); });
    QTest::mousePress(&slider, Qt::LeftButton, Qt::NoModifier, point);
    // Where the handle has jumped away from the pointer, QSlider goes on from there.
    QCOMPARE(values.value(0, -1), expected);
}

// Also between two values that are further apart than the handle is long, and above and below it.
void tst_SliderEx::everyPlaceBeginsADrag()
{
    CSliderEx slider(nullptr);
    prepare(slider, Qt::Horizontal, QSize(180, 40));
    slider.setRange(0, 7);
    int previous = 0;
    for (int x = 1; x < slider.width(); ++x) { // (0, 0) is the middle to QTest
        const QPoint point(x, x % slider.height());
        QTest::mousePress(&slider, Qt::LeftButton, Qt::NoModifier, point);
        QVERIFY2(slider.isSliderDown(), qPrintable(QString::number(x)));
        const int value = slider.value();
        QVERIFY2(value == previous || value == previous + 1, qPrintable(QString::number(x)));
        previous = value;
        QTest::mouseMove(&slider, point + QPoint(0, 1));
        QCOMPARE(slider.value(), value);
        QTest::mouseRelease(&slider, Qt::LeftButton, Qt::NoModifier, point + QPoint(0, 1));
    }
    QCOMPARE(previous, 7);
}

void tst_SliderEx::otherButtonsAndWheelPass()
{
    Parent parent;
    CSliderEx slider(&parent);
    prepare(slider);
    parent.show();
    QApplication::setActiveWindow(&parent);
    QVERIFY(QTest::qWaitForWindowActive(&parent));
    slider.setFocusPolicy(Qt::TabFocus); // what Qt itself focuses on a click is not the question
    parent.setFocus();
    int pressed = 0;
    connect(&slider, &CSliderEx::tempSliderPressed, this, [&] { ++pressed; });
    for (const auto button : {Qt::RightButton, Qt::MiddleButton})
        QTest::mouseClick(&slider, button, Qt::NoModifier, QPoint(100, 15));
    QVERIFY(pressed == 0 && slider.value() == 0 && !slider.hasFocus());
    QCOMPARE(parent.presses, 2);
    QTest::mouseClick(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(100, 15));
    QVERIFY(pressed == 1 && slider.hasFocus());
    QCOMPARE(parent.presses, 2);

    QWheelEvent wheel(QPointF(100, 15), QPointF(100, 15), QPoint(), QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    static_cast<QObject &>(slider).event(&wheel); // the application passes on only what the window system sent
    QCOMPARE(slider.value(), 50);
    QVERIFY(!wheel.isAccepted());
}

void tst_SliderEx::keys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("left") << int(Qt::Key_Left) << 50 << 49 << true;
    QTest::newRow("down") << int(Qt::Key_Down) << 50 << 49 << true;
    QTest::newRow("right") << int(Qt::Key_Right) << 50 << 51 << true;
    QTest::newRow("up") << int(Qt::Key_Up) << 50 << 51 << true;
    QTest::newRow("page up") << int(Qt::Key_PageUp) << 50 << 60 << true;
    QTest::newRow("page down") << int(Qt::Key_PageDown) << 50 << 40 << true;
    QTest::newRow("page up at the end") << int(Qt::Key_PageUp) << 95 << 100 << true;
    QTest::newRow("up at the maximum") << int(Qt::Key_Up) << 100 << 100 << true;
    QTest::newRow("home") << int(Qt::Key_Home) << 50 << 50 << false;
}

void tst_SliderEx::keys()
{
    QFETCH(int, key);
    QFETCH(int, from);
    CSliderEx slider(nullptr);
    prepare(slider);
    slider.setSingleStep(7);
    slider.setPageStep(33);
    slider.setInvertedControls(true);
    slider.setValue(from);
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(&slider, &event);
    QTEST(slider.value(), "to");
    QTEST(event.isAccepted(), "accepted");
}

void tst_SliderEx::cursorAndFocusFrame()
{
    struct FrameStyle : public CCommonControlStyle
    {
        void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                           const QWidget *widget) const override
        {
            frames += element == PE_FrameFocusRect ? 1 : 0;
            CCommonControlStyle::drawPrimitive(element, option, painter, widget);
        }
        mutable int frames = 0;
    } style;
    CSliderEx slider(nullptr);
    slider.setStyle(&style);
    Pointer::enter(slider);
    QCOMPARE(slider.cursor().shape(), Qt::PointingHandCursor);
    Pointer::leave(slider);
    QCOMPARE(slider.cursor().shape(), Qt::ArrowCursor);

    slider.grab();
    QCOMPARE(style.frames, 0);
    slider.show();
    QApplication::setActiveWindow(&slider);
    slider.setFocus();
    QTRY_VERIFY(slider.hasFocus());
    style.frames = 0;
    slider.grab();
    QVERIFY(style.frames > 0);
}

void tst_SliderEx::knobImages()
{
    QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("knob.png"));
    QVERIFY(knob(20, 30, Qt::blue).save(path));
    CSliderEx slider(nullptr);
    prepare(slider, Qt::Horizontal, QSize(200, 40));
    slider.grab();
    QCOMPARE(slider.handleRect().size(), QSize(10, 18));
    slider.setKnobImage(path);
    QCOMPARE(slider.knobImage().size(), QSize(20, 30));
    slider.setValue(50);
    const QImage image = slider.grab().toImage();
    QCOMPARE(slider.handleRect(), QRect(1 + 89, 19 - 15, 20, 30));
    QCOMPARE(Picture::colorAt(image, 90, 4), QStringLiteral("#ff0000ff"));
    QCOMPARE(Picture::colorAt(image, 109, 33), QStringLiteral("#ff0000ff"));
    slider.setKnobImage(directory.filePath(QStringLiteral("missing.png")));
    QVERIFY(slider.knobImage().isNull());
    slider.grab();
    QCOMPARE(slider.handleRect().size(), QSize(10, 18));

    slider.show();
    QVERIFY(QTest::qWaitForWindowExposed(&slider));
    QCoreApplication::processEvents();
    PaintCounter counter;
    slider.installEventFilter(&counter);
    slider.setKnobImage(knob(8, 12));
    QTRY_VERIFY(counter.paints > 0);
    QCOMPARE(slider.handleRect().size(), QSize(8, 12));
    QVERIFY(knob(9, 9).save(path));
    counter.paints = 0;
    slider.setKnobImage(path);
    QTRY_VERIFY(counter.paints > 0);
}

HOUSE_TEST_MAIN(tst_SliderEx)
#include "tst_SliderEx.moc"
