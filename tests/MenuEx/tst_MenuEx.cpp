#include "helpers/HouseTest.h"

#include "MenuEx/MenuEx.h"

#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QStyleFactory>
#include <QTimer>

namespace {

/** An active window, without which no menu opens. */
struct ActiveWindow
{
    ActiveWindow()
    {
        window.setGeometry(100, 100, 300, 200);
        window.show();
        QApplication::setActiveWindow(&window);
        if (!QTest::qWaitForWindowActive(&window))
            QTest::qFail("no active window", __FILE__, __LINE__);
    }
    QWidget window;
};

void fill(CMenuEx &menu, int entries = 8)
{
    for (int i = 0; i < entries; ++i)
        menu.addAction(QStringLiteral("Entry %1").arg(i));
}

/** The geometries of a menu from its being shown to its full height. */
class GrowthRecorder : public QObject
{
public:
    explicit GrowthRecorder(QWidget *widget) : QObject(widget), m_widget(widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Resize && m_widget->isVisible())
            steps.append(m_widget->geometry());
        return false;
    }

    QList<QRect> steps;

private:
    QWidget *m_widget;
};

} // namespace

class tst_MenuEx : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void onlyUntitledMenusLookLikeTheHouse();
    void entries();
    void submenus();
    void unrollsDownwardInTenths();
    void unrollsUpwardBelowAWidget();
    void hidingDoesNotStopTheGrowth();
    void oneOpenAtATime();
    void needsAnActiveWindow();
    void deletedMenuIsForgotten();
    void pointerOnMenu();
    void rightButtonDoesNothing();
    void cursorFollowsEntries();
    void execMapsItsPoint();
    void outlines();
};

void tst_MenuEx::onlyUntitledMenusLookLikeTheHouse()
{
    const CMenuEx menu;
    QCOMPARE(menu.font().pixelSize(), 13);
    QCOMPARE(menu.cursor().shape(), Qt::PointingHandCursor);
    const CMenuEx titled(QStringLiteral("Title"));
    QVERIFY(titled.font() != menu.font());
    QCOMPARE(titled.cursor().shape(), Qt::ArrowCursor);
}

void tst_MenuEx::entries()
{
    CMenuEx menu(QStringLiteral("Title"));
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    const QIcon icon(pixmap);
    const std::unique_ptr<QAction> plain(menu.addMenuItem(QStringLiteral("Plain")));
    const std::unique_ptr<QAction> withIcon(menu.addMenuItem(QStringLiteral("With icon"), &icon));
    QCOMPARE(menu.actions(), QList<QAction *>() << plain.get() << withIcon.get());
    QVERIFY(plain->parent() == nullptr && plain->icon().isNull() && !withIcon->icon().isNull());
    QCOMPARE(plain->font().pixelSize(), 13);
    QCOMPARE(menu.font().pixelSize(), 13);
    QCOMPARE(menu.size(), menu.sizeHint());
}

void tst_MenuEx::submenus()
{
    CMenuEx menu;
    CMenuEx houseMenu(QStringLiteral("House"));
    QCOMPARE(menu.addMenu(&houseMenu), houseMenu.menuAction());
    QVERIFY(menu.addMenu(static_cast<QMenu *>(nullptr)) == nullptr);
    QMenu *plain = menu.addMenu(QStringLiteral("Plain"));
    QCOMPARE(plain->title(), QStringLiteral("Plain"));
    QCOMPARE(plain->metaObject(), &QMenu::staticMetaObject);
    QCOMPARE(menu.actions(), QList<QAction *>() << houseMenu.menuAction() << plain->menuAction());
}

void tst_MenuEx::unrollsDownwardInTenths()
{
    const ActiveWindow active;
    CMenuEx menu;
    fill(menu);
    const GrowthRecorder recorder(&menu);
    const int full = menu.sizeHint().height();
    const int step = full / 10;
    QElapsedTimer clock;
    clock.start();
    menu.popup(QPoint(500, 300)); // nothing of the application above
    QVERIFY(menu.height() <= 1);
    QTRY_COMPARE(menu.height(), full);
    QVERIFY2(clock.elapsed() >= 90, qPrintable(QString::number(clock.elapsed())));
    QVERIFY(recorder.steps.size() >= 10);
    for (const QRect &geometry : recorder.steps) {
        QCOMPARE(geometry.topLeft(), QPoint(500, 300));
        QVERIFY(geometry.height() == full || geometry.height() % step <= 1);
    }
}

void tst_MenuEx::unrollsUpwardBelowAWidget()
{
    const ActiveWindow active;
    CMenuEx menu;
    fill(menu, 3);
    const GrowthRecorder recorder(&menu);
    const int full = menu.sizeHint().height();
    const int step = static_cast<int>(full * 0.1);
    const QPoint position = active.window.geometry().bottomLeft() + QPoint(20, full - 20);
    menu.popup(position);
    QTRY_COMPARE(menu.height(), full);
    // The first step stands on the starting point, below the menu's place; each further one begins a step higher.
    const int start = position.y() + full;
    QVERIFY(recorder.steps.size() >= 10);
    int top = start;
    for (const QRect &geometry : recorder.steps) {
        if (geometry.height() <= 1)
            continue; // the menu as it was shown
        QCOMPARE(geometry.top(), top);
        top -= step;
    }
}

