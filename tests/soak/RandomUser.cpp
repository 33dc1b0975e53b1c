#include "RandomUser.h"

#include "Diary.h"
#include "MainWindow.h"

#include <QApplication>
#include <QCursor>
#include <QDrag>
#include <QKeyEvent>
#include <QListWidget>
#include <QMouseEvent>
#include <QTimer>
#include <QToolTip>
#include <QWheelEvent>
#include <QWindow>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

constexpr int interval = 5;       // milliseconds between operations
constexpr int restInterval = 50;  // while something is being closed
constexpr int quietTicks = 40;    // without anything open: animations, tool tips and reports have ended by then
constexpr int mostPatience = 400; // operations in one box before it is closed
constexpr int dragSteps = 6;
constexpr QSize smallest(300, 200);
constexpr QSize largest(1270, 980);

const Qt::Key keys[] = {Qt::Key_Tab,  Qt::Key_Tab,    Qt::Key_Backtab, Qt::Key_Up,    Qt::Key_Down,     Qt::Key_Left,
                        Qt::Key_Left, Qt::Key_Right,  Qt::Key_Space,   Qt::Key_Space, Qt::Key_Return,   Qt::Key_Escape,
                        Qt::Key_Home, Qt::Key_End,    Qt::Key_PageUp,  Qt::Key_A,     Qt::Key_PageDown, Qt::Key_Z,
                        Qt::Key_F4,   Qt::Key_Delete, Qt::Key_Menu,    Qt::Key_1,     Qt::Key_Backspace};

const Qt::KeyboardModifier modifiers[] = {Qt::NoModifier, Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier,
                                          Qt::AltModifier};

// Whoever lets go of a dragged text has nothing more to move or to release.
int timesLetGo = 0;

// The hand on a window, for as long as there is that window. It is no fault when it is outside by now: what a press or
// a move opens has an event loop of its own, in which the window may have shrunk.
class Hand
{
public:
    explicit Hand(QWindow *window) : m_window(window) {}

    void press(const QPoint &at, Qt::MouseButton button = Qt::LeftButton, QEvent::Type kind = QEvent::MouseButtonPress)
    {
        m_held = button;
        send(kind, button, at);
    }

    void move(const QPoint &at) { send(QEvent::MouseMove, Qt::NoButton, at); }
    void release(const QPoint &at) { send(QEvent::MouseButtonRelease, std::exchange(m_held, Qt::NoButton), at); }

private:
    void send(QEvent::Type kind, Qt::MouseButton button, const QPoint &at)
    {
        if (m_window.isNull() || m_timesLetGo != timesLetGo)
            return;
        QMouseEvent event(kind, at, at, m_window->mapToGlobal(at), button, m_held, Qt::NoModifier);
        QCoreApplication::sendEvent(m_window, &event);
    }

    QPointer<QWindow> m_window;
    Qt::MouseButton m_held = Qt::NoButton;
    const int m_timesLetGo = timesLetGo;
};

// It has an event loop of its own.
bool isTextDragged()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    return std::any_of(windows.begin(), windows.end(),
                       [](const QWidget *window) { return window->findChild<QDrag *>() != nullptr; });
}

QWidget *openTop()
{
    if (QWidget *popup = QApplication::activePopupWidget())
        return popup;
    return QApplication::activeModalWidget();
}

} // namespace

RandomUser::RandomUser(gallery::MainWindow *window, unsigned seed) : m_main(window), m_random(seed) {}

void RandomUser::start()
{
    m_isResting = false;
    QTimer::singleShot(interval, this, &RandomUser::next);
}

void RandomUser::rest()
{
    m_isResting = true;
    m_quietTicks = 0;
}

// The next operation is under way before this one begins: it may open a box, and end with it only. Whoever hears of the
// rest may close the gallery, and a text edit that is destroyed in the event loop of its drag takes Qt down.
void RandomUser::next()
{
    const bool isBusy = openTop() != nullptr || m_running > 0 || isTextDragged();
    if (m_isResting && !isBusy && m_quietTicks >= quietTicks) {
        Q_EMIT rested();
        return;
    }
    QTimer::singleShot(m_isResting ? restInterval : interval, this, &RandomUser::next);
    ++m_running;
    if (!m_isResting)
        operate();
    else if (isBusy)
        closeSomething();
    else if (m_quietTicks++ == 0)
        tidyUp();
    --m_running;
}

