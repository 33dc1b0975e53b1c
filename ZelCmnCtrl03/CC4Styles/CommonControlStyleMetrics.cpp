// Sizes, hints and the layout of complex controls.
#include "CC4Styles/CommonControlStyle.h"

#include "UiGraphics.h"
#include "include/qt_compat.h"

#include <QFontMetrics>
#include <QLabel>
#include <QScopedValueRollback>
#include <QScreen>
#include <QSlider>
#include <QStyleOptionSpinBox>
#include <QTextDocument> // Qt::mightBeRichText
#include <QTextDocumentFragment>

#include <algorithm>

namespace {

// Pixels.
constexpr int scrollBarExtra = 4;
constexpr int scrollBarExtent = 21; // that strips and bitmaps are made for; the bases of today would be thinner
constexpr int menuFrameWidth = 2;
constexpr int listIconSize = 90;
constexpr int comboBoxHeight = 18;
constexpr int drawnComboBoxHeight = 21;
constexpr int spinBoxHeight = 21; // where the buttons stand in their square
constexpr int sliderRoom = 20;    // for the handle
constexpr int sliderTickRoom = 8; // for it and a row of tick marks, on each side that has them
constexpr QSize spinButton(16, 8);
constexpr int spinButtonArea = 18;
constexpr int widestToolTip = 400;
constexpr int lowestToolTip = 26;
constexpr QMargins toolTipMargins(7, 0, 7, 7);
constexpr int pointerGap = 4; // from the pointer to a tip above it

constexpr int gridLineColor = static_cast<int>(0xFFEEEEFF); // item views take the alpha too
constexpr int opaque = 255;

int textWidth(const QLabel *label)
{
    const QString text = label->text().trimmed();
    const QString plain = Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
    return QFontMetrics(label->font()).size(0, plain).width();
}

// The height that Qt placed the tip with was for another layout of its text.
void keepOnScreen(QWidget *tip)
{
    const QScreen *screen = tip->screen();
    if (screen == nullptr)
        return;
    const QRect area = screen->availableGeometry();
    QRect place(tip->pos(), tip->size()); // as move() counts; geometry() is without the frame that a platform may add
    place.moveLeft(std::max(area.left(), std::min(place.left(), area.right() + 1 - place.width())));
    place.moveTop(std::max(area.top(), std::min(place.top(), area.bottom() + 1 - place.height())));
    const int above = QCursor::pos().y() - pointerGap - place.height();
    if (place.contains(QCursor::pos()) && above >= area.top())
        place.moveTop(above);
    tip->move(place.topLeft());
}

// The label is used again, and Qt places the next tip by the width that the label has before it is shown: never more
// than the widest, and nothing of the last one may stay.
void releaseToolTipWidth(QWidget *label)
{
    label->setMinimumWidth(0);
    label->setMaximumWidth(widestToolTip);
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
    releaseToolTipWidth(label);
    label->setWordWrap(false);
    label->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    label->resize(label->sizeHint());
}

QRect leftToRightSpinBoxRect(const QStyleOptionSpinBox *option, QStyle::SubControl subControl, int frameWidth)
{
    const QRect rect = option->rect;
    const int buttonArea = option->buttonSymbols == QAbstractSpinBox::NoButtons ? 0 : spinButtonArea;
    switch (subControl) {
    case QStyle::SC_SpinBoxUp: return QRect(QPoint(rect.right() - spinButtonArea, rect.top() + 2), spinButton);
    case QStyle::SC_SpinBoxDown: return QRect(QPoint(rect.right() - spinButtonArea, rect.height() / 2), spinButton);
    case QStyle::SC_SpinBoxEditField:
        return rect.adjusted(frameWidth, frameWidth, -buttonArea - frameWidth, -frameWidth);
    default: return QRect();
    }
}

// Those that Qt makes by itself have no room for large icons.
bool isListOfQt(const QWidget *widget)
{
    if (widget == nullptr)
        return false;
    for (const char *name : {"QComboBoxListView", "QSidebar", "QFileDialogListView"})
        if (widget->inherits(name))
            return true;
    return false;
}

// A font of its own may want more height than the look is made for.
QSize spinBoxSize(const QSize &based, const QStyleOption *option)
{
    return QSize(based.width(), std::max(spinBoxHeight, option != nullptr ? option->fontMetrics.height() + 4 : 0));
}

QSize sliderSize(const QSize &based, const QStyleOption *option)
{
    const auto *slider = qstyleoption_cast<const QStyleOptionSlider *>(option);
    if (slider == nullptr)
        return based;
    int room = sliderRoom;
    for (const QSlider::TickPosition side : {QSlider::TicksAbove, QSlider::TicksBelow})
        room += slider->tickPosition & side ? sliderTickRoom : 0;
    return slider->orientation == Qt::Horizontal ? QSize(based.width(), std::max(based.height(), room))
                                                 : QSize(std::max(based.width(), room), based.height());
}

} // namespace

