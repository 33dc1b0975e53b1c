// The range slider and the zoom slider under a real pointer, in real windows.
#include "helpers/HouseTest.h"

#include "ButtonEx/ButtonEx.h"
#include "SliderEx/DSliderEx.h"
#include "SliderEx/SliderEx.h"
#include "SliderEx/ZoomSlider.h"

#include <QAccessible>
#include <QApplication>
#include <QDir>
#include <QProcess>
#include <QScreen>

namespace {

constexpr int leftButton = 1;
constexpr int middleButton = 2;
constexpr int rightButton = 3;
constexpr int wheelUp = 4;

void xdotool(const QStringList &arguments)
{
    QCOMPARE(QProcess::execute(QStringLiteral("xdotool"), arguments), 0);
}

void movePointer(const QPoint &global)
{
    xdotool({QStringLiteral("mousemove"), QString::number(global.x()), QString::number(global.y())});
}

void press(int button)
{
    xdotool({QStringLiteral("mousedown"), QString::number(button)});
}

void release(int button)
{
    xdotool({QStringLiteral("mouseup"), QString::number(button)});
}

void click(int button)
{
    xdotool({QStringLiteral("click"), QString::number(button)});
}

void pressKey(const char *key)
{
    xdotool({QStringLiteral("key"), QLatin1String(key)});
}

} // namespace

class tst_SliderDrags : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void bothHandlesFollowThePointer_data();
    void bothHandlesFollowThePointer();
    void handlesDoNotPass();
    void rightButtonAndWheelDoNothing();
    void keysMoveTheHandleThatWasDragged();
    void zoomSliderByEachOfItsParts();

private:
    QRect handle(int number) const { return QAccessible::queryAccessibleInterface(m_range)->child(number)->rect(); }
    int at(int number) const
    {
        return QAccessible::queryAccessibleInterface(m_range)->child(number)->valueInterface()->currentValue().toInt();
    }
    void takePicture(const char *step) const;

    std::unique_ptr<QWidget> m_window;
    CDSliderEx *m_range = nullptr;
    CZoomSlider *m_zoom = nullptr;
    QStringList m_told;
};

void tst_SliderDrags::init()
{
    HouseTest::init();
    m_window = std::make_unique<QWidget>();
    m_window->setGeometry(200, 200, 500, 300);
    m_zoom = new CZoomSlider(m_window.get());
    m_zoom->setGeometry(40, 150, 310, 40);
    m_zoom->findChild<CButtonEx *>(QStringLiteral("ZoomOut"))->setFixedSize(30, 30); // one that a pointer can hit
    m_zoom->setMaximum(100);
    m_range = new CDSliderEx(m_window.get());
    m_range->setGeometry(40, 60, 410, 30);
    m_range->setMaximum(100);
    m_told.clear();
    connect(
        m_range, &CDSliderEx::sliderReleased, this,
        [this](int value, int number) { m_told.append(QStringLiteral("%1 at %2").arg(number).arg(value)); });
    connect(m_zoom, &CZoomSlider::zoomChanged, this,
            [this](int value) { m_told.append(QStringLiteral("zoom %1").arg(value)); });
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    movePointer(m_window->mapToGlobal(QPoint(20, 20)));
    click(leftButton);
    QTRY_VERIFY(QApplication::activeWindow() == m_window.get());
}

void tst_SliderDrags::cleanup()
{
    m_window.reset();
    HouseTest::cleanup();
}

// For eyes: with TST_PICTURES set to a directory, each step leaves a picture of the screen there.
void tst_SliderDrags::takePicture(const char *step) const
{
    const QString directory = qEnvironmentVariable("TST_PICTURES");
    if (directory.isEmpty())
        return;
    QVERIFY(QApplication::primaryScreen()->grabWindow(0).save(QDir(directory).filePath(
        QStringLiteral("%1-%2.png").arg(QLatin1String(QTest::currentTestFunction()), QLatin1String(step)))));
}

void tst_SliderDrags::bothHandlesFollowThePointer_data()
{
    QTest::addColumn<int>("button");
    QTest::newRow("left") << leftButton;
    QTest::newRow("middle") << middleButton;
}

