#include "LabelEx/RightToLeftText.h"

#include <QLabel>
#include <QPainter>
#include <QStyle>
#include <QTextDocument>
#include <QTextLayout>
#include <QtMath>

namespace {

bool isPlain(const QLabel &label)
{
    const Qt::TextFormat format = label.textFormat();
    return format == Qt::PlainText || (format == Qt::AutoText && !Qt::mightBeRichText(label.text()));
}

/** Lays out the lines below each other and gives the height of all. */
int layOut(QTextLayout &layout, int width)
{
    qreal bottom = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition(QPointF(0, bottom));
        bottom += line.height();
    }
    layout.endLayout();
    return qCeil(bottom);
}

} // namespace

bool RightToLeftText::isIn(const QLabel &label)
{
    return label.wordWrap() && label.text().isRightToLeft() && isPlain(label) && label.buddy() == nullptr &&
           label.frameWidth() == 0 && label.indent() <= 0 &&
           !label.textInteractionFlags().testFlag(Qt::TextSelectableByMouse);
}

void RightToLeftText::draw(QPainter *painter, const QLabel &label)
{
    const Qt::Alignment alignment = QStyle::visualAlignment(Qt::RightToLeft, label.alignment());
    QTextOption option((alignment & Qt::AlignHorizontal_Mask) | Qt::AlignAbsolute);
    option.setTextDirection(Qt::RightToLeft);
    option.setWrapMode(QTextOption::WordWrap);
    QString text = label.text();
    text.replace(QLatin1Char('\n'), QChar::LineSeparator);
    QTextLayout layout(text, label.font(), painter->device());
    layout.setTextOption(option);

    const int margin = label.margin();
    const QRect room = label.contentsRect().adjusted(margin, margin, -margin, -margin);
    const QSize size(room.width(), layOut(layout, room.width()));
    const QRect place = QStyle::alignedRect(Qt::LeftToRight, alignment, size, room);
    painter->setPen(label.palette().color(label.foregroundRole()));
    layout.draw(painter, place.topLeft());
}
