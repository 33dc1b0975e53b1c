// The widgets that are painted for measuring, each of a fixed size and with contents, and how one is painted.
#pragma once

#include <QImage>
#include <QSize>
#include <QString>
#include <QWidget>

#include <memory>
#include <vector>

class QStyle;

/** A standard widget, and how much the house style may take to paint it, as a ratio to Fusion. */
struct WidgetKind
{
    QString name;
    std::unique_ptr<QWidget> (*make)();
    QSize size;
    double warmLimit;
    double coldLimit; // with the pixmap cache cleared before each painting; 0 where nothing is promised
};

const std::vector<WidgetKind> &widgetKinds();

/** Forty widgets of nine kinds; two in ten are labels. */
std::unique_ptr<QWidget> makeForm();

/** Gives the style, its palette and a size to a widget and all that are in it, and has it ready to paint. */
void dress(QWidget &widget, QStyle &style, const QSize &size);

/** An image to paint into, opaque behind the widget. */
class Canvas
{
public:
    explicit Canvas(const QSize &size) : m_image(size, QImage::Format_ARGB32_Premultiplied) { m_image.fill(Qt::white); }
    void paint(QWidget &widget) { widget.render(&m_image, QPoint(), QRegion(), QWidget::DrawChildren); }
    QImage &image() { return m_image; }

private:
    QImage m_image;
};
