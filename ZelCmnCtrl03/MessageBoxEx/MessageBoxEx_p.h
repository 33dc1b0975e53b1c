#pragma once

#include <QPoint>

class CButtonEx;

/** What a CMessageBoxEx keeps beside its fields. */
class CMessageBoxExPrivate
{
public:
    void init()
    {
        m_pButton = nullptr;
        m_bResizeable = false;
    }

    CButtonEx *m_pButton = nullptr; // the last answer of getButton
    bool m_bResizeable = false;
    QPoint m_backgroundOrigin; // where on the desktop the picture behind the box begins
};
