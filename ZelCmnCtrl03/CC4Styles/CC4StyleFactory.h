#pragma once

#include "CC4Styles/CommonControlStyle.h"
#include "include/zelcmnctrl_export.h"

#include <QFlags>
#include <QPointer>

/**
 * Hands out the library's shared style objects, one of each kind, counted by references.
 *
 * The first request for the main style also makes it the application's style; the application owns it from then on, and
 * keeps it after the last reference is given back. CButtonEx takes and releases the main style by itself.
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
        BlueScrollStyle = 1, ///< the main style with bitmap scroll bars; not to be had yet, getStyle answers null
        TBWStyle = 2         ///< the small header style; not to be had yet, getStyle answers null
    };
    Q_DECLARE_FLAGS(CC4Styles, Styles)

    CC4StyleFactory() = default;
    CC4StyleFactory &operator=(const CC4StyleFactory &) { return *this; }

    /** The shared style of the kind, owned by the application; null, with a log record, for an unknown kind. */
    static QStyle *getStyle(CC4Styles styleType);

    /**
     * Gives one reference back. Destroys nothing: after the last one the factory only forgets the style.
     *
     * Match each getStyle that did not give null, once. An unknown kind changes nothing and leaves a log record.
     */
    static void releaseStyle(CC4Styles styleType);

private:
    static QPointer<CCommonControlStyle> m_pCC4Style; // null too once an application has replaced the style
    static int m_iRefCountCC4;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(CC4StyleFactory::CC4Styles)
