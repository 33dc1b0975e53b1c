#pragma once

#include "include/qt_compat.h"
#include "include/zelcmnctrl_export.h"

#include <QWidget>

class CSliderPrivate;
class QStyleOptionSlider;

/**
 * The range slider of the house: two handles on one horizontal track, with no ticks, no knob image and no filled range.
 *
 * Handle 0 is the lower one, handle 1 the upper one. One of them at a time is the active one: the handle that was last
 * pressed or named in setSliderPosition(int, int), and handle 0 before that. The keys, sliderPosition() and
 * setSliderPosition(int) act on it.
 *
 * Mouse and keys keep the handles in order and seven values apart. A drag that would bring them nearer is not cut short
 * at the limit: the handle stays where it was last. setSliderPosition() keeps neither order, distance nor range; a
 * position outside the range is stored as it is, and its handle is drawn at one of the ends of the track.
 *
 * The left and the middle button drag a handle. A press on the groove moves nothing; a drag that follows it moves the
 * active handle. The right button and the wheel are left to the parent. The keys move the active handle by 1 (Left,
 * Down, Right, Up) or 10 (Page Up, Page Down). Where the handles lie over each other, a press takes the one that has
 * more room: handle 1 in the lower half of the range, handle 0 in the upper half.
 *
 * The track runs from left to right in every layout. The control takes no style of its own: it shows two sliders of the
 * style in force, one over the other.
 *
 * To assistive technology it is a slider that tells both values, with a child for each handle that can be moved alone.
 */
class ZELCMNCTRL_EXPORT CDSliderEx : public QWidget
{
    Q_OBJECT
    // The maximum puts the handles on its ends, so the position comes after it.
    /** What the application calls its least value; see setMinimum(). */
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    /** The end of the track; see setMaximum(). */
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)
    /** The position of the active handle: on a form that of the lower one. */
    Q_PROPERTY(int sliderPosition READ sliderPosition WRITE setSliderPosition)

public:
    /**
     * The handles stand at 0 and 100 of a track from 0 to 100, and minimum() and maximum() give 0 until they are set:
     * set the range with setMaximum().
     */
    explicit CDSliderEx(QWidget *parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    ~CDSliderEx() override;

    /** The position of the active handle. */
    int sliderPosition() const;
    /** Moves the active handle, to any position at all. Emits valueChanged(), even where nothing changes. */
    void setSliderPosition(int position);
    /** Makes the handle, 0 or 1, the active one and moves it. Any other number moves the handle that is active. */
    void setSliderPosition(int handlenumber, int position);

    /** What setMinimum() was given last; 0 before. */
    int minimum() const { return m_iMinimum; }
    /** What setMaximum() was given last; 0 before. */
    int maximum() const { return m_iMaximum; }
    /**
     * Sets what minimum() tells and from where on a press counts the halves of the range. The track itself always
     * begins at 0, for the mouse as for the keys.
     */
    void setMinimum(int minimum);
    /**
     * Sets the range to 0 to `maximum` and puts the handles on its ends. Emits nothing, and shows with the next
     * repaint. With a maximum of 0 or less no handle can be moved by mouse or keys.
     */
    void setMaximum(int maximum);

    /** 84 pixels by the thickness of a slider, as the style wants it. */
    QSize sizeHint() const override;
    /** The same with the width of one handle. */
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /** Fires after each step of a drag and each setSliderPosition(), and so after each key that moves a handle. */
    void valueChanged(int value, int handlenumber);
    /**
     * Fires when a mouse button goes up, with the position of the active handle, moved or not; not before a handle has
     * become active, nor while the right button is held. Fires after every key, too, even one that does nothing.
     */
    void sliderReleased(int value, int handlenumber);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void enterEvent(zel::EnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    friend class DSliderExAccessible;
    friend class DSliderExHandleAccessible;
    Q_DISABLE_COPY(CDSliderEx)

    QStyleOptionSlider getStyleOption(int handlenumber) const;
    int pixelPosToRangeValue(int pos, int handlenumber) const;
    QRect handleRect(int handlenumber) const;
    int handleToTake() const;
    int handleOfOverlap() const;
    void takeHandle(int handlenumber, int x);
    void dragTo(int handlenumber, int value);
    void drawHandle(QPainter *painter, int handlenumber, QStyle::SubControls parts) const;
    void tellAssistants(int handlenumber);

    CSliderPrivate *d;
    int m_iMinimum = 0;
    int m_iMaximum = 0;
};
