#include "ProgressBarEx/ProgressBarEx.h"

#include "ProgressBarEx/AccessibleProgress.h"
#include "ProgressBarEx/RainbowStrip.h"
#include "include/accessible_factory.h"
#include "include/qt_globals.h"

#include <QPainter>

namespace {

constexpr QSize startSize(200, 10);

QAccessibleInterface *makeAccessible(const QString &, QObject *object)
{
    auto *bar = qobject_cast<CProgressBarEx *>(object);
    return bar != nullptr ? new AccessibleProgress(bar) : nullptr; // Qt's cache owns it
}

} // namespace

CProgressBarEx::CProgressBarEx(QWidget *parent) : QWidget(parent), m_pRainbow(std::make_unique<RainbowStrip>())
{
    ZEL_LOG_SCOPE;
    zel::installAccessible(makeAccessible, this);
    m_pRainbow->prepareFor(devicePixelRatioF());
    resize(startSize);
    decideOpaqueness(); // the resize event waits until the first show
    m_animationTimer.start(RainbowStrip::interval, this);
}

CProgressBarEx::~CProgressBarEx()
{
    ZEL_LOG_SCOPE;
    m_animationTimer.stop();
}

void CProgressBarEx::timerEvent(QTimerEvent *)
{
    ZEL_LOG_SCOPE;
    if (m_pRainbow->step())
        repaint();
}

void CProgressBarEx::paintEvent(QPaintEvent *)
{
    ZEL_LOG_SCOPE;
    if (m_pRainbow->prepareFor(devicePixelRatioF()))
        decideOpaqueness();
    QPainter painter(this);
    m_pRainbow->draw(&painter);
}

void CProgressBarEx::resizeEvent(QResizeEvent *)
{
    ZEL_LOG_SCOPE;
    decideOpaqueness();
}

// Otherwise Qt would paint what lies behind the strip at every step, the parent's own painting included.
void CProgressBarEx::decideOpaqueness()
{
    setAttribute(Qt::WA_OpaquePaintEvent, m_pRainbow->covers(size()));
}
