#pragma once

#include "CC4Styles/CommonControlStyle.h"
#include "include/zelcmnctrl_export.h"

/**
 * The house style with scroll bars made of bitmaps all over: a recessed groove and a rounded blue slider.
 *
 * Take the shared object with CC4StyleFactory::getStyle(CC4StyleFactory::BlueScrollStyle); it becomes the application's
 * style. A disabled scroll bar looks like an enabled one. A missing bitmap leaves its place unpainted.
 */
class ZELCMNCTRL_EXPORT CBlueScrollBarStyle : public CCommonControlStyle
{
public:
    CBlueScrollBarStyle();
    ~CBlueScrollBarStyle() override;

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget = nullptr) const override;

private:
    Q_DISABLE_COPY(CBlueScrollBarStyle)
};
