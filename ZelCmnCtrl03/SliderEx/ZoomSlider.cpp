#include "SliderEx/ZoomSlider.h"

#include "ButtonEx/ButtonEx.h"
#include "SliderEx/SliderEx.h"
#include "SliderEx/ZoomSlider_p.h"
#include "include/qt_compat.h"
#include "include/qt_globals.h"

#include <QEvent>
#include <QGridLayout>
#include <QMouseEvent>
#include <QPointer>
#include <QSignalBlocker>

#include <algorithm>
#include <iterator>

namespace {

constexpr int zoomStep = 1;
constexpr int sliderHeight = 30;
constexpr QSize buttonMargin(4, 4); // that a button has beyond its image
constexpr int tickUnits = 100;      // what the house style divides a slider into, whatever its range

CButtonEx *makeButton(const QString &objectName, QWidget *parent)
{
    auto *button = new CButtonEx(parent);
    button->setObjectName(objectName);
    button->setButtonStyle(CButtonEx::BSEX_Transparent);
    button->setEnabled(true);
    return button;
}

QSize sizeForImage(const CButtonEx *button)
{
    return zel::deviceIndependentSize(button->pixmap()) + buttonMargin;
}

QGridLayout *makeGrid(const QString &objectName, QWidget *parent)
{
    auto *grid = new QGridLayout(parent);
    grid->setObjectName(objectName);
    grid->setSpacing(0);
    grid->setContentsMargins(0, 0, 0, 0);
    return grid;
}

} // namespace

void CZoomSliderPrivate::init()
{
    ZEL_LOG_SCOPE;
    m_pInnerLayout = nullptr;
    m_bSnapping = false;
}

CZoomSliderPrivate::~CZoomSliderPrivate()
{
    ZEL_LOG_SCOPE;
}

CZoomSlider::CZoomSlider(QWidget *parent) : QWidget(parent)
{
    ZEL_LOG_SCOPE;
    createParts();
    Initialize();
}

// By value in the public interface. NOLINTNEXTLINE(performance-unnecessary-value-param)
CZoomSlider::CZoomSlider(QWidget *parent, QString zoomIn, QString zoomOut) : QWidget(parent)
{
    ZEL_LOG_SCOPE_SAYING(u"CZoomSlider::CZoomSlider - QString zoomIn, QString zoomOut", zel::CommonControls);
    createParts();
    connect(m_pSlider, &CSliderEx::tempSliderReleased, this, &CZoomSlider::onSliderReleased);
    connect(m_pSlider, &CSliderEx::tempSliderPressed, this, &CZoomSlider::onSliderPressed);
    setSmallerButtonImage(zoomIn);
    setLargerButtonImage(zoomOut);
    Initialize();
}

CZoomSlider::~CZoomSlider()
{
    ZEL_LOG_SCOPE;
    delete d;
}

void CZoomSlider::createParts()
{
    setLayoutDirection(Qt::LeftToRight);
    m_pSlider = new CSliderEx(this);
    m_pSlider->setObjectName(QStringLiteral("Slider"));
    m_pSlider->setOrientation(Qt::Horizontal);
    connect(m_pSlider, &QAbstractSlider::valueChanged, this, &CZoomSlider::setZoomed);
    m_pSmallerButton = makeButton(QStringLiteral("ZoomIn"), this);
    connect(m_pSmallerButton, &QAbstractButton::clicked, this, &CZoomSlider::onZoomIn);
    m_pLargerButton = makeButton(QStringLiteral("ZoomOut"), this);
    connect(m_pLargerButton, &QAbstractButton::clicked, this, &CZoomSlider::onZoomOut);
    setTabOrder(m_pSmallerButton, m_pSlider);
    nameParts();
}

void CZoomSlider::nameParts()
{
    const QStringList names = {tr("Smaller"), tr("Zoom"), tr("Larger")};
    QWidget *const parts[] = {m_pSmallerButton, m_pSlider, m_pLargerButton};
    for (int i = 0; i < int(std::size(parts)); ++i)
        if (parts[i]->accessibleName() == m_sPartNames.value(i))
            parts[i]->setAccessibleName(names.at(i));
    m_sPartNames = names;
}

void CZoomSlider::Initialize()
{
    ZEL_LOG_SCOPE;
    delete d;
    d = new CZoomSliderPrivate;
    d->init();
    if (m_pGridLayout == nullptr)
        layOutParts();
}

void CZoomSlider::layOutParts()
{
    m_pGridLayout = makeGrid(QStringLiteral("gridLayout"), this);
    d->m_pInnerLayout = makeGrid(QStringLiteral("gridLayout1"), nullptr);
    m_pSmallerButton->setMaximumSize(sizeForImage(m_pSmallerButton));
    d->m_pInnerLayout->addWidget(m_pSmallerButton, 0, 0);
    m_pSlider->setMinimumHeight(sliderHeight);
    d->m_pInnerLayout->addWidget(m_pSlider, 0, 1);
    m_pLargerButton->setFixedSize(sizeForImage(m_pLargerButton));
    d->m_pInnerLayout->addWidget(m_pLargerButton, 0, 2);
    m_pGridLayout->addLayout(d->m_pInnerLayout, 0, 0);
}

void CZoomSlider::setKnobImage(const QString &path)
{
    ZEL_LOG_SCOPE;
    m_pSlider->setKnobImage(path);
    update();
}

