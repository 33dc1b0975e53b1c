// Icon buttons and a title bar under a real pointer, and the frameless window around them under a window manager.
#include "RealPointer.h"
#include "helpers/HouseTest.h"

#include "CustomIconButton/CustomIconButton.h"
#include "MessageBoxEx/TitleBar/CustomIconButtons.h"
#include "MessageBoxEx/TitleBar/TitleBar.h"
#include "Platform/Platform.h"

#include <QApplication>
#include <QDialog>
#include <QProcess>
#include <QScreen>
#include <QSignalSpy>
#include <QVBoxLayout>

namespace {

/** As the window system says: some window managers tell a window of its moves when the drag is over. */
QString placeOnScreen(const QWidget &window)
{
    QProcess process;
    process.start(QStringLiteral("xdotool"), {QStringLiteral("getwindowgeometry"), QString::number(window.winId())});
    process.waitForFinished();
    return QString::fromLatin1(process.readAllStandardOutput());
}

/** A frameless window that its title bar moves. */
class Window : public QDialog
{
    Q_OBJECT

public:
    explicit Window(Qt::WindowFlags flags) : bar(new CTitleBar(this)), tool(new CCustomIconButton)
    {
        setWindowFlags(flags);
        auto *column = new QVBoxLayout(this);
        column->setContentsMargins(0, 0, 0, 0);
        column->addWidget(bar);
        column->addWidget(tool);
        column->addStretch();
        bar->setCaption(QStringLiteral("Herunterladen und drucken"));
        bar->setTitleFlags(7);
        tool->setToolTipText(QStringLiteral("Nach links drehen"));
        setGeometry(200, 150, 390, 160);
        setMaximumSize(QApplication::primaryScreen()->availableSize());
    }
    CCustomIconButtons *button(int index) const { return bar->findChildren<CCustomIconButtons *>().at(index); }

    CTitleBar *bar;
    CCustomIconButton *tool;
    int drags = 0;

protected:
    void mousePressEvent(QMouseEvent *event) override
    {
        Q_UNUSED(event)
        if (Platform::startWindowDrag(this))
            ++drags;
    }
};

constexpr int maximizeIndex = 1;

} // namespace

class tst_FramelessWindow : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void pressedAndDraggedOut();
    void showsItsToolTip();
    void movesByItsBar();
    void maximizes_data();
    void maximizes();

private:
    void open(Qt::WindowFlags flags);
    QPoint away() const { return m_window->mapToGlobal(QPoint(100, 130)); }

    std::unique_ptr<Window> m_window;
};

void tst_FramelessWindow::init()
{
    HouseTest::init();
    // Where no window opens under it.
    RealPointer::moveTo(QApplication::primaryScreen()->geometry().bottomRight() - QPoint(20, 20));
}

void tst_FramelessWindow::cleanup()
{
    m_window.reset();
    RealPointer::release(); // where a test has failed in the middle of a drag
    HouseTest::cleanup();
}

void tst_FramelessWindow::open(Qt::WindowFlags flags)
{
    m_window = std::make_unique<Window>(flags);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    RealPointer::moveTo(away());
    QTRY_VERIFY(m_window->underMouse());
}

void tst_FramelessWindow::pressedAndDraggedOut()
{
    open(Qt::Dialog | Qt::FramelessWindowHint);
    const QSignalSpy clicked(m_window->tool, &CCustomIconButton::customClicked);
    const QImage flat = m_window->tool->grab().toImage();
    RealPointer::moveTo(RealPointer::middleOf(m_window->tool));
    RealPointer::press();
    QTRY_VERIFY(m_window->tool->grab().toImage() != flat);
    RealPointer::moveTo(away());
    RealPointer::release();
    QTRY_COMPARE(m_window->tool->grab().toImage(), flat);
    QCOMPARE(static_cast<int>(clicked.count()), 0);
}

void tst_FramelessWindow::showsItsToolTip()
{
    open(Qt::Dialog | Qt::FramelessWindowHint);
    RealPointer::moveTo(RealPointer::middleOf(m_window->tool));
    const auto tip = [] {
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (const QWidget *window : windows)
            if (window->inherits("QTipLabel") && window->isVisible())
                return window->property("text").toString();
        return QString();
    };
    QTRY_COMPARE(tip(), QStringLiteral("Nach links drehen"));
}

void tst_FramelessWindow::movesByItsBar()
{
    open(Qt::Dialog | Qt::FramelessWindowHint);
    const QPoint start = m_window->pos();
    const QString startOnScreen = placeOnScreen(*m_window);
    const QPoint grip = m_window->bar->mapToGlobal(QPoint(60, 15));
    RealPointer::moveTo(grip);
    RealPointer::press();
    QTRY_COMPARE(m_window->drags, 1);
    // The window manager takes over in its own time, and only moves after that count.
    int moves = 0;
    const auto isUnderWay = [&] {
        ++moves;
        RealPointer::moveTo(grip + QPoint(moves, 0));
        return placeOnScreen(*m_window) != startOnScreen;
    };
    QTRY_VERIFY(isUnderWay());
    RealPointer::moveTo(grip + QPoint(100, 60));
    RealPointer::release();
    QTRY_COMPARE(m_window->pos(), start + QPoint(100, 60));
    RealPointer::moveTo(grip + QPoint(300, 200));
    VERIFY_HOLDS_FOR(m_window->pos() == start + QPoint(100, 60), 200);

    const QSignalSpy clicked(m_window->tool, &CCustomIconButton::customClicked);
    RealPointer::moveTo(RealPointer::middleOf(m_window->tool));
    QTRY_VERIFY(m_window->tool->underMouse());
    RealPointer::click();
    QTRY_COMPARE(static_cast<int>(clicked.count()), 1);
}

void tst_FramelessWindow::maximizes_data()
{
    QTest::addColumn<Qt::WindowFlags>("flags");
    QTest::newRow("splash screen") << Qt::WindowFlags(Qt::SplashScreen);
    QTest::newRow("frameless dialog") << (Qt::Dialog | Qt::FramelessWindowHint);
}

void tst_FramelessWindow::maximizes()
{
    QFETCH(Qt::WindowFlags, flags);
    open(flags);
    const QRect before = m_window->geometry();
    const auto clickMaximize = [this] {
        RealPointer::clickAt(RealPointer::middleOf(m_window->button(maximizeIndex)));
    };
    clickMaximize();
    QTRY_COMPARE(m_window->geometry(), QApplication::primaryScreen()->availableGeometry());
    QTRY_COMPARE(m_window->bar->width(), m_window->width());
    VERIFY_HOLDS_FOR(m_window->geometry() == QApplication::primaryScreen()->availableGeometry(), 300);
    clickMaximize();
    QTRY_COMPARE(m_window->geometry(), before);
    VERIFY_HOLDS_FOR(m_window->geometry() == before, 300);
}

HOUSE_TEST_MAIN(tst_FramelessWindow)
#include "tst_FramelessWindow.moc"
