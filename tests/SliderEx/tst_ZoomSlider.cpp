#include "helpers/HouseTest.h"

#include "ButtonEx/ButtonEx.h"
#include "SliderEx/SliderEx.h"
#include "SliderEx/ZoomSlider.h"

#include <QAccessible>
#include <QApplication>
#include <QGridLayout>
#include <QHelpEvent>
#include <QTemporaryDir>
#include <QToolTip>
#include <QTranslator>

namespace {

QPixmap picture(int width, int height, const QColor &color = Qt::red)
{
    QPixmap pixmap(width, height);
    pixmap.fill(color);
    return pixmap;
}

/** Has the press areas that nothing in the library sets. */
struct WithAreas : public CZoomSlider
{
    using CZoomSlider::CZoomSlider;
    void setAreas(const QRect &smaller, const QRect &larger)
    {
        smallerRect = smaller;
        largerRect = larger;
    }
};

/** Says every text of this library in capitals. */
struct Capitals : public QTranslator
{
    QString translate(const char *, const char *text, const char *, int) const override
    {
        return QString::fromLatin1(text).toUpper();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class tst_ZoomSlider : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void parts();
    void withoutImages();
    void imagesAreTheParts();
    void dragTells();
    void buttonsStep_data();
    void buttonsStep();
    void slotsTell();
    void keysWheelAndOtherButtons();
    void tabOrder();
    void pressAreas();
    void ticks();
    void sameFromRightToLeft();
    void namesForAssistants();
    void toolTipOfTheWholeControl();

private:
    /** From 0 to 100, at 50, with images of 20 x 16 and 24 x 18, which writes its signals into m_told. */
    template <typename Slider = CZoomSlider>
    std::unique_ptr<Slider> make()
    {
        auto slider = std::make_unique<Slider>(nullptr, m_smaller, m_larger);
        slider->setMaximum(100);
        slider->setSliderPosition(50);
        slider->resize(248, 40);
        slider->show();
        m_told.clear();
        record(slider.get(), "zoom", &CZoomSlider::zoomChanged);
        record(slider.get(), "pressed", &CZoomSlider::temperatureSliderPressed);
        record(slider.get(), "released", &CZoomSlider::temperatureSliderReleased);
        record(slider.get(), "moved", &CZoomSlider::signal_SliderMoved);
        return slider;
    }
    void record(const CZoomSlider *slider, const char *name, void (CZoomSlider::*signal)(int))
    {
        connect(
            slider, signal, this,
            [this, name](int value) { m_told.append(QStringLiteral("%1 %2").arg(QLatin1String(name)).arg(value)); });
    }
    QString takeTold()
    {
        const QString all = m_told.join(QLatin1String(", "));
        m_told.clear();
        return all;
    }

    QTemporaryDir m_directory;
    QString m_smaller;
    QString m_larger;
    QStringList m_told;
};

namespace {

CSliderEx *sliderOf(CZoomSlider &slider)
{
    return slider.findChild<CSliderEx *>(QStringLiteral("Slider"));
}

CButtonEx *buttonOf(CZoomSlider &slider, const char *name)
{
    return slider.findChild<CButtonEx *>(QLatin1String(name));
}

} // namespace

void tst_ZoomSlider::initTestCase()
{
    m_smaller = m_directory.filePath(QStringLiteral("smaller.png"));
    m_larger = m_directory.filePath(QStringLiteral("larger.png"));
    QVERIFY(picture(20, 16).save(m_smaller) && picture(24, 18, Qt::blue).save(m_larger));
}

void tst_ZoomSlider::parts()
{
    const auto slider = make();
    const CButtonEx *smaller = buttonOf(*slider, "ZoomIn");
    const CButtonEx *larger = buttonOf(*slider, "ZoomOut");
    QVERIFY(smaller->buttonStyle() == CButtonEx::BSEX_Transparent && larger->buttonStyle() == smaller->buttonStyle());
    QCOMPARE(sliderOf(*slider)->minimumHeight(), 30);
    QCOMPARE(smaller->maximumSize(), QSize(24, 20));
    QVERIFY(smaller->minimumWidth() == 0); // the larger one is fixed, this one is not
    QVERIFY(larger->minimumSize() == QSize(28, 22) && larger->maximumSize() == larger->minimumSize());

    QCOMPARE(slider->layout()->objectName(), QStringLiteral("gridLayout"));
    QCOMPARE(slider->layout()->itemAt(0)->layout()->objectName(), QStringLiteral("gridLayout1"));
    slider->layout()->activate();
    QVERIFY(smaller->x() == 0 && sliderOf(*slider)->x() == 24);
    QVERIFY(sliderOf(*slider)->width() == 248 - 24 - 28 && larger->x() == 248 - 28);
}

void tst_ZoomSlider::withoutImages()
{
    CZoomSlider slider(nullptr);
    slider.setSmallerButtonImage(m_smaller);
    slider.setLargerButtonImage(m_larger);
    QCOMPARE(slider.smallerButtonImage().size(), QSize(20, 16)); // and yet their places stay
    QCOMPARE(buttonOf(slider, "ZoomIn")->maximumSize(), QSize(4, 4));
    QCOMPARE(buttonOf(slider, "ZoomOut")->size(), QSize(4, 4));
    record(&slider, "pressed", &CZoomSlider::temperatureSliderPressed);
    m_told.clear();
    sliderOf(slider)->slot_sliderPressed();
    QVERIFY(m_told.isEmpty());
    slider.onSliderPressed(0);
    QCOMPARE(takeTold(), QStringLiteral("pressed 0"));
}

void tst_ZoomSlider::imagesAreTheParts()
{
    const auto slider = make();
    QCOMPARE(slider->smallerButtonImage().size(), QSize(20, 16));
    QCOMPARE(slider->largerButtonImage().size(), QSize(24, 18));
    slider->setLargerButtonImage(picture(10, 10));
    QCOMPARE(buttonOf(*slider, "ZoomOut")->pixmap().size(), QSize(10, 10));
    slider->setSmallerButtonImage(QStringLiteral("missing.png"));
    QVERIFY(slider->smallerButtonImage().isNull());
    slider->setKnobImage(m_larger);
    QCOMPARE(sliderOf(*slider)->knobImage().size(), QSize(24, 18));
    slider->setKnobImage(QPixmap());
    QVERIFY(slider->knobImage().isNull());
}

void tst_ZoomSlider::dragTells()
{
    for (const bool snapping : {false, true}) {
        const auto slider = make();
        slider->setSliderToSnapping(snapping);
        CSliderEx *inner = sliderOf(*slider);
        inner->resize(210, 30); // 200 pixels for 0 to 100
        QTest::mousePress(inner, Qt::LeftButton, Qt::NoModifier, QPoint(5 + 40, 15));
        const int grip = 45 - 1 - qRound(20 * 198 / 100.0); // from the handle's left edge, which is drawn a pixel in
        for (const int x : {grip + 120, grip + 120, grip + 122}) {
            QMouseEvent move(QEvent::MouseMove, QPointF(x, 15), QPointF(x, 15), Qt::NoButton, Qt::LeftButton,
                             Qt::NoModifier);
            QCoreApplication::sendEvent(inner, &move);
        }
        QTest::mouseRelease(inner, Qt::LeftButton, Qt::NoModifier, QPoint(grip + 122, 15));
        QCOMPARE(takeTold(), snapping ? QStringLiteral("moved 20, pressed 20, moved 60, moved 61, released 61")
                                      : QStringLiteral("zoom 20, pressed 20, zoom 60, zoom 61, released 61"));
    }
}

void tst_ZoomSlider::buttonsStep_data()
{
    QTest::addColumn<bool>("snapping");
    QTest::addColumn<int>("from");
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("to");
    const QString in = QStringLiteral("ZoomIn");
    const QString out = QStringLiteral("ZoomOut");
    QTest::newRow("in") << false << 50 << in << 49;
    QTest::newRow("out, snapping") << true << 50 << out << 51;
    QTest::newRow("in at the minimum") << false << 10 << in << 10;
    QTest::newRow("out at the maximum") << true << 100 << out << 100;
}

void tst_ZoomSlider::buttonsStep()
{
    QFETCH(bool, snapping);
    QFETCH(int, from);
    QFETCH(QString, button);
    QFETCH(int, to);
    const auto slider = make();
    slider->setMinimum(10);
    slider->setSliderToSnapping(snapping);
    slider->setSliderPosition(from);
    takeTold();
    QTest::mouseClick(slider->findChild<CButtonEx *>(button), Qt::LeftButton);
    QCOMPARE(takeTold(), QStringLiteral("zoom %1").arg(to));
    QVERIFY(slider->sliderPosition() == to && sliderOf(*slider)->value() == to);
    slider->setSliderPosition(70); // the slider's signals are free again
    QCOMPARE(takeTold(), snapping ? QStringLiteral("moved 70") : QStringLiteral("zoom 70"));
}

void tst_ZoomSlider::slotsTell()
{
    const auto slider = make();
    slider->setZoomed(77);
    slider->onSliderPressed(1);
    slider->onSliderReleased(2);
    QCOMPARE(takeTold(), QStringLiteral("zoom 77, pressed 50, released 50"));
    QCOMPARE(slider->sliderPosition(), 50);
    slider->setMaximum(30); // pulls the position along
    QCOMPARE(takeTold(), QStringLiteral("zoom 30"));
    slider->setMinimum(40); // and a maximum that is below it
    QVERIFY(slider->minimum() == 40 && slider->maximum() == 40 && slider->sliderPosition() == 40);
}

void tst_ZoomSlider::keysWheelAndOtherButtons()
{
    const auto slider = make();
    QTest::keyClick(sliderOf(*slider), Qt::Key_PageUp);
    QTest::keyClick(buttonOf(*slider, "ZoomIn"), Qt::Key_Space);
    QCOMPARE(takeTold(), QStringLiteral("zoom 60, zoom 59"));
    QTest::mouseClick(buttonOf(*slider, "ZoomIn"), Qt::RightButton);
    QTest::mouseClick(sliderOf(*slider), Qt::RightButton);
    QTest::mouseMove(buttonOf(*slider, "ZoomIn"));
    QTest::mousePress(buttonOf(*slider, "ZoomIn"), Qt::LeftButton);
    QTest::mouseRelease(buttonOf(*slider, "ZoomIn"), Qt::LeftButton, Qt::NoModifier,
                        QPoint(-20, 5)); // let go beside it
    QVERIFY(m_told.isEmpty());
    slider->setEnabled(false);
    QTest::mouseClick(buttonOf(*slider, "ZoomIn"), Qt::LeftButton);
    QVERIFY(m_told.isEmpty());
}

void tst_ZoomSlider::tabOrder()
{
    const auto slider = make();
    QApplication::setActiveWindow(slider.get());
    QVERIFY(QTest::qWaitForWindowActive(slider.get()));
    sliderOf(*slider)->setFocus();
    QTest::keyClick(sliderOf(*slider), Qt::Key_Tab);
    QVERIFY(buttonOf(*slider, "ZoomOut")->hasFocus());
    QTest::keyClick(buttonOf(*slider, "ZoomOut"), Qt::Key_Tab);
    QVERIFY(buttonOf(*slider, "ZoomIn")->hasFocus());
    QTest::keyClick(buttonOf(*slider, "ZoomIn"), Qt::Key_Tab);
    QVERIFY(sliderOf(*slider)->hasFocus());
}

void tst_ZoomSlider::pressAreas()
{
    const auto slider = make<WithAreas>();
    QTest::mousePress(slider.get(), Qt::LeftButton, Qt::NoModifier, QPoint(1, 1));
    QVERIFY(m_told.isEmpty());
    slider->setAreas(QRect(0, 0, 10, 5), QRect(200, 0, 10, 5));
    QTest::mousePress(slider.get(), Qt::LeftButton, Qt::NoModifier, QPoint(9, 4)); // the edge belongs to it
    QCOMPARE(takeTold(), QStringLiteral("zoom 0, zoom 0")); // the slider's change, and the press itself
    QTest::mousePress(slider.get(), Qt::LeftButton, Qt::NoModifier, QPoint(200, 0));
    QCOMPARE(takeTold(), QStringLiteral("zoom 100, zoom 100"));
    slider->setSliderToSnapping(true);
    QTest::mousePress(slider.get(), Qt::RightButton, Qt::NoModifier, QPoint(200, 0));
    QCOMPARE(takeTold(), QStringLiteral("moved 100"));
}

void tst_ZoomSlider::ticks()
{
    const auto slider = make();
    slider->setMaximum(7);
    for (const auto &[count, interval] : {std::pair(4, 25), {3, 33}, {1, 100}, {101, 0}, {0, 0}, {-4, 0}}) {
        slider->setTicks(QSlider::TicksBelow, count);
        QCOMPARE(sliderOf(*slider)->tickPosition(), QSlider::TicksBelow);
        QCOMPARE(sliderOf(*slider)->tickInterval(), interval);
    }
    slider->setTicks(QSlider::NoTicks, 4);
    QCOMPARE(sliderOf(*slider)->tickPosition(), QSlider::NoTicks);
}

void tst_ZoomSlider::sameFromRightToLeft()
{
    QWidget window;
    window.setLayoutDirection(Qt::RightToLeft);
    CZoomSlider slider(&window, m_smaller, m_larger);
    slider.resize(248, 40);
    slider.layout()->activate();
    QVERIFY(buttonOf(slider, "ZoomIn")->x() == 0 && buttonOf(slider, "ZoomOut")->x() > 200);
    // The handle goes where it is pressed, so that a drag can begin.
    CSliderEx *inner = sliderOf(slider);
    QTest::mousePress(inner, Qt::LeftButton, Qt::NoModifier, QPoint(30, 15));
    QVERIFY(inner->isSliderDown() && inner->value() < 50);
}

void tst_ZoomSlider::namesForAssistants()
{
    const auto slider = make();
    const auto nameOf = [](QWidget *part) {
        return QAccessible::queryAccessibleInterface(part)->text(QAccessible::Name);
    };
    QCOMPARE(nameOf(buttonOf(*slider, "ZoomIn")), QStringLiteral("Smaller"));
    QCOMPARE(nameOf(sliderOf(*slider)), QStringLiteral("Zoom"));
    QCOMPARE(nameOf(buttonOf(*slider, "ZoomOut")), QStringLiteral("Larger"));
    QCOMPARE(QAccessible::queryAccessibleInterface(sliderOf(*slider))->valueInterface()->currentValue(), QVariant(50));

    buttonOf(*slider, "ZoomOut")->setAccessibleName(QStringLiteral("Warmer")); // the application's own stays
    Capitals translator;
    QCoreApplication::installTranslator(&translator);
    QTRY_COMPARE(nameOf(buttonOf(*slider, "ZoomIn")), QStringLiteral("SMALLER"));
    QCOMPARE(nameOf(sliderOf(*slider)), QStringLiteral("ZOOM"));
    QCOMPARE(nameOf(buttonOf(*slider, "ZoomOut")), QStringLiteral("Warmer"));
    QCoreApplication::removeTranslator(&translator);
    QTRY_COMPARE(nameOf(sliderOf(*slider)), QStringLiteral("Zoom"));
}

void tst_ZoomSlider::toolTipOfTheWholeControl()
{
    const auto slider = make();
    slider->setToolTip(QStringLiteral("Size of the pictures"));
    for (QWidget *part :
         {static_cast<QWidget *>(sliderOf(*slider)), static_cast<QWidget *>(buttonOf(*slider, "ZoomIn"))}) {
        QToolTip::hideText();
        QTRY_VERIFY(!QToolTip::isVisible());
        QHelpEvent event(QEvent::ToolTip, QPoint(2, 2), part->mapToGlobal(QPoint(2, 2)));
        QCoreApplication::sendEvent(part, &event);
        QTRY_VERIFY(QToolTip::isVisible());
        QCOMPARE(QToolTip::text(), QStringLiteral("Size of the pictures"));
    }
    QToolTip::hideText();
}

HOUSE_TEST_MAIN(tst_ZoomSlider)
#include "tst_ZoomSlider.moc"
