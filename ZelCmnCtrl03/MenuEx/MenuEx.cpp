#include "MenuEx/MenuEx.h"

#include "UiGraphics.h"
#include "include/qt_globals.h"

#include <QAction>
#include <QApplication>
#include <QMouseEvent>

#include <algorithm>

class CMenuExPrivate
{
public:
    void init() { m_bCursorOnMenu = false; }

    bool m_bCursorOnMenu = false;
};

namespace {

constexpr int fontPixels = 13;
constexpr int growthInterval = 10; // milliseconds
constexpr double growthShare = 0.1;
constexpr qreal cornerBox = 20; // side of the box of a corner's arc

QFont menuFont()
{
    return UIGGetFont(fontPixels, -1, false);
}

/** The corner arc in the box at (x, y). */
void addCorner(QPainterPath &path, qreal x, qreal y, qreal startAngle)
{
    path.arcTo(x, y, cornerBox, cornerBox, startAngle, 90);
}

} // namespace

CMenuEx *CMenuEx::currentPopup = nullptr;

CMenuEx::CMenuEx(QWidget *parent) : QMenu(parent), d(new CMenuExPrivate)
{
    ZEL_LOG_SCOPE;
    setFont(menuFont());
    setMouseTracking(true);
    setCursor(Qt::PointingHandCursor);
    d->init();
}

CMenuEx::CMenuEx(const QString &title, QWidget *parent) : QMenu(title, parent), d(new CMenuExPrivate)
{
    ZEL_LOG_SCOPE;
    d->init();
}

CMenuEx::~CMenuEx()
{
    ZEL_LOG_SCOPE;
    m_growthTimer.stop();
    if (currentPopup == this)
        currentPopup = nullptr;
    delete d;
    d = nullptr;
}

QSize CMenuEx::sizeHint() const
{
    ZEL_LOG_SCOPE;
    return QMenu::sizeHint();
}

QAction *CMenuEx::exec(const QPoint &pos, QAction *at)
{
    ZEL_LOG_SCOPE;
    m_execPoint = pos;
    return QMenu::exec(mapToGlobal(pos), at);
}

void CMenuEx::popup(const QPoint &pos, QAction *at)
{
    ZEL_LOG_SCOPE;
    Q_UNUSED(at)
    if (currentPopup != nullptr && currentPopup != this && currentPopup->isVisible()) {
        currentPopup->hide();
        ZEL_LOG(zel::LogDetail, zel::CommonControls, QStringLiteral("CMenuEx::popup - hide"));
    }
    currentPopup = this;
    if (QApplication::activeWindow() != nullptr && isHidden())
        QMenu::popup(pos);
}

bool CMenuEx::cursorOnMenu()
{
    ZEL_LOG_SCOPE;
    return d->m_bCursorOnMenu;
}

QAction *CMenuEx::addMenuItem(const QString &text, const QIcon *icon)
{
    ZEL_LOG_SCOPE;
    auto *action = new QAction(text, nullptr);
    if (icon != nullptr)
        action->setIcon(*icon);
    const QFont font = menuFont();
    action->setFont(font);
    setFont(font);
    addAction(action);
    m_itemTexts.append(text);
    adjustSize();
    connect(action, &QAction::hovered, this, &CMenuEx::actionHovered);
    return action;
}

QAction *CMenuEx::addMenu(QMenu *menu)
{
    ZEL_LOG_SCOPE;
    if (menu == nullptr)
        return nullptr;
    m_submenuTitles.append(menu->title());
    QAction *action = QMenu::addMenu(menu);
    connect(action, &QAction::hovered, this, &CMenuEx::actionHovered);
    return action;
}

CMenuEx *CMenuEx::addMenu(const QString &title)
{
    ZEL_LOG_SCOPE;
    m_submenuTitles.append(title);
    // A name for the pointer's type, no statement about the object: it is for callers who use it as a QMenu.
    return reinterpret_cast<CMenuEx *>(QMenu::addMenu(title));
}

void CMenuEx::setVisible(bool visible)
{
    ZEL_LOG_SCOPE;
    if (visible)
        startUnrolling();
    QWidget::setVisible(visible);
}

