// The message box under a real pointer and real keys, in real windows.
#include "RealPointer.h"
#include "helpers/HouseTest.h"

#include "ButtonEx/ButtonEx.h"
#include "CheckBoxEx/CheckBoxEx.h"
#include "LabelEx/LabelEx.h"
#include "MessageBoxEx/MessageBoxEx.h"
#include "MessageBoxEx/TitleBar/CustomIconButtons.h"

#include <QApplication>
#include <QPainter>
#include <QScreen>
#include <QSignalSpy>
#include <QTimer>

#include <functional>

namespace {

constexpr int popupFlag = CMessageBoxEx::popupButton;
constexpr int pureColumns = 3; // at the right of a box, beyond its shadow

void clickOn(const QWidget *widget)
{
    QVERIFY(widget != nullptr);
    RealPointer::clickAt(RealPointer::middleOf(widget));
}

// Every point has a colour of its own, so that a picture that is off by one shows.
QRgb patternAt(const QPoint &global)
{
    return qRgb(global.x() * 7 % 256, global.y() * 5 % 256, (global.x() + global.y()) * 3 % 256);
}

/** Paints the pattern. */
class PatternWindow : public QWidget
{
protected:
    void paintEvent(QPaintEvent *) override
    {
        QImage image(size(), QImage::Format_RGB32);
        const QPoint origin = mapToGlobal(QPoint(0, 0));
        for (int y = 0; y < height(); ++y)
            for (int x = 0; x < width(); ++x)
                image.setPixel(x, y, patternAt(origin + QPoint(x, y)));
        QPainter(this).drawImage(0, 0, image);
    }
};

CButtonEx *buttonOf(const CMessageBoxEx &box, const QString &text)
{
    for (CButtonEx *button : box.findChildren<CButtonEx *>())
        if (button->text() == text)
            return button;
    return nullptr;
}

QList<CCustomIconButtons *> titleButtons(const CMessageBoxEx &box)
{
    QList<CCustomIconButtons *> buttons;
    for (CCustomIconButtons *button : box.findChildren<CCustomIconButtons *>())
        if (button->isVisible())
            buttons.append(button);
    return buttons;
}

QImage screenPicture()
{
    return QApplication::primaryScreen()->grabWindow(0).toImage();
}

bool showsPatternBehind(const CMessageBoxEx &box)
{
    const QImage screen = screenPicture();
    const QPoint middle = box.mapToGlobal(box.rect().center());
    if (screen.pixel(middle) == patternAt(middle))
        return false; // it has not come to its place yet
    for (int column = 1; column <= pureColumns; ++column) {
        for (int y = 0; y < box.height(); ++y) {
            const QPoint global = box.mapToGlobal(QPoint(box.width() - column, y));
            if (screen.pixel(global) != patternAt(global))
                return false;
        }
    }
    return true;
}

} // namespace

class tst_MessageBox : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void showsWhatLiesBehindWhereverItIs();
    void titleBarDragMovesIt();
    void edgesResize();
    void titleButtonsWork();
    void everyFormIsClickedThrough_data();
    void everyFormIsClickedThrough();

private:
    using Action = std::function<void(CMessageBoxEx &)>;

    std::unique_ptr<CMessageBoxEx> makeBox()
    {
        auto box = std::make_unique<CMessageBoxEx>(
            m_window.get(), QStringLiteral("Print"), QStringLiteral("There is no paper in the printer"),
            QStringLiteral("Put paper in and try again."), QString(), QMessageBox::Ok);
        box->setButtonText(QMessageBox::Ok, QStringLiteral("First"));
        return box;
    }
    int show(CMessageBoxEx &box, const Action &act);

    std::unique_ptr<QWidget> m_window;
};

void tst_MessageBox::init()
{
    HouseTest::init();
    QTRY_VERIFY(!QApplication::primaryScreen()->availableGeometry().topLeft().isNull()); // bars, see CMakeLists.txt
    RealPointer::moveTo(QPoint(5, 5));
    m_window = std::make_unique<PatternWindow>();
    m_window->setGeometry(100, 100, 1080, 850);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    // On the screen, too: a box takes its picture of it at once.
    const QPoint corner = m_window->geometry().bottomRight();
    QTRY_COMPARE(screenPicture().pixel(corner), patternAt(corner));
}

