#include "StylePlugin.h"

#include <ZelCmnCtrl03/CBlueScrollBarStyle>
#include <ZelCmnCtrl03/CCommonControlStyle>

QStyle *StylePlugin::create(const QString &key)
{
    if (key.compare(QLatin1String("cc4"), Qt::CaseInsensitive) == 0)
        return new CCommonControlStyle;
    if (key.compare(QLatin1String("cc4-blue"), Qt::CaseInsensitive) == 0)
        return new CBlueScrollBarStyle;
    return nullptr;
}