int CCommonControlStyle::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const
{
    switch (metric) {
    case PM_ComboBoxFrameWidth: return 8;
    case PM_ScrollBarExtent:
        return std::max(scrollBarExtent, QProxyStyle::pixelMetric(metric, option, widget) + scrollBarExtra);
    case PM_TabBarTabHSpace: return 20;
    case PM_TabBarTabVSpace: return 5;
    case PM_TabBarBaseHeight: return 10;
    case PM_SplitterWidth: return 9;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight: return 16;
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight: return 18;
    case PM_ListViewIconSize:
        return isListOfQt(widget) ? QProxyStyle::pixelMetric(metric, option, widget) : listIconSize;
    // Not every base leaves room for the frame of menus.
    case PM_MenuPanelWidth: return std::max(menuFrameWidth, QProxyStyle::pixelMetric(metric, option, widget));
    default: return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int CCommonControlStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                                   QStyleHintReturn *returnData) const
{
    switch (hint) {
    case SH_EtchDisabledText: return 1;
    case SH_DitherDisabledText:
    case SH_ComboBox_Popup: return 0; // a list, and no menu with check marks
    case SH_Table_GridLineColor: return gridLineColor;
    case SH_UnderlineShortcut:
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
    auto *label = qobject_cast<QLabel *>(object);
    if (label != nullptr && !m_bShapingToolTip && drawsFor(label)) {
        const QScopedValueRollback<bool> shaping(m_bShapingToolTip, true);
        if (event->type() == QEvent::Hide)
            releaseToolTipWidth(label);
        else if (event->type() == QEvent::Resize || event->type() == QEvent::Show) {
            shapeToolTip(label);
            keepOnScreen(label);
        }
    }
    return QProxyStyle::eventFilter(object, event);
}

// Under a style sheet the style of a widget is the sheet's, which stands on this one.
bool CCommonControlStyle::drawsFor(const QWidget *widget) const
{
    const QStyle *style = widget->style();
    return style->proxy() == proxy() || style->inherits("QStyleSheetStyle");
}

QSize CCommonControlStyle::sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                                            const QWidget *widget) const
{
    if (type == CT_ItemViewItem || type == CT_TabBarTab)
        return QCommonStyle::sizeFromContents(type, option, size, widget);
    const QSize based = QProxyStyle::sizeFromContents(type, option, size, widget);
    switch (type) {
    case CT_ComboBox: return QSize(based.width(), drawnComboBoxHeight);
    case CT_SpinBox: return spinBoxSize(based, option);
    case CT_Slider: return sliderSize(based, option);
    default: return based;
    }
}

// A base that is a proxy itself asks its own metrics; the plain layout asks those of this style.
QRect CCommonControlStyle::subElementRect(SubElement element, const QStyleOption *option, const QWidget *widget) const
{
    switch (element) {
    case SE_TabBarTabText:
    case SE_TabBarTabLeftButton:
    case SE_TabBarTabRightButton:
    case SE_ItemViewItemCheckIndicator:
    case SE_ItemViewItemDecoration:
    case SE_ItemViewItemText:
    case SE_ItemViewItemFocusRect: return QCommonStyle::subElementRect(element, option, widget);
    default: return QProxyStyle::subElementRect(element, option, widget);
    }
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
    const QRect rect = leftToRightSpinBoxRect(spinBox, subControl, proxy()->pixelMetric(PM_DefaultFrameWidth));
    return rect.isNull() ? rect : visualRect(option->direction, option->rect, rect);
}

QRect CCommonControlStyle::comboBoxRect(const QStyleOptionComplex *option, SubControl subControl,
                                        const QWidget *widget) const
{
    QRect rect = QProxyStyle::subControlRect(CC_ComboBox, option, subControl, widget);
    rect.setHeight(comboBoxHeight);
    // The list opens at an end of this one: below the drawn box, not over the feet of its text.
    if (subControl == SC_ComboBoxListBoxPopup)
        rect.moveBottom(option->rect.top() + drawnComboBoxHeight - 1);
    return rect;
}

Qt::Alignment CCommonControlStyle::visualAlignment(Qt::LayoutDirection direction, Qt::Alignment alignment)
{
    return QStyle::visualAlignment(direction, alignment);
}
