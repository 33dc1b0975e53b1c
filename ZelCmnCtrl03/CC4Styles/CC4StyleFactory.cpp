#include "CC4Styles/CC4StyleFactory.h"

#include "ButtonEx/ButtonEx.h"
#include "TextBoxEx/TextBoxEx.h"
#include "include/qt_globals.h"

#include <QApplication>

QPointer<CCommonControlStyle> CC4StyleFactory::m_pCC4Style;
QPointer<CBlueScrollBarStyle> CC4StyleFactory::m_pBlueScrollStyle;
QPointer<CTBWStyle> CC4StyleFactory::m_pTBWStyle;
int CC4StyleFactory::m_iRefCountCC4 = 0;
int CC4StyleFactory::m_iRefCountBlueScroll = 0;
int CC4StyleFactory::m_iRefCountTBW = 0;

namespace {

/**
 * The main style, as the controls that take it by themselves hold it.
 *
 * Under a style sheet they hold it through Qt's style for these, which does not notice when the application replaces
 * the style and so destroys it. They get the application's new one then.
 */
class SharedMainStyle : public CCommonControlStyle
{
public:
    ~SharedMainStyle() override
    {
        const QWidgetList widgets = QApplication::allWidgets();
        for (QWidget *widget : widgets)
            if (holds(*widget))
                widget->setStyle(nullptr);
    }

private:
    bool holds(const QWidget &widget) const
    {
        const bool takesItself =
            qobject_cast<const CButtonEx *>(&widget) != nullptr || qobject_cast<const CTextBoxEx *>(&widget) != nullptr;
        return takesItself && widget.testAttribute(Qt::WA_SetStyle) &&
               (widget.style() == this || widget.style()->inherits("QStyleSheetStyle"));
    }
};

template <typename NewStyle, typename Style>
QStyle *takeForApplication(QPointer<Style> &style, int &count)
{
    if (style.isNull()) {
        style = new NewStyle;
        QApplication::setStyle(style);
    }
    ++count;
    return style;
}

QStyle *take(QPointer<CTBWStyle> &style, int &count)
{
    if (style.isNull())
        style = new CTBWStyle(nullptr);
    ++count;
    return style;
}

template <typename Style>
void release(QPointer<Style> &style, int &count)
{
    if (--count == 0)
        style.clear();
}

} // namespace

QStyle *CC4StyleFactory::getStyle(CC4Styles styleType)
{
    switch (static_cast<int>(styleType)) {
    case CC4Style: return takeForApplication<SharedMainStyle>(m_pCC4Style, m_iRefCountCC4);
    case BlueScrollStyle: return takeForApplication<CBlueScrollBarStyle>(m_pBlueScrollStyle, m_iRefCountBlueScroll);
    case TBWStyle: return take(m_pTBWStyle, m_iRefCountTBW);
    default:
        ZEL_LOG(zel::LogDetail, zel::CommonControls,
                QStringLiteral("CC4StyleFactory::getStyle - default case in switch"));
        return nullptr;
    }
}

void CC4StyleFactory::releaseStyle(CC4Styles styleType)
{
    switch (static_cast<int>(styleType)) {
    case CC4Style: return release(m_pCC4Style, m_iRefCountCC4);
    case BlueScrollStyle: return release(m_pBlueScrollStyle, m_iRefCountBlueScroll);
    case TBWStyle: return release(m_pTBWStyle, m_iRefCountTBW);
    default:
        // Misspelt for so long that people search their logs for it.
        ZEL_LOG(
            zel::LogDetail, zel::CommonControls,
            QStringLiteral("CC4StyleFactory::releaseStyle(CC4Styles styleType) - default statement in swicth case"));
    }
}
