#include "CC4Styles/CC4StyleFactory.h"

#include "include/qt_globals.h"

#include <QApplication>

QPointer<CCommonControlStyle> CC4StyleFactory::m_pCC4Style;
QPointer<CBlueScrollBarStyle> CC4StyleFactory::m_pBlueScrollStyle;
QPointer<CTBWStyle> CC4StyleFactory::m_pTBWStyle;
int CC4StyleFactory::m_iRefCountCC4 = 0;
int CC4StyleFactory::m_iRefCountBlueScroll = 0;
int CC4StyleFactory::m_iRefCountTBW = 0;

namespace {

template <typename Style>
QStyle *takeForApplication(QPointer<Style> &style, int &count)
{
    if (style.isNull()) {
        style = new Style;
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
    case CC4Style: return takeForApplication(m_pCC4Style, m_iRefCountCC4);
    case BlueScrollStyle: return takeForApplication(m_pBlueScrollStyle, m_iRefCountBlueScroll);
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
