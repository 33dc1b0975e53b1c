// The range slider and the zoom slider under a real pointer, in real windows.
#include "RealPointer.h"
#include "helpers/HouseTest.h"

#include "ButtonEx/ButtonEx.h"
#include "SliderEx/DSliderEx.h"
#include "SliderEx/SliderEx.h"
#include "SliderEx/ZoomSlider.h"

#include <QAccessible>
#include <QApplication>

namespace {

constexpr int leftButton = 1;
constexpr int middleButton = 2;

} // namespace

class tst_SliderDrags : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void bothHandlesFollowThePointer_data();
    void bothHandlesFollowThePointer();
    void zoomSliderByEachOfItsParts();

private:
    QRect handle(int number) const { return QAccessible::queryAccessibleInterface(m_range)->child(number)->rect(); }
    int at(int number) const
    {
        return QAccessible::queryAccessibleInterface(m_range)->child(number)->valueInterface()->currentValue().toInt();
    }

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
    RealPointer::clickAt(m_window->mapToGlobal(QPoint(20, 20)));
    QTRY_VERIFY(QApplication::activeWindow() == m_window.get());
}

void tst_SliderDrags::cleanup()
{
    m_window.reset();
    HouseTest::cleanup();
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
    RealPointer::moveTo(lower);
    QTRY_COMPARE(m_range->cursor().shape(), Qt::PointingHandCursor);
    RealPointer::press(button);
    RealPointer::moveTo(lower + QPoint(100, 0));
    QTRY_VERIFY(qAbs(handle(0).center().x() - lower.x() - 100) <= 4);
    RealPointer::moveTo(lower + QPoint(120, 80)); // a drag may leave the slider
    QTRY_VERIFY(qAbs(handle(0).center().x() - lower.x() - 120) <= 4);
    RealPointer::release(button);
    QTRY_COMPARE(m_told, QStringList(QStringLiteral("0 at %1").arg(at(0))));

    const QPoint upper = handle(1).center();
    RealPointer::moveTo(upper);
    RealPointer::press(button);
    RealPointer::moveTo(upper - QPoint(160, 0));
    QTRY_VERIFY(qAbs(handle(1).center().x() - upper.x() + 160) <= 4);
    RealPointer::release(button);
    QTRY_COMPARE(m_told.last(), QStringLiteral("1 at %1").arg(at(1)));
    const int last = at(1);
    QVERIFY(at(0) > 25 && at(0) < 35 && last > 55 && last < 65);
    RealPointer::key("Left"); // the drag has brought the focus
    QTRY_COMPARE(at(1), last - 1);
}

void tst_SliderDrags::zoomSliderByEachOfItsParts()
{
    auto *slider = m_zoom->findChild<CSliderEx *>(QStringLiteral("Slider"));
    const auto *larger = m_zoom->findChild<CButtonEx *>(QStringLiteral("ZoomOut"));
    RealPointer::moveTo(RealPointer::middleOf(slider));
    RealPointer::press(leftButton); // the handle comes to the pointer
    QTRY_VERIFY(qAbs(m_zoom->sliderPosition() - 50) <= 2);
    RealPointer::moveTo(RealPointer::middleOf(slider) + QPoint(50, 0));
    QTRY_VERIFY(m_zoom->sliderPosition() > 60);
    RealPointer::release(leftButton);
    QTRY_VERIFY(!slider->isSliderDown());
    const int before = m_zoom->sliderPosition();
    m_told.clear();
    RealPointer::clickAt(RealPointer::middleOf(larger));
    QTRY_COMPARE(m_told, QStringList(QStringLiteral("zoom %1").arg(before + 1)));
}

HOUSE_TEST_MAIN(tst_SliderDrags)
#include "tst_SliderDrags.moc"