void CZoomSlider::setKnobImage(const QPixmap &image)
{
    ZEL_LOG_SCOPE;
    m_pSlider->setKnobImage(image);
    update();
}

const QPixmap &CZoomSlider::knobImage() const
{
    return m_pSlider->knobImage();
}

void CZoomSlider::setSmallerButtonImage(const QString &path)
{
    ZEL_LOG_SCOPE;
    m_pSmallerButton->setImage(path);
}

void CZoomSlider::setSmallerButtonImage(const QPixmap &image)
{
    ZEL_LOG_SCOPE;
    m_pSmallerButton->setImage(image);
}

const QPixmap &CZoomSlider::smallerButtonImage() const
{
    return m_pSmallerButton->pixmap();
}

void CZoomSlider::setLargerButtonImage(const QString &path)
{
    ZEL_LOG_SCOPE;
    m_pLargerButton->setImage(path);
}

void CZoomSlider::setLargerButtonImage(const QPixmap &image)
{
    ZEL_LOG_SCOPE;
    m_pLargerButton->setImage(image);
}

const QPixmap &CZoomSlider::largerButtonImage() const
{
    return m_pLargerButton->pixmap();
}

void CZoomSlider::fitSmallerButtonImage(const QPixmap &image)
{
    m_pSmallerButton->setPixmap(image);
    m_pSmallerButton->setMaximumSize(sizeForImage(m_pSmallerButton));
}

void CZoomSlider::fitLargerButtonImage(const QPixmap &image)
{
    m_pLargerButton->setPixmap(image);
    m_pLargerButton->setFixedSize(sizeForImage(m_pLargerButton));
}

void CZoomSlider::setMaximum(int maximum)
{
    ZEL_LOG_SCOPE;
    m_pSlider->setMaximum(maximum);
}

int CZoomSlider::maximum() const
{
    return m_pSlider->maximum();
}

void CZoomSlider::setMinimum(int minimum)
{
    ZEL_LOG_SCOPE;
    m_pSlider->setMinimum(minimum);
}

int CZoomSlider::minimum() const
{
    return m_pSlider->minimum();
}

void CZoomSlider::setSliderPosition(int position)
{
    ZEL_LOG_SCOPE;
    m_pSlider->setSliderPosition(position);
}

int CZoomSlider::sliderPosition() const
{
    return m_pSlider->sliderPosition();
}

void CZoomSlider::setTicks(QSlider::TickPosition position, int count)
{
    ZEL_LOG_SCOPE;
    m_pSlider->setTickPosition(position);
    m_pSlider->setTickInterval(count > 0 ? tickUnits / count : 0);
    m_pSlider->update();
}

void CZoomSlider::setSliderToSnapping(bool on)
{
    ZEL_LOG_SCOPE;
    d->m_bSnapping = on;
}

bool CZoomSlider::isSliderToSnapping() const
{
    return d->m_bSnapping;
}

void CZoomSlider::setZoomed(int zoomValue)
{
    ZEL_LOG_SCOPE;
    if (d->m_bSnapping)
        Q_EMIT signal_SliderMoved(zoomValue);
    else
        Q_EMIT zoomChanged(zoomValue);
}

void CZoomSlider::onZoomIn()
{
    ZEL_LOG_SCOPE;
    stepBy(-zoomStep);
}

void CZoomSlider::onZoomOut()
{
    ZEL_LOG_SCOPE;
    stepBy(zoomStep);
}

// Past setZoomed: a click on a button is meant as it is, snapping or not.
void CZoomSlider::stepBy(int step)
{
    const qint64 wanted = qint64(sliderPosition()) + step;
    const int position = int(std::clamp<qint64>(wanted, minimum(), maximum()));
    {
        const QSignalBlocker blocker(m_pSlider);
        m_pSlider->setSliderPosition(position);
    }
    Q_EMIT zoomChanged(position);
}

void CZoomSlider::onSliderReleased(int position)
{
    ZEL_LOG_SCOPE;
    Q_UNUSED(position)
    Q_EMIT temperatureSliderReleased(sliderPosition());
}

void CZoomSlider::onSliderPressed(int position)
{
    ZEL_LOG_SCOPE;
    Q_UNUSED(position)
    Q_EMIT temperatureSliderPressed(sliderPosition());
}

void CZoomSlider::mousePressEvent(QMouseEvent *event)
{
    ZEL_LOG_SCOPE;
    const QPoint point = zel::localPosition(event);
    const QPointer<CZoomSlider> self(this); // who is told of the value may destroy the control
    if (smallerRect.contains(point))
        goTo(minimum());
    if (!self.isNull() && largerRect.contains(point))
        goTo(maximum());
    if (!self.isNull())
        QWidget::mousePressEvent(event);
}

void CZoomSlider::goTo(int position)
{
    const QPointer<CZoomSlider> self(this);
    m_pSlider->setSliderPosition(position);
    if (!self.isNull())
        setZoomed(position);
}

void CZoomSlider::changeEvent(QEvent *event)
{
    ZEL_LOG_SCOPE;
    if (event->type() == QEvent::LanguageChange)
        nameParts();
    QWidget::changeEvent(event);
}

void CZoomSlider::d_zel_func_CZoomSlider(CZoomSliderPrivate **out)
{
    *out = d;
}