void tst_MessageBox::cleanup()
{
    m_window.reset();
    HouseTest::cleanup();
}

// The result of the box, or -1 after an `act` that left it open.
int tst_MessageBox::show(CMessageBoxEx &box, const Action &act)
{
    bool started = false;
    QTimer start;
    connect(&start, &QTimer::timeout, &box, [&] {
        if (started || !box.isActiveWindow())
            return;
        started = true;
        act(box);
        if (box.isVisible() && !QTest::qWaitFor([&box] { return !box.isVisible(); }, 300))
            box.done(-1);
    });
    start.start(50);
    return box.showDialog();
}

void tst_MessageBox::showsWhatLiesBehindWhereverItIs()
{
    const auto box = makeBox();
    show(*box, [](CMessageBoxEx &shown) {
        QTRY_VERIFY_WITH_TIMEOUT(showsPatternBehind(shown), 20000);
        for (const QPoint &place : {QPoint(137, 211), QPoint(731, 513)}) {
            shown.move(place);
            QTRY_COMPARE(shown.pos(), place);
            QTRY_VERIFY_WITH_TIMEOUT(showsPatternBehind(shown), 20000);
        }
    });
}

void tst_MessageBox::titleBarDragMovesIt()
{
    const auto box = makeBox();
    const QSignalSpy moved(box.get(), &CMessageBoxEx::MessageBox_Moved);
    const int result = show(*box, [&](CMessageBoxEx &shown) {
        const QPoint before = shown.pos();
        const int movesBefore = int(moved.count());
        const QPoint grip = shown.mapToGlobal(QPoint(60, 15));
        RealPointer::moveTo(grip);
        RealPointer::press();
        QTest::qWait(100); // the window manager takes the pointer over from where it is by then
        for (const QPoint &way : {QPoint(20, 10), QPoint(90, 60), QPoint(140, 80)}) {
            RealPointer::moveTo(grip + way);
            QTest::qWait(50); // the window manager wants to see the way
        }
        RealPointer::release();
        QTRY_COMPARE(shown.pos(), before + QPoint(140, 80));
        QVERIFY(moved.count() > movesBefore);
        QTRY_VERIFY_WITH_TIMEOUT(showsPatternBehind(shown), 20000);
        clickOn(buttonOf(shown, QStringLiteral("First"))); // the drag took nothing of the next click
    });
    QCOMPARE(result, int(QMessageBox::Ok));
}

void tst_MessageBox::edgesResize()
{
    const auto box = makeBox();
    box->setResizeable(true);
    show(*box, [](CMessageBoxEx &shown) {
        const auto dragEdge = [&shown](const QPoint &fromBottomRight, const QPoint &way) {
            const QPoint start = shown.mapToGlobal(shown.rect().bottomRight() - fromBottomRight);
            RealPointer::moveTo(start - QPoint(40, 40));
            RealPointer::moveTo(start);
            QTRY_VERIFY(shown.cursor().shape() != Qt::ArrowCursor);
            RealPointer::press();
            RealPointer::moveTo(start + way / 2);
            RealPointer::moveTo(start + way);
            QTest::qWait(100);
            RealPointer::release();
            QTRY_COMPARE(shown.cursor().shape(), Qt::ArrowCursor);
        };
        const QSize smallest = shown.size();
        dragEdge(QPoint(7, 60), QPoint(60, 30));
        QVERIFY(qAbs(shown.width() - smallest.width() - 60) <= 5);
        QCOMPARE(shown.height(), smallest.height());
        QTRY_VERIFY_WITH_TIMEOUT(showsPatternBehind(shown), 20000);
        dragEdge(QPoint(7, 6), QPoint(-400, -300));
        QCOMPARE(shown.size(), smallest);
        // Down to the end of the screen and no further.
        dragEdge(QPoint(60, 6), QPoint(0, 900));
        QCOMPARE(shown.geometry().bottom(), shown.screen()->availableGeometry().bottom());
    });
}

