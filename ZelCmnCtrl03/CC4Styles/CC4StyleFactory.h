#pragma once

#include "CC4Styles/BlueScrollBarStyle.h"
#include "CC4Styles/CommonControlStyle.h"
#include "CC4Styles/TBWStyle.h"
#include "include/zelcmnctrl_export.h"

#include <QFlags>
#include <QPointer>

/**
 * Hands out the library's shared style objects, one of each kind, counted by references.
 *
 * The first request for the main style or the one with blue scroll bars also makes it the application's style; the
 * application owns it from then on, and keeps it after the last reference is given back. An application stays with one
 * of the two: asking for the other one replaces the first, which is destroyed. CButtonEx and CTextBoxEx take and
 * release the main style by themselves.
 *
 * GUI thread only.
 */
class ZELCMNCTRL_EXPORT CC4StyleFactory
{
public:
    /** The kinds. They are compared as whole numbers, not as bits. */
    enum Styles : int
    {
        CC4Style = 0,        ///< the main style, CCommonControlStyle
        BlueScrollStyle = 1, ///< the main style with bitmap scroll bars, CBlueScrollBarStyle
        TBWStyle = 2         ///< the small header style, CTBWStyle; never the application's
    };
    Q_DECLARE_FLAGS(CC4Styles, Styles)

    CC4StyleFactory() = default;
    /** Does nothing: factories have no state of their own. */
    CC4StyleFactory &operator=(const CC4StyleFactory &) { return *this; }

    /**
     * The shared style of the kind; null, with a log record, for an unknown kind.
     *
     * The application owns the first two kinds. A CTBWStyle belongs to whoever sets it on a widget, or to nobody: it
     * then lives for as long as the process.
     */
    static QStyle *getStyle(CC4Styles styleType);

    /**
     * Gives one reference back. Destroys nothing: after the last one the factory only forgets the style.
     *
     * Match each getStyle that did not give null, once. An unknown kind changes nothing and leaves a log record.
     */
    static void releaseStyle(CC4Styles styleType);

private:
    // Null too once an application has replaced the style.
    static QPointer<CCommonControlStyle> m_pCC4Style;
    static QPointer<CBlueScrollBarStyle> m_pBlueScrollStyle;
    static QPointer<CTBWStyle> m_pTBWStyle;
    static int m_iRefCountCC4;
    static int m_iRefCountBlueScroll;
    static int m_iRefCountTBW;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(CC4StyleFactory::CC4Styles)
