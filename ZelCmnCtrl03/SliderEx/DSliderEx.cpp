#include "SliderEx/DSliderEx.h"

#include "SliderEx/DSliderExAccessible.h"
#include "SliderEx/DSliderEx_p.h"
#include "SliderEx/SliderKeys.h"
#include "include/qt_globals.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QStyleOptionSlider>

#include <algorithm>

namespace {

constexpr int handleGap = 7; // in values, whatever the range
constexpr int standardLength = 84;

QString refusedDrag(int handle, int position, int wanted, int otherPosition)
{
    return QStringLiteral("CDSliderEx::mouseMoveEvent - handle %1 stays at %2: %3 is too near to the other handle at "
                          "%4, or beyond it")
        .arg(handle)
        .arg(position)
        .arg(wanted)
        .arg(otherPosition);
}

} // namespace

CSliderPrivate::~CSliderPrivate() = default;

int CSliderPrivate::takenHandle() const
{
    if (active[0])
        return 0;
    return active[1] ? 1 : noHandle;
}

void CSliderPrivate::take(int handle)
{
    active[handle] = true;
    active[1 - handle] = false;
}

qint64 CSliderPrivate::lowest(int handle) const
{
    return handle == 0 ? qint64(minimum) : qint64(position[0]) + handleGap;
}

qint64 CSliderPrivate::highest(int handle) const
{
    return handle == 0 ? qint64(position[1]) - handleGap : qint64(maximum);
}

bool CSliderPrivate::refusesDrag(int handle, int newValue) const
{
    // Away from the other handle is always right, even where both are too near already.
    if (handle == 0)
        return newValue > position[0] && newValue > highest(0);
    return newValue < position[1] && newValue < lowest(1);
}

int CSliderPrivate::keyTarget(int handle, int step) const
{
    const int current = position[handle];
    if (step > 0)
        return current < highest(handle) ? int(std::min(qint64(current) + step, highest(handle))) : current;
    if (current <= minimum || current <= lowest(handle))
        return current;
    // A lower handle that was put above the other one comes back by pages only.
    if (handle == 0 && step == -SliderKeys::step && current >= position[1])
        return current;
    return int(std::max(qint64(current) + step, lowest(handle)));
}

CDSliderEx::CDSliderEx(QWidget *parent, Qt::WindowFlags flags) : QWidget(parent, flags), d(new CSliderPrivate)
{
    ZEL_LOG_SCOPE;
    DSliderExAccessible::install(this);
    setFocusPolicy(Qt::StrongFocus);
}

CDSliderEx::~CDSliderEx()
{
    ZEL_LOG_SCOPE;
    delete d;
}

int CDSliderEx::sliderPosition() const
{
    ZEL_LOG_SCOPE;
    return d->position[d->activeHandle()];
}

void CDSliderEx::setSliderPosition(int position)
{
    ZEL_LOG_SCOPE;
    const int handle = d->activeHandle();
    d->position[handle] = position;
    update();
    tellAssistants(handle);
    Q_EMIT valueChanged(position, handle);
}

void CDSliderEx::setSliderPosition(int handlenumber, int position)
{
    ZEL_LOG_SCOPE;
    if (handlenumber == 0 || handlenumber == 1)
        d->take(handlenumber);
    setSliderPosition(position);
}

void CDSliderEx::setMinimum(int minimum)
{
    ZEL_LOG_SCOPE;
    m_iMinimum = minimum;
    d->QAbstractSlider::setMinimum(minimum);
}

void CDSliderEx::setMaximum(int maximum)
{
    ZEL_LOG_SCOPE;
    m_iMaximum = maximum;
    d->QAbstractSlider::setMaximum(maximum);
    d->maximum = maximum;
    d->minimum = 0;
    for (int *ends : {d->value, d->position}) {
        ends[0] = 0;
        ends[1] = maximum;
    }
}

