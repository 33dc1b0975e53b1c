// Sizes, hints and the layout of complex controls.
#include "CC4Styles/CommonControlStyle.h"

#include "UiGraphics.h"
#include "include/qt_compat.h"

#include <QFontMetrics>
#include <QLabel>
#include <QScopedValueRollback>
#include <QScreen>
#include <QStyleOptionSpinBox>
#include <QTextDocument> // Qt::mightBeRichText
#include <QTextDocumentFragment>

#include <algorithm>

namespace {

// Pixels.
constexpr int scrollBarExtra = 4;
constexpr int comboBoxHeight = 18;
constexpr QSize spinButton(16, 8);
constexpr int spinButtonArea = 18;
constexpr int widestToolTip = 400;
constexpr int lowestToolTip = 26;
constexpr QMargins toolTipMargins(7, 0, 7, 7);

constexpr int gridLineColour = 0xEEEEFF; // the hint takes a colour as a number
constexpr int opaque = 255;

int textWidth(const QLabel *label)
{
    const QString text = label->text().trimmed();
    const QString plain = Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
    return QFontMetrics(label->font()).size(0, plain).width();
}

// The size that Qt gave the tip was for another layout of its text, and the tip was placed with it.
void keepOnScreen(QWidget *tip)
{
    const QScreen *screen = tip->screen();
    if (screen == nullptr)
        return;
    const QRect area = screen->availableGeometry();
    const int x = std::max(area.left(), std::min(tip->x(), area.right() + 1 - tip->width()));
    const int y = std::max(area.top(), std::min(tip->y(), area.bottom() + 1 - tip->height()));
    tip->move(x, y);
}

void shapeToolTip(QLabel *label)
{
    label->setMinimumHeight(lowestToolTip);
    label->setFont(UIGGetTooltipFont(11, 53, false));
    label->setContentsMargins(toolTipMargins);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    if (textWidth(label) > widestToolTip) {
        label->setFixedWidth(widestToolTip);
        label->setWordWrap(true);
        label->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
        label->resize(widestToolTip, label->heightForWidth(widestToolTip));
        return;
    }
    // The label is used again for the next tip: nothing of a long one may stay.
    label->setMinimumWidth(0);
    label->setMaximumWidth(QWIDGETSIZE_MAX);
    label->setWordWrap(false);
    label->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    label->resize(label->sizeHint());
}

QRect spinBoxSubControlRect(const QStyleOptionSpinBox *option, QStyle::SubControl subControl, int frameWidth)
{
    const QRect rect = option->rect;
    switch (subControl) {
    case QStyle::SC_SpinBoxUp: return QRect(QPoint(rect.right() - spinButtonArea, rect.top() + 2), spinButton);
    case QStyle::SC_SpinBoxDown: return QRect(QPoint(rect.right() - spinButtonArea, rect.height() / 2), spinButton);
    case QStyle::SC_SpinBoxEditField:
        return rect.adjusted(frameWidth, frameWidth, -spinButtonArea - frameWidth, -frameWidth);
    default: return QRect();
    }
}

} // namespace

int CCommonControlStyle::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const
{
    switch (metric) {
    case PM_ComboBoxFrameWidth: return 8;
    case PM_ScrollBarExtent: return QProxyStyle::pixelMetric(metric, option, widget) + scrollBarExtra;
    case PM_TabBarTabHSpace: return 20;
    case PM_TabBarTabVSpace: return 5;
    case PM_TabBarBaseHeight: return 10;
    case PM_SplitterWidth: return 9;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight: return 16;
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight: return 18;
    case PM_ListViewIconSize: return 90;
    default: return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int CCommonControlStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                                   QStyleHintReturn *returnData) const
{
    switch (hint) {
    case SH_EtchDisabledText: return 1;
    case SH_DitherDisabledText: return 0;
    case SH_Table_GridLineColor: return gridLineColour;
    case SH_UnderlineShortcut: return 1;
    case SH_ItemView_ShowDecorationSelected: return 1;
    case SH_ToolTipLabel_Opacity: return toolTipOpacity(widget);
    default: return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
}

// Asked by the label of the tips when it is made, with no text yet; it is used again for later tips. So it is shaped
// each time that Qt shows or sizes it.
int CCommonControlStyle::toolTipOpacity(const QWidget *widget) const
{
    auto *label = qobject_cast<QLabel *>(const_cast<QWidget *>(widget));
    if (label != nullptr) {
        shapeToolTip(label);
        label->installEventFilter(const_cast<CCommonControlStyle *>(this));
    }
    return opaque;
}

bool CCommonControlStyle::eventFilter(QObject *object, QEvent *event)
{
    const bool sized = event->type() == QEvent::Resize || event->type() == QEvent::Show;
    auto *label = sized && !m_bShapingToolTip ? qobject_cast<QLabel *>(object) : nullptr;
    if (label != nullptr && label->style()->proxy() == proxy()) {
        const QScopedValueRollback<bool> shaping(m_bShapingToolTip, true);
        shapeToolTip(label);
        keepOnScreen(label);
    }
    return QProxyStyle::eventFilter(object, event);
}

QRect CCommonControlStyle::subControlRect(ComplexControl control, const QStyleOptionComplex *option,
                                          SubControl subControl, const QWidget *widget) const
{
    switch (control) {
    case CC_SpinBox: return spinBoxRect(option, subControl);
    case CC_ComboBox: return comboBoxRect(option, subControl, widget);
    case CC_Slider: return sliderSubControlRect(option, subControl, widget);
    // The plain layout, whatever the base style's looks like.
    case CC_ScrollBar: return QCommonStyle::subControlRect(control, option, subControl, widget);
    default: return QProxyStyle::subControlRect(control, option, subControl, widget);
    }
}

QRect CCommonControlStyle::spinBoxRect(const QStyleOptionComplex *option, SubControl subControl) const
{
    const auto *spinBox = qstyleoption_cast<const QStyleOptionSpinBox *>(option);
    if (spinBox == nullptr)
        return QRect();
    const QRect rect = spinBoxSubControlRect(spinBox, subControl, proxy()->pixelMetric(PM_DefaultFrameWidth));
    return rect.isNull() ? rect : visualRect(option->direction, option->rect, rect);
}

QRect CCommonControlStyle::comboBoxRect(const QStyleOptionComplex *option, SubControl subControl,
                                        const QWidget *widget) const
{
    QRect rect = QProxyStyle::subControlRect(CC_ComboBox, option, subControl, widget);
    rect.setHeight(comboBoxHeight);
    return rect;
}

Qt::Alignment CCommonControlStyle::visualAlignment(Qt::LayoutDirection direction, Qt::Alignment alignment)
{
    return QStyle::visualAlignment(direction, alignment);
}
