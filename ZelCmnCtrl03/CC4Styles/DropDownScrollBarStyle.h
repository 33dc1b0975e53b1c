#pragma once

#include "CC4Styles/CommonControlStyle.h"
#include "include/zelcmnctrl_export.h"

/**
 * The house style with the slim vertical scroll bar of a drop-down's list, which keeps three pixels off the list's
 * entries.
 *
 * Each CDropDownEx has one of its own and sets it on the scroll bar of its list. It covers the whole widget with the
 * palette's base colour before any complex control is drawn, so it is for that one scroll bar. Without a widget it
 * draws nothing. A missing bitmap leaves its place unpainted.
 */
class ZELCMNCTRL_EXPORT CDropDownScrollBarStyle : public CCommonControlStyle
{
public:
    CDropDownScrollBarStyle();
    ~CDropDownScrollBarStyle() override;

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget = nullptr) const override;

private:
    Q_DISABLE_COPY(CDropDownScrollBarStyle)
};