QSize CDSliderEx::sizeHint() const
{
    ensurePolished();
    const QStyleOptionSlider option = getStyleOption(0);
    const int thickness = style()->pixelMetric(QStyle::PM_SliderThickness, &option, this);
    return style()->sizeFromContents(QStyle::CT_Slider, &option, QSize(standardLength, thickness), this);
}

QSize CDSliderEx::minimumSizeHint() const
{
    const QSize size = sizeHint();
    const QStyleOptionSlider option = getStyleOption(0);
    return QSize(style()->pixelMetric(QStyle::PM_SliderLength, &option, this), size.height());
}

void CDSliderEx::mousePressEvent(QMouseEvent *event)
{
    ZEL_LOG_SCOPE;
    const bool isAlone = event->buttons() == Qt::MouseButtons(event->button());
    if (d->maximum == d->minimum || !isAlone || event->button() == Qt::RightButton) {
        event->ignore();
        ZEL_LOG_REFUSAL(QStringLiteral("CDSliderEx::mousePressEvent - (d->maximum == d->minimum || "
                                       "(ev->buttons() ^ ev->button()) || (ev->button() == Qt::RightButton))"));
        return;
    }
    event->accept();
    const QPoint point = zel::localPosition(event);
    for (int handle = 0; handle < CSliderPrivate::handleCount; ++handle) {
        const QStyleOptionSlider option = getStyleOption(handle);
        d->pressedControl[handle] = style()->hitTestComplexControl(QStyle::CC_Slider, &option, point, this);
    }
    const int handle = handleToTake();
    if (handle != CSliderPrivate::noHandle)
        takeHandle(handle, point.x());
    else
        update(); // a style may show what is pressed
}

int CDSliderEx::handleToTake() const
{
    const bool isOn0 = d->pressedControl[0] == QStyle::SC_SliderHandle;
    const bool isOn1 = d->pressedControl[1] == QStyle::SC_SliderHandle;
    if (isOn0 && isOn1)
        return handleOfOverlap();
    if (isOn0)
        return 0;
    return isOn1 ? 1 : CSliderPrivate::noHandle;
}

int CDSliderEx::handleOfOverlap() const
{
    const qint64 half = (qint64(m_iMaximum) - m_iMinimum) / 2;
    if (d->position[0] >= m_iMinimum && d->position[0] <= half)
        return 1;
    return d->position[1] > half && d->position[0] <= m_iMaximum ? 0 : CSliderPrivate::noHandle;
}

void CDSliderEx::takeHandle(int handlenumber, int x)
{
    d->clickOffset = x - handleRect(handlenumber).left();
    d->take(handlenumber);
    if (handlenumber == 1) {
        update();
        return;
    }
    update(handleRect(0));
    update(handleRect(1));
}

void CDSliderEx::mouseMoveEvent(QMouseEvent *event)
{
    ZEL_LOG_SCOPE;
    if (event->buttons().testFlag(Qt::RightButton)) {
        event->ignore();
        ZEL_LOG_REFUSAL(QStringLiteral("CDSliderEx::mouseMoveEvent - (ev->buttons() & Qt::RightButton)"));
        return;
    }
    event->accept();
    const int handle = d->takenHandle();
    if (handle == CSliderPrivate::noHandle) {
        event->ignore();
        ZEL_LOG_REFUSAL(QStringLiteral("CDSliderEx::mouseMoveEvent - ev->ignore()"));
        return;
    }
    const int newValue = pixelPosToRangeValue(zel::localPosition(event).x() - d->clickOffset, handle);
    if (d->refusesDrag(handle, newValue)) {
        ZEL_LOG_REFUSAL(refusedDrag(handle, d->position[handle], newValue, d->position[1 - handle]));
        return;
    }
    dragTo(handle, newValue);
}

void CDSliderEx::dragTo(int handlenumber, int value)
{
    d->value[handlenumber] = value;
    d->position[handlenumber] = value;
    repaint(); // at once: the handle stays under a fast pointer, however long the slots take
    tellAssistants(handlenumber);
    Q_EMIT valueChanged(value, handlenumber);
}

