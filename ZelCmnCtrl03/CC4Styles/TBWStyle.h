#pragma once

#include "include/zelcmnctrl_export.h"

#include <QProxyStyle>

/**
 * The Windows style with flat header sections: a sorted one in the highlight colour with a small triangle, the others
 * in the button colour.
 *
 * For a header view: `view->setStyle(CC4StyleFactory::getStyle(CC4StyleFactory::TBWStyle))`. It takes all colours from
 * the palette and knows neither the look registry nor its bitmaps.
 */
class ZELCMNCTRL_EXPORT CTBWStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /** `parent` is not used: the style belongs to its caller. */
    explicit CTBWStyle(QObject *parent);
    ~CTBWStyle() override;

    /** Deletes the style. For whoever owns one directly: never on null. */
    void dispose();

    /** A triangle of four rows for a sorted section with a text; nothing for any other. */
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
    /** Draws CE_Header with its flat fill, and nothing for CE_HeaderSection. */
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget = nullptr) const override;

private:
    Q_DISABLE_COPY(CTBWStyle)

    void drawHeaderArrow(const QStyleOption *option, QPainter *painter) const;
    void drawHeader(const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
};
