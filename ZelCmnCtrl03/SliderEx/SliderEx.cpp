#include "SliderEx/SliderEx.h"

#include "SliderEx/SliderKeys.h"
#include "include/qt_globals.h"

#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QStyleOptionFocusRect>
#include <QStyleOptionSlider>
#include <QStylePainter>
#include <QWheelEvent>

namespace {

// Half the width of the drawn handle: a click gets the handle's middle, not its edge. On every slider, since a caller's
// positions count on it.
constexpr QPoint clickOffset(5, 0);

} // namespace

CSliderEx::CSliderEx(QWidget *parent) : QSlider(parent)
{
    ZEL_LOG_SCOPE;
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QAbstractSlider::sliderReleased, this, &CSliderEx::slot_sliderReleased);
    connect(this, &QAbstractSlider::sliderPressed, this, &CSliderEx::slot_sliderPressed);
}

CSliderEx::~CSliderEx()
{
    ZEL_LOG_SCOPE;
}

void CSliderEx::setKnobImage(const QPixmap &image)
{
    ZEL_LOG_SCOPE;
    m_knobImage = image;
    update();
}

void CSliderEx::setKnobImage(const QString &path)
{
    ZEL_LOG_SCOPE;
    m_knobImage = QPixmap::fromImage(QImage(path), Qt::OrderedDither | Qt::OrderedAlphaDither);
    update();
}

void CSliderEx::setHandleRect(const QRect &rect)
{
    ZEL_LOG_SCOPE;
    m_handleRect = rect;
}

void CSliderEx::slot_sliderReleased()
{
    ZEL_LOG_SCOPE;
    Q_EMIT tempSliderReleased(sliderPosition());
}

void CSliderEx::slot_sliderPressed()
{
    ZEL_LOG_SCOPE;
    Q_EMIT tempSliderPressed(sliderPosition());
}

void CSliderEx::mousePressEvent(QMouseEvent *event)
{
    ZEL_LOG_SCOPE;
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    setFocus(Qt::MouseFocusReason);
    const QPointer<CSliderEx> self(this); // who is told of the value may destroy the slider
    const QPoint point = zel::localPosition(event);
    setSliderPosition(pixelPosToRangeValue(point - clickOffset));
    if (self.isNull())
        return;
    const QPoint grip = gripFor(point);
    if (grip == point) {
        QSlider::mousePressEvent(event);
        return;
    }
    QMouseEvent onHandle(event->type(), grip, mapTo(window(), grip), mapToGlobal(grip), event->button(),
                         event->buttons(), event->modifiers());
    QSlider::mousePressEvent(&onHandle);
    event->setAccepted(onHandle.isAccepted());
}

// Where the base is told of a press, once the handle has come to it: on the handle, so that a drag begins. The handle
// may still lie beside the pointer, if it is lower than the slider or the values are further apart than it is long; the
// base would take it a page further then. On an upright or inverted slider it has gone elsewhere, and all is left to
// the base.
QPoint CSliderEx::gripFor(const QPoint &point) const
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    if (option.orientation != Qt::Horizontal || option.upsideDown)
        return point;
    const QRect handle = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    return {qBound(handle.left(), point.x(), handle.right()), qBound(handle.top(), point.y(), handle.bottom())};
}

void CSliderEx::mouseMoveEvent(QMouseEvent *event)
{
    ZEL_LOG_SCOPE;
    QSlider::mouseMoveEvent(event);
}

void CSliderEx::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}

void CSliderEx::keyPressEvent(QKeyEvent *event)
{
    ZEL_LOG_SCOPE;
    const int step = SliderKeys::stepOf(event->key());
    if (step == 0) {
        event->ignore();
        return;
    }
    const int position = sliderPosition();
    if (step < 0 ? position > minimum() : position < maximum())
        setValue(position + step);
}

void CSliderEx::enterEvent(zel::EnterEvent *event)
{
    ZEL_LOG_SCOPE;
    setCursor(Qt::PointingHandCursor);
    QSlider::enterEvent(event);
}

void CSliderEx::leaveEvent(QEvent *event)
{
    ZEL_LOG_SCOPE;
    setCursor(Qt::ArrowCursor);
    QSlider::leaveEvent(event);
}

void CSliderEx::paintEvent(QPaintEvent *event)
{
    QSlider::paintEvent(event);
    if (!hasFocus())
        return;
    // The house style has no focus frame; other styles may.
    QStylePainter painter(this);
    QStyleOptionFocusRect option;
    option.initFrom(this);
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
}

// For the sizes of groove and handle only: where the handle is in this option does not matter.
QStyleOptionSlider CSliderEx::getStyleOption() const
{
    QStyleOptionSlider option;
    option.initFrom(this);
    option.subControls = QStyle::SC_None;
    option.activeSubControls = QStyle::SC_None;
    option.orientation = orientation();
    option.minimum = minimum();
    option.maximum = maximum();
    option.direction = Qt::LeftToRight;
    option.upsideDown = false;
    option.sliderValue = value();
    return option;
}

int CSliderEx::pixelPosToRangeValue(QPoint point) const
{
    const QStyleOptionSlider option = getStyleOption();
    const QRect groove = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, this);
    const QRect handle = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    const bool isHorizontal = orientation() == Qt::Horizontal;
    const int start = isHorizontal ? groove.x() : groove.y();
    const int end = isHorizontal ? groove.right() - handle.width() + 1 : groove.bottom() - handle.height() + 1;
    const int coordinate = isHorizontal ? point.x() : point.y();
    return QStyle::sliderValueFromPosition(minimum(), maximum(), coordinate - start, end - start, false);
}
