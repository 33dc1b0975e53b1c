#include "HouseStyle.h"

#include <ZelCmnCtrl03/CC4StyleFactory>

#include <QApplication>
#include <QPointer>
#include <QStyle>
#include <QWidget>

namespace {

QStyle *takeFromFactory()
{
    QStyle *designers = QApplication::style();
    designers->setParent(nullptr); // or it would be destroyed when another one takes its place
    QStyle *house = CC4StyleFactory::getStyle(CC4StyleFactory::CC4Style); // for as long as the process
    house->setParent(nullptr);
    QApplication::setStyle(designers);
    house->setParent(qApp);
    return house;
}

} // namespace

QStyle *HouseStyle::besideTheApplications()
{
    static QPointer<QStyle> house;
    if (house.isNull() && qApp->styleSheet().isEmpty())
        house = takeFromFactory();
    return house;
}

void HouseStyle::dress(QWidget *widget, QStyle *style)
{
    QList<QWidget *> parts = widget->findChildren<QWidget *>();
    parts.append(widget);
    for (QWidget *part : std::as_const(parts))
        if (!part->testAttribute(Qt::WA_SetStyle))
            part->setStyle(style);
}