void RandomUser::closeSomething()
{
    m_quietTicks = 0;
    if (QWidget *top = openTop())
        top->close();
    else
        letGo();
}

void RandomUser::tidyUp()
{
    m_top = m_main;
    note("rest");
    QCursor::setPos(0, 0);
    QToolTip::hideText(); // which destroys its label, other than closing it
    closeOtherWindows();
    m_main->resize(largest);
    m_main->pageList()->setCurrentRow(1); // a page that is new, also where the first one was shown
    m_main->pageList()->setCurrentRow(0);
    m_main->pageList()->setFocus();
}

void RandomUser::closeOtherWindows()
{
    QList<QPointer<QWidget>> windows; // one may take others with it
    for (QWidget *window : QApplication::topLevelWidgets())
        windows.append(window);
    for (const QPointer<QWidget> &window : std::as_const(windows))
        if (!window.isNull() && window != m_main && window->isVisible() && window->windowType() != Qt::ToolTip)
            window->close();
}

void RandomUser::operate()
{
    using Operation = void (RandomUser::*)();
    static constexpr Operation operations[] = {
        &RandomUser::movePointer, &RandomUser::movePointer, &RandomUser::movePointer, &RandomUser::movePointer,
        &RandomUser::movePointer, &RandomUser::movePointer, &RandomUser::click,       &RandomUser::click,
        &RandomUser::click,       &RandomUser::click,       &RandomUser::doubleClick, &RandomUser::drag,
        &RandomUser::drag,        &RandomUser::wheel,       &RandomUser::wheel,       &RandomUser::typeKey,
        &RandomUser::typeKey,     &RandomUser::typeKey,     &RandomUser::typeKey,     &RandomUser::typeKey,
    };
    constexpr int rarely = 150;
    ++m_operations;
    m_patience = openTop() != nullptr ? m_patience + 1 : 0;
    if (m_patience > mostPatience)
        closeWindow();
    else if (isTextDragged())
        letGo();
    else if (number(rarely) == 0)
        resizeWindow();
    else if (number(rarely) == 0)
        changePage();
    else
        (this->*operations[number(int(std::size(operations)))])();
}

int RandomUser::number(int below)
{
    return int(m_random() % unsigned(std::max(1, below)));
}

// What has the user's attention: what is open on top, else mostly the gallery.
QWindow *RandomUser::chooseWindow()
{
    QWidget *top = openTop();
    if (top == nullptr) {
        QWidgetList windows;
        for (QWidget *window : QApplication::topLevelWidgets())
            if (window->isVisible() && window->windowHandle() != nullptr)
                windows.append(window);
        std::sort(windows.begin(), windows.end(), [](const QWidget *left, const QWidget *right) {
            return std::make_pair(left->windowTitle(), left->width()) <
                   std::make_pair(right->windowTitle(), right->width());
        });
        top = number(10) < 8 || windows.isEmpty() ? m_main.data() : windows.at(number(int(windows.size())));
    }
    m_top = top;
    return top->windowHandle();
}

// Half of the time in the middle of some control: random points mostly meet none.
QPoint RandomUser::chooseSpot(const QWidget *widget)
{
    const QPoint anywhere(number(widget->width()), number(widget->height()));
    const QList<QWidget *> parts = widget->findChildren<QWidget *>();
    if (parts.isEmpty() || number(2) == 0)
        return anywhere;
    const QWidget *part = parts.at(number(int(parts.size())));
    if (!part->isVisible() || part->window() != widget->window() || part->visibleRegion().isEmpty())
        return anywhere;
    const QRect seen = part->visibleRegion().boundingRect();
    return part->mapTo(widget, seen.topLeft() + QPoint(number(seen.width()), number(seen.height())));
}

void RandomUser::note(const char *what, const QPoint &at)
{
    const QWidget *child = m_top.isNull() ? nullptr : m_top->childAt(at);
    Diary::write(QStringLiteral("%1 at %2,%3 on %4 in %5, page %6, depth %7")
                     .arg(QLatin1String(what))
                     .arg(at.x())
                     .arg(at.y())
                     .arg(QLatin1String(child != nullptr ? child->metaObject()->className() : "-"),
                          QLatin1String(m_top.isNull() ? "-" : m_top->metaObject()->className()))
                     .arg(m_main->pageList()->currentRow())
                     .arg(m_running));
}