void CMenuEx::startUnrolling()
{
    const QPoint origin = mapToParent(QPoint(0, 0));
    const QPoint menuHeight(0, height());
    direction = QApplication::widgetAt(origin - menuHeight) != nullptr ? Upward : Downward;
    const QPoint top = mapToGlobal(QPoint(0, 0));
    const QPoint bottom = mapToGlobal(menuHeight);
    startPoint = direction == Downward ? top : bottom;
    endPoint = direction == Downward ? bottom : top;

    QWidget::setVisible(false);
    move(startPoint);
    resize(width(), 0);
    m_growthTimer.start(growthInterval, this);
}

// Every timer event of the object counts as a step; QMenu's own timers are not served.
void CMenuEx::timerEvent(QTimerEvent *event)
{
    ZEL_LOG_SCOPE;
    Q_UNUSED(event)
    const int fullHeight = sizeHint().height();
    if (height() >= fullHeight) {
        m_growthTimer.stop();
        return;
    }
    const int step = static_cast<int>(fullHeight * growthShare);
    const int newHeight = std::min(height() + step, fullHeight);
    setGeometry(startPoint.x(), startPoint.y(), width(), newHeight);
    if (direction == Upward)
        startPoint.ry() -= step;
}

void CMenuEx::mouseReleaseEvent(QMouseEvent *event)
{
    ZEL_LOG_SCOPE;
    if (event->button() == Qt::RightButton)
        event->ignore();
    else
        QMenu::mouseReleaseEvent(event);
}

void CMenuEx::enterEvent(zel::EnterEvent *event)
{
    ZEL_LOG_SCOPE;
    Q_UNUSED(event)
    d->m_bCursorOnMenu = true;
}

void CMenuEx::leaveEvent(QEvent *event)
{
    ZEL_LOG_SCOPE;
    Q_UNUSED(event)
    d->m_bCursorOnMenu = false;
}

void CMenuEx::d_zel_func_CMenuEx(CMenuExPrivate **out)
{
    *out = d;
}

void CMenuEx::actionHovered()
{
    ZEL_LOG_SCOPE;
    const QAction *action = activeAction();
    if (action != nullptr)
        setCursor(action->isEnabled() ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

// The outline of the menu, for a mask.
QPainterPath CMenuEx::getRoundPath()
{
    int x1 = 0;
    int y1 = 0;
    int x2 = 0;
    int y2 = 0;
    rect().getCoords(&x1, &y1, &x2, &y2);
    QPainterPath path;
    path.moveTo(x2, y1 + cornerBox);
    addCorner(path, x2 - cornerBox, y1, 0);
    path.lineTo(x1 + cornerBox, y1);
    addCorner(path, x1, y1, 90);
    path.lineTo(x1, y2 - cornerBox);
    addCorner(path, x1, y2 - cornerBox, 180);
    path.lineTo(x1 + cornerBox, y2);
    addCorner(path, x2 - cornerBox, y2 - cornerBox, 270);
    path.closeSubpath();
    return path;
}

// The outline while the menu unrolls: the edge that it aims at stands still, wherever the menu is.
QPainterPath CMenuEx::getRoundRectPath()
{
    int x1 = 0;
    int y1 = 0;
    int x2 = 0;
    int y2 = 0;
    rect().getCoords(&x1, &y1, &x2, &y2);
    QPainterPath path;
    if (direction == Downward) {
        const int top = endPoint.y() - pos().y();
        path.moveTo(x2 - cornerBox, top);
        path.lineTo(x1 + cornerBox, top);
        addCorner(path, x1, top, 90);
        path.lineTo(x1, y2 - cornerBox);
        addCorner(path, x1, y2 - cornerBox, 180);
        path.lineTo(x2, y2);
        addCorner(path, x2 - cornerBox, y2 - cornerBox, 270);
        path.lineTo(x2, top + cornerBox);
        addCorner(path, x2 - cornerBox, top, 0);
    } else {
        const int bottom = y2 - pos().y() + endPoint.y();
        path.moveTo(x2, y1 + cornerBox);
        addCorner(path, x2 - cornerBox, y1, 0);
        path.lineTo(x1 + cornerBox, y1);
        addCorner(path, x1, y1, 90);
        path.lineTo(x1, bottom - cornerBox);
        addCorner(path, x1, bottom - cornerBox, 180);
        path.lineTo(x2 - cornerBox, bottom);
        addCorner(path, x2 - cornerBox, bottom - cornerBox, 270);
    }
    path.closeSubpath();
    return path;
}