void tst_SliderDrags::bothHandlesFollowThePointer()
{
    QFETCH(int, button);
    const QPoint lower = handle(0).center();
    movePointer(lower);
    QTRY_COMPARE(m_range->cursor().shape(), Qt::PointingHandCursor);
    press(button);
    movePointer(lower + QPoint(100, 0));
    QTRY_VERIFY(qAbs(handle(0).center().x() - lower.x() - 100) <= 4);
    takePicture("1-lower");
    movePointer(lower + QPoint(120, 80)); // a drag may leave the slider
    QTRY_VERIFY(qAbs(handle(0).center().x() - lower.x() - 120) <= 4);
    release(button);
    QTRY_COMPARE(m_told, QStringList(QStringLiteral("0 at %1").arg(at(0))));

    const QPoint upper = handle(1).center();
    movePointer(upper);
    press(button);
    movePointer(upper - QPoint(160, 0));
    QTRY_VERIFY(qAbs(handle(1).center().x() - upper.x() + 160) <= 4);
    takePicture("2-upper");
    release(button);
    QTRY_COMPARE(m_told.last(), QStringLiteral("1 at %1").arg(at(1)));
    QVERIFY(at(0) > 25 && at(0) < 35 && at(1) > 55 && at(1) < 65);
}

void tst_SliderDrags::handlesDoNotPass()
{
    const QPoint start = handle(0).center();
    movePointer(start);
    press(leftButton);
    movePointer(start + QPoint(360, 0)); // four pixels are a value
    QTRY_VERIFY(at(0) > 85 && at(0) < 93);
    const int last = at(0);
    movePointer(handle(1).center() + QPoint(30, 0));
    VERIFY_HOLDS_FOR(at(0) == last && at(1) == 100, 300);
    movePointer(start + QPoint(200, 0)); // back again
    QTRY_VERIFY(at(0) > 45 && at(0) < 55);
    movePointer(start + QPoint(360, 0));
    QTRY_COMPARE(at(0), last);
    release(leftButton);
    QTRY_COMPARE(m_told, QStringList(QStringLiteral("0 at %1").arg(last)));
    takePicture("1-near");
}

void tst_SliderDrags::rightButtonAndWheelDoNothing()
{
    movePointer(handle(0).center());
    press(rightButton);
    movePointer(handle(0).center() + QPoint(80, 0));
    release(rightButton);
    click(wheelUp);
    movePointer(handle(0).center() + QPoint(200, 0)); // on the groove
    click(leftButton);
    VERIFY_HOLDS_FOR(m_told.isEmpty() && at(0) == 0 && at(1) == 100, 300);
}

void tst_SliderDrags::keysMoveTheHandleThatWasDragged()
{
    movePointer(handle(1).center());
    click(leftButton);
    QTRY_VERIFY(m_range->hasFocus());
    pressKey("Page_Down");
    QTRY_COMPARE(at(1), 90);
    pressKey("Left");
    QTRY_COMPARE(at(1), 89);
    movePointer(handle(0).center());
    click(leftButton);
    pressKey("Up");
    QTRY_COMPARE(at(0), 1);
    pressKey("Home");
    QTRY_COMPARE(m_told.join(QLatin1String(", ")),
                 QStringLiteral("1 at 100, 1 at 90, 1 at 89, 0 at 0, 0 at 1, 0 at 1"));
    pressKey("Tab");
    QTRY_VERIFY(!m_range->hasFocus());
}

void tst_SliderDrags::zoomSliderByEachOfItsParts()
{
    auto *slider = m_zoom->findChild<CSliderEx *>(QStringLiteral("Slider"));
    const auto *larger = m_zoom->findChild<CButtonEx *>(QStringLiteral("ZoomOut"));
    movePointer(slider->mapToGlobal(slider->rect().center()));
    press(leftButton); // the handle comes to the pointer
    QTRY_VERIFY(qAbs(m_zoom->sliderPosition() - 50) <= 2);
    movePointer(slider->mapToGlobal(slider->rect().center() + QPoint(50, 0)));
    QTRY_VERIFY(m_zoom->sliderPosition() > 60);
    release(leftButton);
    QTRY_VERIFY(!slider->isSliderDown());
    const int before = m_zoom->sliderPosition();
    movePointer(larger->mapToGlobal(larger->rect().center()));
    m_told.clear();
    click(leftButton);
    QTRY_COMPARE(m_told, QStringList(QStringLiteral("zoom %1").arg(before + 1)));
    takePicture("1-stepped");
}

HOUSE_TEST_MAIN(tst_SliderDrags)
#include "tst_SliderDrags.moc"
