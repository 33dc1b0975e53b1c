#pragma once

#include "ButtonEx/MenuPointerWatch.h"
#include "MenuEx/MenuEx.h"

#include <QBasicTimer>
#include <QPointer>

/** What a CButtonEx keeps of its menu. */
class CButtonExPrivate
{
public:
    void init()
    {
        m_pMenu.clear();
        m_iIdleTicks = 0;
    }

    QPointer<CMenuEx> m_pMenu;
    int m_iIdleTicks = 0; // of m_menuTimer, since the mouse was last on the button or the menu
    QBasicTimer m_menuTimer;
    MenuPointerWatch m_pointerWatch;
};
