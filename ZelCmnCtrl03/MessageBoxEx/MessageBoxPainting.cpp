// The two looks of a message box: a soft shadow over a picture of what lies behind it, or a hard edge.
#include "MessageBoxEx/MessageBoxEx.h"

#include "MessageBoxEx/MessageBoxEx_p.h"
#include "MessageBoxEx/TitleBar/TitleBar.h"
#include "Platform/Platform.h"
#include "UiGraphics.h"

#include <QGuiApplication>
#include <QLinearGradient>
#include <QPainter>
#include <QScreen>
#include <QShowEvent>

#include <iterator>

namespace {

constexpr qreal cornerRoundness = 5; // percent of half a side

/** One of the outlines that the shadow is made of, by what it adds to the sides of contentsRect(). */
struct Outline
{
    int alpha;
    int left;
    int top;
    int right;
    int bottom;
};

// From the box outwards: to the lower right, ever paler.
constexpr Outline shadow[] = {
    {250, 0, 8, 2, 2}, {210, 0, 7, 3, 3}, {180, 0, 6, 4, 4}, {150, 0, 5, 5, 5}, {120, 0, 4, 6, 6},
    {90, 0, 3, 7, 7},  {60, 0, 2, 8, 8},  {30, 0, 1, 9, 9},  {2, 0, 0, 10, 10},
};

// The panel begins above the box, so that its round corners show at the bottom only.
constexpr QMargins panelOverlap(1, 9, 2, 2);

constexpr int hardEdgeRoom = 4;
constexpr qreal hardEdgeWidth = 2.0;

constexpr qreal halfOpacity(const Outline &outline)
{
    return outline.alpha / 255.0 / 2;
}

void drawRounded(QPainter *painter, const QRect &rect)
{
    painter->drawRoundedRect(rect, cornerRoundness, cornerRoundness, Qt::RelativeSize);
}

// An outline is one pixel wide and lies on the middle of its rectangle's edge: between two of them a pixel has half of
// each. Shapes that are filled one over the other give just that, and leave no gaps between the arcs of the corners.
void fillShadow(QPainter *painter, const QRect &box, QColor color)
{
    painter->setPen(Qt::NoPen);
    qreal opacity = 0;
    for (std::size_t i = std::size(shadow) - 1; i > 0; --i) {
        const qreal wanted = 1 - (1 - halfOpacity(shadow[i])) * (1 - halfOpacity(shadow[i - 1]));
        color.setAlphaF((wanted - opacity) / (1 - opacity));
        opacity = wanted;
        painter->setBrush(color);
        drawRounded(painter, box.adjusted(shadow[i].left, shadow[i].top, shadow[i].right, shadow[i].bottom));
    }
}

QRect wholeDesktop()
{
    const QScreen *screen = QGuiApplication::primaryScreen(); // none once the last one has been taken away
    return screen != nullptr ? screen->virtualGeometry() : QRect();
}

} // namespace

void CMessageBoxEx::saveBackgroundPixmap()
{
    if (m_bNoShadow)
        return; // nothing of it would be seen
    const bool coversParent = isModal() && parentWidget() != nullptr;
    const QRect area = coversParent ? parentWidget()->screen()->availableGeometry() : wholeDesktop();
    m_background = Platform::pictureOfDesktop(area);
    d->m_backgroundOrigin = area.topLeft();
}

void CMessageBoxEx::showEvent(QShowEvent *event)
{
    // A box that comes back from being minimized is on the screen by now, and would see itself.
    if (!event->spontaneous())
        saveBackgroundPixmap();
}

void CMessageBoxEx::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_bNoShadow)
        paintHardEdgedBox(&painter);
    else
        paintShadowedBox(&painter);
}

void CMessageBoxEx::paintShadowedBox(QPainter *painter) const
{
    if (contentsRect().contains(rect())) { // without room for a shadow all is panel, corners too
        painter->fillRect(rect(), panelGradient());
        return;
    }
    const qreal ratio = m_background.devicePixelRatioF();
    const QPointF place = mapToGlobal(QPoint(0, 0)) - d->m_backgroundOrigin;
    painter->drawPixmap(QRectF(rect()), m_background, QRectF(place * ratio, QSizeF(size()) * ratio));

    QColor color = UIGGetColor(QStringLiteral("UIGCLR_VACSCR_LFTLINEPEN"));
    fillShadow(painter, contentsRect(), color);
    color.setAlpha(std::rbegin(shadow)->alpha);
    painter->setPen(color);
    paintPanel(painter);
    paintEndOfTitleBar(painter);
}

// The panel is wider than the bar that lies on it: what it shows of itself at the bar's right continues the bar.
void CMessageBoxEx::paintEndOfTitleBar(QPainter *painter) const
{
    const QRect bar = m_pTitleBar->geometry();
    const QRect rest(bar.right() + 1, bar.top(), panelOverlap.right(), bar.height());
    painter->fillRect(rest, m_pTitleBar->palette().window());
    painter->fillRect(rest.adjusted(0, bar.height() - 1, 0, 0), UIGGetColor(QStringLiteral("UIGCLR_TITLEBAR_PEN")));
}

void CMessageBoxEx::paintHardEdgedBox(QPainter *painter) const
{
    painter->setPen(Qt::NoPen);
    paintPanel(painter);
    painter->setPen(QPen(UIGGetColor(QStringLiteral("UIGCLR_TOOLBAR_PEN_BORDER_LINE")), hardEdgeWidth, Qt::SolidLine,
                         Qt::SquareCap, Qt::BevelJoin));
    painter->drawRect(rect().adjusted(0, 0, -hardEdgeRoom, -hardEdgeRoom));

    const QRect box = rect();
    const QPen *const pens[] = {&m_borderPen, &m_borderPen, &m_rightPen, &m_leftPen};
    for (int i = 0; i < hardEdgeRoom; ++i) {
        const int step = hardEdgeRoom - 1 - i; // each one pixel further out, and beginning one pixel later
        painter->setPen(*pens[i]);
        painter->drawLine(box.left() + 2 + i, box.bottom() - step, box.right() + 2 + i, box.bottom() - step);
    }
    for (int i = 0; i < hardEdgeRoom; ++i) {
        const int step = hardEdgeRoom - 1 - i;
        painter->setPen(*pens[i]);
        painter->drawLine(box.right() - step, box.bottom() - step, box.right() - step, box.top() + 2 + i);
    }
}

QLinearGradient CMessageBoxEx::panelGradient() const
{
    QLinearGradient gradient(rect().topLeft(), rect().bottomLeft());
    gradient.setColorAt(0, UIGGetColor(QStringLiteral("UIGCLR_MESSAGEBOXEX_GRAD1")));
    gradient.setColorAt(1, UIGGetColor(QStringLiteral("UIGCLR_MESSAGEBOXEX_GRAD2")));
    return gradient;
}

// In the pen that the painter has.
void CMessageBoxEx::paintPanel(QPainter *painter) const
{
    painter->setBrush(panelGradient());
    drawRounded(painter, contentsRect().marginsAdded(panelOverlap));
}