void tst_MenuEx::hidingDoesNotStopTheGrowth()
{
    const ActiveWindow active;
    CMenuEx menu;
    fill(menu);
    menu.popup(QPoint(500, 300));
    menu.hide();
    QVERIFY(menu.height() < menu.sizeHint().height());
    QTRY_COMPARE(menu.height(), menu.sizeHint().height());
    QVERIFY(menu.isHidden());
}

void tst_MenuEx::oneOpenAtATime()
{
    const ActiveWindow active;
    CMenuEx first;
    CMenuEx second;
    fill(first);
    fill(second);
    first.popup(QPoint(500, 300));
    QVERIFY(first.isVisible());
    second.popup(QPoint(500, 300));
    QVERIFY(!first.isVisible() && second.isVisible());
    QTRY_COMPARE(second.height(), second.sizeHint().height());
    second.popup(QPoint(10, 10)); // visible already: nothing at all
    QCOMPARE(second.geometry().topLeft(), QPoint(500, 300));
}

void tst_MenuEx::needsAnActiveWindow()
{
    QVERIFY(QApplication::activeWindow() == nullptr);
    CMenuEx menu;
    fill(menu);
    menu.popup(QPoint(500, 300));
    QVERIFY(menu.isHidden());
    QCOMPARE(CMenuEx::currentPopup, &menu); // and yet it takes the place
}

void tst_MenuEx::deletedMenuIsForgotten()
{
    const ActiveWindow active;
    {
        CMenuEx first;
        fill(first);
        first.popup(QPoint(500, 300));
        QVERIFY(first.isVisible());
    }
    QVERIFY(CMenuEx::currentPopup == nullptr);
    CMenuEx second;
    fill(second);
    second.popup(QPoint(500, 300));
    QVERIFY(second.isVisible());
}

void tst_MenuEx::pointerOnMenu()
{
    CMenuEx menu;
    QVERIFY(!menu.cursorOnMenu());
    Pointer::enter(menu);
    QVERIFY(menu.cursorOnMenu());
    Pointer::leave(menu);
    QVERIFY(!menu.cursorOnMenu());
}

void tst_MenuEx::rightButtonDoesNothing()
{
    const ActiveWindow active;
    CMenuEx menu;
    fill(menu);
    menu.popup(QPoint(500, 300));
    QTRY_COMPARE(menu.height(), menu.sizeHint().height());
    const QSignalSpy triggered(&menu, &QMenu::triggered);
    const QPoint entry = menu.actionGeometry(menu.actions().at(2)).center();
    QTest::mouseMove(&menu, entry);
    QTest::mousePress(&menu, Qt::RightButton, Qt::NoModifier, entry);
    QTest::mouseRelease(&menu, Qt::RightButton, Qt::NoModifier, entry);
    QCOMPARE(static_cast<int>(triggered.count()), 0);
    QVERIFY(menu.isVisible());
    QTest::mouseClick(&menu, Qt::LeftButton, Qt::NoModifier, entry);
    QCOMPARE(static_cast<int>(triggered.count()), 1);
    QCOMPARE(triggered.first().first().value<QAction *>(), menu.actions().at(2));
    QVERIFY(menu.isHidden());
}

void tst_MenuEx::cursorFollowsEntries()
{
    // A style decides whether a disabled entry can be the active one: this one lets it.
    const std::unique_ptr<QStyle> style(QStyleFactory::create(QStringLiteral("Windows")));
    CMenuEx menu;
    menu.setStyle(style.get());
    const std::unique_ptr<QAction> enabled(menu.addMenuItem(QStringLiteral("On")));
    const std::unique_ptr<QAction> disabled(menu.addMenuItem(QStringLiteral("Off")));
    disabled->setEnabled(false);
    menu.setActiveAction(disabled.get());
    QCOMPARE(menu.cursor().shape(), Qt::ArrowCursor);
    menu.setActiveAction(enabled.get());
    QCOMPARE(menu.cursor().shape(), Qt::PointingHandCursor);
}

void tst_MenuEx::execMapsItsPoint()
{
    const ActiveWindow active;
    CMenuEx menu;
    fill(menu);
    menu.move(300, 200);
    QPoint shownAt;
    QTimer::singleShot(0, &menu, [&] {
        shownAt = menu.pos();
        menu.setActiveAction(menu.actions().at(1));
        QTest::keyClick(&menu, Qt::Key_Return);
    });
    QCOMPARE(menu.exec(QPoint(20, 10)), menu.actions().at(1));
    QCOMPARE(shownAt, QPoint(320, 210));
}

void tst_MenuEx::outlines()
{
    CMenuEx menu;
    menu.setGeometry(50, 60, 101, 81); // corners to (100, 80)
    const QPainterPath whole = menu.getRoundPath();
    QCOMPARE(whole.boundingRect(), QRectF(0, 0, 100, 80));
    QVERIFY(!whole.contains(QPointF(1, 1)) && whole.contains(QPointF(4, 4)) && whole.contains(QPointF(1, 40)));

    menu.direction = CMenuEx::Downward;
    menu.endPoint = QPoint(50, 90);
    QCOMPARE(menu.getRoundRectPath().boundingRect(), QRectF(0, 30, 100, 50)); // the top edge stands at y 90
    menu.direction = CMenuEx::Upward;
    menu.endPoint = QPoint(50, 30);
    QCOMPARE(menu.getRoundRectPath().boundingRect(), QRectF(0, 0, 100, 50)); // the bottom edge comes up
}

HOUSE_TEST_MAIN(tst_MenuEx)
#include "tst_MenuEx.moc"
