#include "CC4Styles/CC4StyleFactory.h"

#include "include/qt_globals.h"

#include <QApplication>

QPointer<CCommonControlStyle> CC4StyleFactory::m_pCC4Style;
int CC4StyleFactory::m_iRefCountCC4 = 0;

QStyle *CC4StyleFactory::getStyle(CC4Styles styleType)
{
    switch (static_cast<int>(styleType)) {
    case CC4Style:
        if (m_pCC4Style.isNull()) {
            m_pCC4Style = new CCommonControlStyle;
            QApplication::setStyle(m_pCC4Style);
        }
        ++m_iRefCountCC4;
        return m_pCC4Style;
    default:
        ZEL_LOG(zel::LogDetail, zel::CommonControls,
                QStringLiteral("CC4StyleFactory::getStyle - default case in switch"));
        return nullptr;
    }
}

void CC4StyleFactory::releaseStyle(CC4Styles styleType)
{
    switch (static_cast<int>(styleType)) {
    case CC4Style:
        if (--m_iRefCountCC4 == 0)
            m_pCC4Style.clear();
        return;
    default:
        ZEL_LOG(
            zel::LogDetail, zel::CommonControls,
            QStringLiteral("CC4StyleFactory::releaseStyle(CC4Styles styleType) - default statement in swicth case"));
    }
}
