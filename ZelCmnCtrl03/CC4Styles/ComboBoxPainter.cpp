// The combo box and its label.
#include "CC4Styles/CommonControlStyle.h"

#include "CC4Styles/PaintTools.h"
#include "UiGraphics.h"
#include "include/qt_compat.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOptionComboBox>

#include <algorithm>

namespace {
constexpr int iconMargin = 4;
constexpr int boxHeight = 21; // however high the box is; a lower one keeps its bottom line
constexpr QPoint arrowFromTopRight(-18, 2);
} // namespace

void CCommonControlStyle::drawComboBox(const QStyleOptionComplex *option, QPainter *painter) const
{
    if (qstyleoption_cast<const QStyleOptionComboBox *>(option) == nullptr)
        return;
    const QRect rect = option->rect;
    const QBrush face = painter->brush();
    const QSize size(rect.width(), std::min(boxHeight, rect.height()));
    const auto draw = [&face, option](QPainter *picture, const QRect &area) {
        picture->fillRect(area, Qt::white);
        picture->fillRect(area, face);
        PaintTools::drawOutline(picture, area, UIGGetColor(QStringLiteral("UIGCLR_COMPLEX_CACHE_PAINTER")));
        const QPixmap arrow = UIGGetPixmap(QStringLiteral("dropdown-menu-arrow.png"), PaintTools::deviceRatio(picture));
        const QRect place(QPoint(area.width(), 0) + arrowFromTopRight, zel::deviceIndependentSize(arrow));
        picture->drawPixmap(visualRect(option->direction, area, place).topLeft(), arrow);
    };
    QString key = PaintTools::stateKey(QLatin1String("combobox"), option, rect.size());
    if (option->direction == Qt::RightToLeft)
        key += QLatin1String("-mirrored");
    // The face that the caller chose is part of the picture. Only a plain colour can be part of a key.
    if (face.style() == Qt::NoBrush)
        PaintTools::drawCachedPicture(painter, rect.topLeft(), size, key, draw);
    else if (face.style() == Qt::SolidPattern)
        PaintTools::drawCachedPicture(painter, rect.topLeft(), size, key + face.color().name(QColor::HexArgb), draw);
    else
        PaintTools::drawFoundPicture(painter, rect.topLeft(), size, key + QLatin1String("-textured"), draw);
}

void CCommonControlStyle::drawComboBoxLabel(const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    const auto *comboBox = qstyleoption_cast<const QStyleOptionComboBox *>(option);
    if (comboBox == nullptr)
        return;
    const bool enabled = option->state.testFlag(State_Enabled);
    QRect field = proxy()->subControlRect(CC_ComboBox, comboBox, SC_ComboBoxEditField, widget);
    painter->save();
    painter->setClipRect(field, Qt::ReplaceClip);
    if (!comboBox->currentIcon.isNull()) {
        const QPixmap icon =
            comboBox->currentIcon.pixmap(comboBox->iconSize, enabled ? QIcon::Normal : QIcon::Disabled, QIcon::Off);
        const int width = comboBox->iconSize.width() + iconMargin;
        const QRect place = alignedRect(QApplication::layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter,
                                        QSize(width, field.height()), field);
        if (comboBox->editable)
            painter->fillRect(place, option->palette.brush(QPalette::Base));
        proxy()->drawItemPixmap(painter, place, Qt::AlignCenter, icon);
        field.translate(option->direction == Qt::RightToLeft ? -width : width, 0);
    }
    if (!comboBox->currentText.isEmpty() && !comboBox->editable)
        proxy()->drawItemText(painter, field, Qt::AlignLeft | Qt::AlignVCenter, option->palette, enabled,
                              comboBox->currentText);
    painter->restore();
}