void CDSliderEx::mouseReleaseEvent(QMouseEvent *event)
{
    ZEL_LOG_SCOPE;
    if (event->buttons().testFlag(Qt::RightButton)) {
        event->ignore();
        ZEL_LOG_REFUSAL(QStringLiteral("CDSliderEx::mouseReleaseEvent - (ev->buttons() & Qt::RightButton)"));
        return;
    }
    event->accept();
    const int handle = d->takenHandle();
    if (handle == CSliderPrivate::noHandle) {
        event->ignore();
        ZEL_LOG_REFUSAL(QStringLiteral("CDSliderEx::mouseReleaseEvent - ev->ignore()"));
        return;
    }
    Q_EMIT sliderReleased(sliderPosition(), handle);
}

void CDSliderEx::keyPressEvent(QKeyEvent *event)
{
    ZEL_LOG_SCOPE;
    const int handle = d->activeHandle();
    const int step = SliderKeys::stepOf(event->key());
    if (step == 0)
        event->ignore();
    const int target = step == 0 ? d->position[handle] : d->keyTarget(handle, step);
    const QPointer<CDSliderEx> self(this); // who is told of the value may destroy the slider
    if (target != d->position[handle])
        setSliderPosition(target);
    if (!self.isNull())
        Q_EMIT sliderReleased(d->position[handle], handle);
}

void CDSliderEx::enterEvent(zel::EnterEvent *event)
{
    ZEL_LOG_SCOPE;
    setCursor(Qt::PointingHandCursor);
    QWidget::enterEvent(event);
}

void CDSliderEx::leaveEvent(QEvent *event)
{
    ZEL_LOG_SCOPE;
    setCursor(Qt::ArrowCursor);
    QWidget::leaveEvent(event);
}

void CDSliderEx::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    drawHandle(&painter, 0, QStyle::SC_SliderGroove | QStyle::SC_SliderHandle);
    drawHandle(&painter, 1, QStyle::SC_SliderHandle);
}

void CDSliderEx::drawHandle(QPainter *painter, int handlenumber, QStyle::SubControls parts) const
{
    QStyleOptionSlider option = getStyleOption(handlenumber);
    option.subControls = parts;
    if (d->pressedControl[handlenumber] != QStyle::SC_None) {
        option.state |= QStyle::State_Sunken;
        option.activeSubControls = d->pressedControl[handlenumber];
    }
    style()->drawComplexControl(QStyle::CC_Slider, &option, painter, this);
}

QStyleOptionSlider CDSliderEx::getStyleOption(int handlenumber) const
{
    QStyleOptionSlider option;
    option.initFrom(this);
    option.subControls = QStyle::SC_None;
    option.activeSubControls = QStyle::SC_None;
    option.orientation = d->orientation;
    option.minimum = d->minimum;
    option.maximum = d->maximum;
    option.upsideDown = false;
    option.direction = Qt::LeftToRight;
    option.sliderPosition = d->position[handlenumber];
    option.sliderValue = d->value[handlenumber];
    option.state |= QStyle::State_Horizontal;
    return option;
}

QRect CDSliderEx::handleRect(int handlenumber) const
{
    const QStyleOptionSlider option = getStyleOption(handlenumber);
    return style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
}

int CDSliderEx::pixelPosToRangeValue(int pos, int handlenumber) const
{
    // From a reversed range Qt computes values far outside.
    if (d->maximum < d->minimum)
        return d->position[handlenumber];
    const QStyleOptionSlider option = getStyleOption(handlenumber);
    const QRect groove = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, this);
    const int start = groove.x();
    const int end = groove.right() - handleRect(handlenumber).width() + 1;
    return QStyle::sliderValueFromPosition(d->minimum, d->maximum, pos - start, end - start, false);
}

void CDSliderEx::tellAssistants(int handlenumber)
{
    QAccessibleValueChangeEvent whole(this, d->position[handlenumber]);
    QAccessible::updateAccessibility(&whole);
    QAccessibleValueChangeEvent part(this, d->position[handlenumber]);
    part.setChild(handlenumber);
    QAccessible::updateAccessibility(&part);
}
