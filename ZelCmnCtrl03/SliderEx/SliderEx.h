#pragma once

#include "include/qt_compat.h"
#include "include/zelcmnctrl_export.h"

#include <QPixmap>
#include <QRect>
#include <QSlider>
#include <QString>

class QStyleOptionSlider;

/**
 * The slider of the house: a QSlider whose handle jumps to a click of the left button and can be an image, with a hand
 * cursor under the mouse, and with signals that carry the position at press and at release.
 *
 * It takes no style of its own: under the house style it looks as the house wants it, and it stays usable under any
 * other. Other mouse buttons and the wheel never change it; those events travel on to the parent.
 *
 * The keys move it by fixed steps, whatever singleStep() and pageStep() say: 1 for Left, Down, Right and Up, 10 for
 * Page Up and Page Down. They never leave the range.
 *
 * A click is read from left to right, or from top to bottom. On a slider that runs the other way (a vertical one, whose
 * minimum is at the bottom, an inverted one, a horizontal one in a right-to-left layout) it so gives the value of the
 * mirrored place, and no drag begins unless the handle happens to have come under the pointer.
 */
class ZELCMNCTRL_EXPORT CSliderEx : public QSlider
{
    Q_OBJECT
    /** The image in place of the drawn handle; see setKnobImage(). */
    Q_PROPERTY(QPixmap knobImage READ knobImage WRITE setKnobImage)

public:
    /** A vertical slider from 0 to 99, as QSlider makes it; see setOrientation(). */
    explicit CSliderEx(QWidget *parent = nullptr);
    ~CSliderEx() override;

    /** The image in place of the drawn handle; null while there is none. */
    const QPixmap &knobImage() const { return m_knobImage; }
    /**
     * Sets the image in place of the drawn handle. The handle takes its size, in pixels of the widget; on a vertical
     * slider with width and height exchanged. A null pixmap brings the drawn handle back.
     */
    void setKnobImage(const QPixmap &image);
    /** The same from a file path, as it stands. A file that is no image brings the drawn handle back. */
    void setKnobImage(const QString &path);

    /**
     * Where the handle was at the last painting, in pixels of the widget. Null before the first, and under a style that
     * does not tell.
     */
    QRect handleRect() { return m_handleRect; }
    /** For the style, which tells at every painting. Any rectangle is taken as it is. */
    void setHandleRect(const QRect &rect);

Q_SIGNALS:
    /** Fires with each sliderReleased(), with the position of the slider then. */
    void tempSliderReleased(int position);
    /** Fires with each sliderPressed(), with the position of the slider then: after a click, the new one. */
    void tempSliderPressed(int position);

public Q_SLOTS:
    /** Emits tempSliderReleased(). */
    void slot_sliderReleased();
    /** Emits tempSliderPressed(). */
    void slot_sliderPressed();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void enterEvent(zel::EnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    Q_DISABLE_COPY(CSliderEx)

    QStyleOptionSlider getStyleOption() const;
    int pixelPosToRangeValue(QPoint point) const;
    QPoint gripFor(const QPoint &point) const;

    QPixmap m_knobImage;
    QRect m_handleRect;
};
