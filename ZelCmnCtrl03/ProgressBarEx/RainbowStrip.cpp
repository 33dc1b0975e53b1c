#include "ProgressBarEx/RainbowStrip.h"

#include "UiGraphics.h"
#include "include/qt_compat.h"

#include <QPainter>

bool RainbowStrip::prepareFor(qreal ratio)
{
    if (qFuzzyCompare(m_ratio, ratio))
        return false;
    m_ratio = ratio;
    m_image = UIGGetPixmap(QStringLiteral("status-rainbow.png"), ratio);
    m_size = zel::deviceIndependentSize(m_image);
    m_iOffset = m_size.isEmpty() ? 0 : m_iOffset % m_size.width();
    return true;
}

bool RainbowStrip::step()
{
    if (m_size.isEmpty())
        return false;
    m_iOffset = (m_iOffset + 1) % m_size.width();
    return true;
}

void RainbowStrip::draw(QPainter *painter) const
{
    painter->drawPixmap(m_iOffset, 0, m_image);
    painter->drawPixmap(m_iOffset - m_size.width(), 0, m_image);
    painter->drawPixmap(m_iOffset + m_size.width(), 0, m_image);
}

bool RainbowStrip::covers(const QSize &area) const
{
    // At offset 0 the third copy ends two widths from the origin.
    return !m_image.hasAlpha() && area.height() <= m_size.height() && area.width() <= 2 * m_size.width();
}