void RandomUser::movePointer()
{
    QWindow *window = chooseWindow();
    if (window == nullptr)
        return;
    m_spot = chooseSpot(m_top);
    note("move", m_spot);
    QCursor::setPos(m_top->mapToGlobal(m_spot));
    Hand(window).move(m_spot);
}

void RandomUser::click()
{
    QWindow *window = chooseWindow();
    if (window == nullptr)
        return;
    const auto button = number(8) == 0 ? Qt::RightButton : Qt::LeftButton;
    const QPoint at = m_top->rect().contains(m_spot) ? m_spot : chooseSpot(m_top);
    note(button == Qt::LeftButton ? "click" : "right click", at);
    Hand hand(window);
    hand.press(at, button);
    hand.release(at);
}

void RandomUser::doubleClick()
{
    QWindow *window = chooseWindow();
    if (window == nullptr)
        return;
    const QPoint at = chooseSpot(m_top);
    note("double click", at);
    Hand hand(window);
    for (const auto kind : {QEvent::MouseButtonPress, QEvent::MouseButtonDblClick}) {
        hand.press(at, Qt::LeftButton, kind);
        hand.release(at);
    }
}

void RandomUser::drag()
{
    QWindow *window = chooseWindow();
    if (window == nullptr)
        return;
    const QPoint from = chooseSpot(m_top);
    const QPoint to = chooseSpot(m_top);
    note("drag", from);
    Hand hand(window);
    hand.press(from);
    for (int step = 1; step <= dragSteps; ++step)
        hand.move(from + (to - from) * step / dragSteps);
    hand.release(to);
}

// The only thing that a user can do while a text is dragged.
void RandomUser::letGo()
{
    ++timesLetGo;
    Hand(m_main->windowHandle()).release(QPoint());
}

void RandomUser::wheel()
{
    if (chooseWindow() == nullptr)
        return;
    const QPoint at = chooseSpot(m_top);
    QWidget *under = m_top->childAt(at) != nullptr ? m_top->childAt(at) : m_top.data();
    note("wheel", at);
    const QPoint degrees(0, number(2) == 0 ? 120 : -120);
    QWheelEvent event(under->mapFrom(m_top, at), m_top->mapToGlobal(at), QPoint(), degrees, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(under, &event);
}

QWidget *RandomUser::keyReceiver() const
{
    QWidget *window = QApplication::activePopupWidget();
    if (window == nullptr && QApplication::focusWidget() != nullptr)
        return QApplication::focusWidget();
    if (window == nullptr)
        window = m_main;
    return window->focusWidget() != nullptr ? window->focusWidget() : window;
}

// To the widget that has the keys.
void RandomUser::typeKey()
{
    if (chooseWindow() == nullptr)
        return;
    const Qt::Key key = keys[number(int(std::size(keys)))];
    const Qt::KeyboardModifier modifier = modifiers[number(int(std::size(modifiers)))];
    if (key == Qt::Key_F4 && modifier == Qt::AltModifier)
        return; // the window manager's
    note(qPrintable(QStringLiteral("key 0x%1").arg(int(key), 0, 16)));
    const QString text = key < Qt::Key_Escape ? QString(QChar(ushort(key))).toLower() : QString();
    for (const auto kind : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(kind, key, modifier, text);
        QCoreApplication::sendEvent(keyReceiver(), &event);
    }
}

void RandomUser::resizeWindow()
{
    m_top = m_main;
    const QSize size(smallest.width() + number(largest.width() - smallest.width()),
                     smallest.height() + number(largest.height() - smallest.height()));
    note("resize", QPoint(size.width(), size.height()));
    m_main->resize(size);
}

void RandomUser::changePage()
{
    if (openTop() != nullptr)
        return;
    m_top = m_main;
    const int page = number(m_main->pageList()->count());
    note("page", QPoint(page, 0));
    m_main->pageList()->setCurrentRow(page);
}

void RandomUser::closeWindow()
{
    m_top = openTop();
    note("close");
    m_patience = 0;
    m_top->close();
}
