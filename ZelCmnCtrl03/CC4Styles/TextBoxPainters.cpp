// Frames and backgrounds of text boxes, and the frame of spin boxes.
#include "CC4Styles/CommonControlStyle.h"

#include "CC4Styles/pixels/TextBoxPixels.h"
#include "TextBoxEx/TextBoxEx.h"
#include "UiGraphics.h"

#include <QPainter>
#include <QSpinBox>
#include <QStyleOptionFrame>

void CCommonControlStyle::drawNormalTextBox(const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    Q_UNUSED(widget)
    PixelTable::draw(painter, option->rect, TextBoxPixels::NormalTable::operations);
}

void CCommonControlStyle::drawTransparentTextBox(const QStyleOption *option, QPainter *painter,
                                                 const QWidget *widget) const
{
    const auto *box = qobject_cast<const CTextBoxEx *>(widget);
    if (box == nullptr)
        return;
    const auto drawPass = [option, painter](const int *alphas) {
        PixelTable::draw(painter, option->rect, TextBoxPixels::TransparentTable::operations, alphas);
    };
    drawPass(box->isMouseOver() ? TextBoxPixels::hoveredAlphas : TextBoxPixels::restingAlphas);
    if (box->isFocussed())
        drawPass(TextBoxPixels::focussedAlphas); // over the first pass, whose lines shine through
}

void CCommonControlStyle::drawFrameLineEdit(const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    const auto *frame = qstyleoption_cast<const QStyleOptionFrame *>(option);
    if (frame == nullptr)
        return;
    if (const auto *box = qobject_cast<const CTextBoxEx *>(widget))
        return drawTextBoxFrame(frame, painter, box);
    if (qobject_cast<const QSpinBox *>(widget) == nullptr)
        return; // others, a plain QLineEdit too, have no frame in this look
    const bool isEnabled = frame->state.testFlag(State_Enabled);
    PixelTable::draw(painter, frame->rect, TextBoxPixels::SpinBoxTable::operations,
                     isEnabled ? TextBoxPixels::enabledWash : TextBoxPixels::disabledWash);
}

void CCommonControlStyle::drawTextBoxFrame(const QStyleOptionFrame *option, QPainter *painter,
                                           const CTextBoxEx *box) const
{
    if (box->lineEditStyle() == CTextBoxEx::LineEditTransparent)
        drawTransparentTextBox(option, painter, box);
    else if (box->lineEditStyle() == CTextBoxEx::LineEditNormal && !box->isReadOnly())
        drawNormalTextBox(option, painter, box);
}

void CCommonControlStyle::drawPanelLineEdit(const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    const auto *frame = qstyleoption_cast<const QStyleOptionFrame *>(option);
    if (frame == nullptr)
        return;
    const auto *box = qobject_cast<const CTextBoxEx *>(widget);
    const bool isFilled = box == nullptr || (box->lineEditStyle() == CTextBoxEx::LineEditNormal && !box->isReadOnly());
    const QRect inside = frame->rect.adjusted(1, 1, -1, -1);
    if (isFilled && !inside.isEmpty())
        painter->fillRect(inside, UIGGetColor(QStringLiteral("UIGCLR_LE_BACKGROUND")));
    proxy()->drawPrimitive(PE_FrameLineEdit, frame, painter, widget);
}
