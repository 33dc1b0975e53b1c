#include "Panels.h"

#include <QPainter>

namespace gallery {

Picture::Picture(const QPixmap &pixmap, QWidget *parent) : QWidget(parent), m_pixmap(pixmap)
{
    resize(Picture::sizeHint());
}

QSize Picture::sizeHint() const
{
    return m_pixmap.size() / m_pixmap.devicePixelRatioF();
}

void Picture::paintEvent(QPaintEvent *)
{
    QPainter(this).drawPixmap(0, 0, m_pixmap);
}

// In a disabled page too: the tray is the background of what is shown, not a part of it.
void TrayPanel::paintEvent(QPaintEvent *)
{
    const QColor blue = palette().color(QPalette::Active, QPalette::Highlight);
    QLinearGradient gradient(0, 0, 0, height());
    gradient.setColorAt(0, blue);
    gradient.setColorAt(1, blue.lighter(140));
    QPainter(this).fillRect(rect(), gradient);
}

} // namespace gallery
