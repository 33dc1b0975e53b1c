#pragma once

#include "include/zelcmnctrl_export.h"

#include <QColor>
#include <QFrame>

/**
 * The rule of the house: a horizontal line, one pixel high, from edge to edge in half the height of the widget.
 *
 * The frame shape, the line width and the colours of QFrame are never looked at. Assistive tools hear of a separator.
 */
class ZELCMNCTRL_EXPORT CFrame : public QFrame
{
    Q_OBJECT
    /** The colour of the line; see SetGradientFrame(). */
    Q_PROPERTY(QColor gradientFrame READ gradientFrame WRITE SetGradientFrame)

public:
    /** A black rule. */
    explicit CFrame(QWidget *parent = nullptr);
    ~CFrame() override;

    /** The colour of the whole line; black at first, and for an invalid colour. Shows with the next repaint. */
    void SetGradientFrame(QColor color);
    /** The colour that the line is drawn in. */
    QColor gradientFrame() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Q_DISABLE_COPY(CFrame)

    QColor m_lineColor;
};
