// Frames and panels: plain frames, menus, tool tips, splitters.
#include "CC4Styles/CommonControlStyle.h"

#include "CC4Styles/PaintTools.h"
#include "MenuEx/MenuEx.h"
#include "UiGraphics.h"

#include <QPainter>
#include <QStyleOption>

// The pen and antialiasing stay set on the painter.
void CCommonControlStyle::drawFrame(const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    Q_UNUSED(widget)
    const QColor line = UIGGetColor(QStringLiteral("UIGCLR_TOOLBAR_PEN_BORDER_LINE"));
    painter->fillRect(option->rect, option->palette.window());
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(QBrush(line), 0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    PaintTools::strokeRect(painter, option->rect);
}

void CCommonControlStyle::drawToolbarFrame(const QStyleOption *, QPainter *, const QWidget *) const {}

void CCommonControlStyle::drawFrameMenu(const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    if (qobject_cast<const CMenuEx *>(widget) != nullptr) {
        painter->fillRect(option->rect, UIGGetColor(QStringLiteral("UIGCLR_FRAME_MENU")));
        return;
    }
    // Fusion fills the frame in black. A thin line is what the other base draws.
    if (m_bFusionIsBase)
        PaintTools::drawOutline(painter, option->rect, option->palette.color(QPalette::Shadow));
    else
        QProxyStyle::drawPrimitive(PE_FrameMenu, option, painter, widget);
}

// The registry's colours are opaque, so nothing of what lies behind the tip can show through them.
void CCommonControlStyle::drawPanelTipLabel(QPainter *painter, const QWidget *widget) const
{
    if (widget == nullptr)
        return;
    QLinearGradient gradient(0, 0, 0, widget->height() - 6);
    gradient.setColorAt(0.0, UIGGetColor(QStringLiteral("UIGCLR_PE_PANELTIPLABEL_GRAD1")));
    gradient.setColorAt(1.0, UIGGetColor(QStringLiteral("UIGCLR_PE_PANELTIPLABEL_GRAD2")));
    painter->fillRect(widget->rect(), gradient);
}

// A grip of six lines of six pixels.
void CCommonControlStyle::drawSplitter(const QStyleOption *option, QPainter *painter) const
{
    const QRect rect = option->rect;
    if (option->state.testFlag(State_Enabled) && option->state.testFlag(State_MouseOver))
        painter->fillRect(rect, option->palette.base());
    const QColor color = UIGGetColor(QStringLiteral("UIGCLR_SPLITTER_BORDER"));
    const bool horizontal = option->state.testFlag(State_Horizontal);
    // The height of a horizontal splitter counts from the painter's origin, that of a vertical one from its top.
    const QPoint grip = horizontal
                            ? QPoint(rect.left() + (rect.width() - 5) / 2, (rect.height() - 11) / 2)
                            : QPoint(rect.left() + (rect.width() - 11) / 2, rect.top() + (rect.height() - 5) / 2);
    for (int offset = 0; offset <= 10; offset += 2) {
        const QPoint start = grip + (horizontal ? QPoint(0, offset) : QPoint(offset, 0));
        PaintTools::fillLine(painter, start, start + (horizontal ? QPoint(5, 0) : QPoint(0, 5)), color);
    }
}
