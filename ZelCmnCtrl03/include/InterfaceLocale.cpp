#include "include/InterfaceLocale.h"

#include "UiGraphics.h"
#include "UiGraphicsLanguage.h"

QLocale zel::interfaceLocale()
{
    if (!CUIGraphics::initializeUIG())
        return QLocale();
    return localeOfLanguage(CUIGraphics::use().language);
}
