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

QPainterPath roundOutline(const QRect &rect)
{
    const qreal right = rect.right();
    const qreal bottom = rect.bottom();
    QPainterPath path;
    path.moveTo(right, rect.top() + cornerBox);
    addCorner(path, right - cornerBox, rect.top(), 0);
    path.lineTo(rect.left() + cornerBox, rect.top());
    addCorner(path, rect.left(), rect.top(), 90);
    path.lineTo(rect.left(), bottom - cornerBox);
    addCorner(path, rect.left(), bottom - cornerBox, 180);
    path.lineTo(rect.left() + cornerBox, bottom);
    addCorner(path, right - cornerBox, bottom - cornerBox, 270);
    path.closeSubpath();
    return path;
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
    return roundOutline(rect());
}

// The outline while the menu unrolls: the edge that it aims at stands still, wherever the menu is.
QPainterPath CMenuEx::getRoundRectPath()
{
    QRect outline = rect();
    if (direction != Downward) {
        outline.setBottom(outline.bottom() - pos().y() + endPoint.y());
        return roundOutline(outline);
    }
    outline.setTop(endPoint.y() - pos().y());
    QPainterPath path;
    path.moveTo(outline.right() - cornerBox, outline.top());
    path.lineTo(outline.left() + cornerBox, outline.top());
    addCorner(path, outline.left(), outline.top(), 90);
    path.lineTo(outline.left(), outline.bottom() - cornerBox);
    addCorner(path, outline.left(), outline.bottom() - cornerBox, 180);
    path.lineTo(outline.right(), outline.bottom());
    addCorner(path, outline.right() - cornerBox, outline.bottom() - cornerBox, 270);
    path.lineTo(outline.right(), outline.top() + cornerBox);
    addCorner(path, outline.right() - cornerBox, outline.top(), 0);
    path.closeSubpath();
    return path;
}