void tst_MessageBox::titleButtonsWork()
{
    const auto box = makeBox();
    box->setDialogFlags(7);
    QStringList record;
    connect(
        box.get(), &CMessageBoxEx::signal_CloseEvent, this, [&record] { record.append(QStringLiteral("close")); });
    connect(box.get(), &CMessageBoxEx::signal_MesssageBoxClosed, this,
            [&record] { record.append(QStringLiteral("closed")); });
    const int result = show(*box, [](CMessageBoxEx &shown) {
        const QRect before = shown.geometry();
        QCOMPARE(int(titleButtons(shown).size()), 3);
        clickOn(titleButtons(shown).at(1));
        QTRY_COMPARE(shown.size(), shown.maximumSize());
        QTRY_COMPARE(shown.pos(), shown.screen()->availableGeometry().topLeft());
        clickOn(titleButtons(shown).at(1));
        QTRY_COMPARE(shown.geometry(), before);
        clickOn(titleButtons(shown).at(2));
    });
    QCOMPARE(result, 0);
    QCOMPARE(record, QStringList({QStringLiteral("close"), QStringLiteral("closed")}));
}

void tst_MessageBox::everyFormIsClickedThrough_data()
{
    QTest::addColumn<int>("form");
    QTest::newRow("texts") << 0;
    QTest::newRow("texts, check box and help link") << 1;
    QTest::newRow("widget") << 2;
    QTest::newRow("widget and help") << 3;
    QTest::newRow("no shadow") << 4;
    QTest::newRow("no parent") << 5;
}

void tst_MessageBox::everyFormIsClickedThrough()
{
    QFETCH(int, form);
    const QString title = QStringLiteral("Print");
    const QString line = QStringLiteral("There is no paper in the printer");
    const QString more = QStringLiteral("Put paper in and try again.");
    const QString help = QStringLiteral("How to put paper in");
    const int options = QMessageBox::Apply | popupFlag;
    const auto content = std::make_unique<QLabel>(line);
    const std::unique_ptr<CMessageBoxEx> forms[] = {
        std::make_unique<CMessageBoxEx>(m_window.get(), title, line, more, QString(), QMessageBox::Ok, options),
        std::make_unique<CMessageBoxEx>(m_window.get(), title, line, more, help, true, help, QMessageBox::Ok, options),
        std::make_unique<CMessageBoxEx>(m_window.get(), title, form == 2 ? content.get() : nullptr, QMessageBox::Ok,
                                        options),
        std::make_unique<CMessageBoxEx>(m_window.get(), title, help, form == 3 ? content.get() : nullptr,
                                        QMessageBox::Ok, options),
        std::make_unique<CMessageBoxEx>(m_window.get(), title, line, more, QString(), QMessageBox::Ok, options, 0,
                                        true),
        std::make_unique<CMessageBoxEx>(nullptr, title, line, more, QString(), QMessageBox::Ok, options),
    };
    CMessageBoxEx &box = *forms[form];
    box.setButtonText(QMessageBox::Ok, QStringLiteral("First"));
    box.setButtonText(options, QStringLiteral("Options"));
    const QSignalSpy popups(&box, &CMessageBoxEx::Popup_Notify);
    const QSignalSpy links(&box, &CMessageBoxEx::signal_HelpLinkClicked);
    const int result = show(box, [&](CMessageBoxEx &shown) {
        clickOn(buttonOf(shown, QStringLiteral("Options")));
        QTRY_COMPARE(int(popups.count()), 1);
        if (auto *check = shown.findChild<CCheckBoxEx *>()) {
            clickOn(check);
            QTRY_VERIFY(shown.checkState());
            clickOn(shown.findChild<CLabelEx *>());
            QTRY_COMPARE(int(links.count()), 1);
        }
        clickOn(buttonOf(shown, QStringLiteral("First")));
    });
    QCOMPARE(result, int(QMessageBox::Ok));
    QVERIFY(content->parent() == nullptr);
}

HOUSE_TEST_MAIN(tst_MessageBox)
#include "tst_MessageBox.moc"
