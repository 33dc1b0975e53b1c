#pragma once

#include "include/zelcmnctrl_export.h"

#include <QBasicTimer>
#include <QWidget>

#include <memory>

class RainbowStrip;

/**
 * The busy indicator of the house: a strip of rainbow that scrolls for ever, for work of open-ended length.
 *
 * It counts nothing and has nothing to set. It scrolls by one pixel every 10 milliseconds from its construction to its
 * destruction, on the event loop: an application that blocks the GUI thread stops it. Hidden, it costs next to nothing.
 *
 * The strip is the bitmap status-rainbow.png, which is never scaled. What does not fit is cut off; a bar that is higher
 * than the bitmap, or more than twice as wide, stays empty there, and wholly so without the bitmap. The house's own one
 * is 960 x 32 pixels. The bar starts with 200 x 10 pixels and has no size hint: in a layout, fix its height.
 *
 * Screen readers know it as a progress bar that is busy; give it an accessible name.
 */
class ZELCMNCTRL_EXPORT CProgressBarEx : public QWidget
{
    Q_OBJECT

public:
    /** An indicator that scrolls from now on. */
    explicit CProgressBarEx(QWidget *parent = nullptr);
    ~CProgressBarEx() override;

protected:
    void timerEvent(QTimerEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    Q_DISABLE_COPY(CProgressBarEx)

    void decideOpaqueness();

    QBasicTimer m_animationTimer;
    std::unique_ptr<RainbowStrip> m_pRainbow;
};
