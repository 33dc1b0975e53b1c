#pragma once

#include "include/zelcmnctrl_export.h"

#include <QPixmap>
#include <QRect>
#include <QSlider>
#include <QString>
#include <QStringList>
#include <QWidget>

class CButtonEx;
class CSliderEx;
class CZoomSliderPrivate;
class QGridLayout;

/**
 * A horizontal CSliderEx between two image buttons, for zooming and for anything else that has a less and a more, such
 * as a colour temperature.
 *
 * The button on the left, the smaller one, zooms in, which takes 1 off the value; the larger one on the right zooms out
 * and adds 1. Every change of the value is told by zoomChanged(); with snapping on, changes that come from the slider
 * itself are told by signal_SliderMoved() instead, for an application that shows a preview while the handle moves.
 *
 * The parts are children with the object names "ZoomIn", "Slider" and "ZoomOut", in this tab order; the control itself
 * takes no focus. Assistive technology hears of "Smaller", "Zoom" and "Larger", in the language of the application; for
 * another purpose give the parts names of their own with setAccessibleName().
 *
 * The control runs from left to right in every layout, since a CSliderEx reads clicks so; setLayoutDirection() changes
 * that.
 */
class ZELCMNCTRL_EXPORT CZoomSlider : public QWidget
{
    Q_OBJECT
    // The range comes before the position, which it bounds.
    /** The least value, which the smaller button leads to; 0 at first. */
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    /** The greatest value, which the larger button leads to; 99 at first. */
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)
    /** The value; see setSliderPosition(). */
    Q_PROPERTY(int sliderPosition READ sliderPosition WRITE setSliderPosition)
    /** The image in place of the slider's drawn handle; see setKnobImage(). */
    Q_PROPERTY(QPixmap knobImage READ knobImage WRITE setKnobImage)
    /**
     * The image of the button on the left. Set as a property it also gives the button the room that the constructor
     * with images gives: a form is built without that one.
     */
    Q_PROPERTY(QPixmap smallerButtonImage READ smallerButtonImage WRITE fitSmallerButtonImage)
    /** The image of the button on the right, likewise. */
    Q_PROPERTY(QPixmap largerButtonImage READ largerButtonImage WRITE fitLargerButtonImage)
    /** See setSliderToSnapping(). */
    Q_PROPERTY(bool sliderToSnapping READ isSliderToSnapping WRITE setSliderToSnapping)

public:
    /**
     * Without images. The buttons get their greatest size from their images here and now, so these ones stay 4 x 4
     * pixels whatever setSmallerButtonImage() and setLargerButtonImage() bring, and temperatureSliderPressed() and
     * temperatureSliderReleased() only come through the slots.
     */
    explicit CZoomSlider(QWidget *parent = nullptr);
    /**
     * With the images of the buttons, from file paths. A file that is no image gives a button of 4 x 4 pixels. Of the
     * range and the steps of the slider see CSliderEx.
     */
    CZoomSlider(QWidget *parent, QString zoomIn, QString zoomOut);
    ~CZoomSlider() override;

    /** Called by the constructors. A further call only turns snapping off. */
    void Initialize();

    /**
     * Sets the image in place of the slider's drawn handle from a file path; see CSliderEx::setKnobImage(). A file that
     * is no image brings the drawn handle back.
     */
    void setKnobImage(const QString &path);
    /** The same with an image; a null one brings the drawn handle back. */
    void setKnobImage(const QPixmap &image);
    /** The image in place of the drawn handle; null while there is none. */
    const QPixmap &knobImage() const;

    /**
     * Sets the image of the button on the left from a file path. An image larger than the one that the control was
     * constructed with is cut, by all that exceeds 4 pixels. A file that is no image leaves the button empty.
     */
    void setSmallerButtonImage(const QString &path);
    /** The same with an image. */
    void setSmallerButtonImage(const QPixmap &image);
    /** The image of the button on the left; null while there is none. */
    const QPixmap &smallerButtonImage() const;
    /** Sets the image of the button on the right, as setSmallerButtonImage() does for the other one. */
    void setLargerButtonImage(const QString &path);
    /** The same with an image. */
    void setLargerButtonImage(const QPixmap &image);
    /** The image of the button on the right; null while there is none. */
    const QPixmap &largerButtonImage() const;

    /** Sets the upper end of the range, which is 0 to 99 at first. A minimum that is greater follows it. */
    void setMaximum(int maximum);
    /** The upper end of the range. */
    int maximum() const;
    /** Sets the lower end of the range. A maximum that is less follows it. */
    void setMinimum(int minimum);
    /** The lower end of the range. */
    int minimum() const;
    /** Moves the slider, and emits as a drag does where that changes the value. What is out of range ends at the range.
     */
    void setSliderPosition(int position);
    /** The position of the slider, which is the value; 0 at first. */
    int sliderPosition() const;

    /**
     * Tick marks on the given sides of the slider, about `count` of them, whatever the range: the interval is 100 /
     * count in whole numbers. With a count of 0 or less it is 0, which leaves their number to the style.
     */
    void setTicks(QSlider::TickPosition position, int count);

    /** Whether changes that come from the slider are told by signal_SliderMoved() in place of zoomChanged(). */
    void setSliderToSnapping(bool on);
    /** What setSliderToSnapping() was given last; false before, and again after Initialize(). */
    bool isSliderToSnapping() const;

Q_SIGNALS:
    /**
     * Fires for each change of the slider's value unless snapping is on, and, snapping or not, once for each click on a
     * button, at the ends of the range too.
     */
    void zoomChanged(int value);
    /** Fires when the handle of the slider is pressed, with its position; see the constructors. */
    void temperatureSliderPressed(int position);
    /** Fires when it is let go. */
    void temperatureSliderReleased(int position);
    /** Fires for each change of the slider's value while snapping is on. */
    void signal_SliderMoved(int value);

public Q_SLOTS:
    /** Tells of the value, by the signal that snapping chooses. Does not move the slider. */
    void setZoomed(int zoomValue);
    /** One step down, or to the minimum from below it. Emits zoomChanged() and nothing else. */
    void onZoomIn();
    /** One step up, or to the maximum from above it. Emits zoomChanged() and nothing else. */
    void onZoomOut();
    /** Emits temperatureSliderReleased() with the slider's position; the argument is not looked at. */
    void onSliderReleased(int position);
    /** Emits temperatureSliderPressed() likewise. */
    void onSliderPressed(int position);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void changeEvent(QEvent *event) override;

    void d_zel_func_CZoomSlider(CZoomSliderPrivate **out);

    /**
     * A press of any mouse button in it, in pixels of this widget, sends the slider to its minimum. Null, and so
     * without effect, unless a derived class sets it.
     */
    QRect smallerRect;
    /** The same for the maximum. */
    QRect largerRect;

private:
    Q_DISABLE_COPY(CZoomSlider)

    void createParts();
    void layOutParts();
    void fitSmallerButtonImage(const QPixmap &image);
    void fitLargerButtonImage(const QPixmap &image);
    void nameParts();
    void stepBy(int step);
    void goTo(int position);

    CButtonEx *m_pSmallerButton = nullptr;
    CButtonEx *m_pLargerButton = nullptr;
    CSliderEx *m_pSlider = nullptr;
    QGridLayout *m_pGridLayout = nullptr;
    QStringList m_sPartNames; // as given last: other ones are the application's own
    CZoomSliderPrivate *d = nullptr;
};
