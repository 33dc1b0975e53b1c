// The controls that Qt Designer offers, as data. A control that joins the library becomes one row in the source file
// and one picture, icons/<class>.svg.
#pragma once

#include <QIcon>
#include <QSize>
#include <QString>
#include <QVector>

class QWidget;

/** One control of Designer's widget box. */
struct WidgetRow
{
    using Maker = QWidget *(*)(QWidget *parent);

    QString className;
    QString baseName; // that Designer may treat the control as
    QString group;
    QString toolTip;
    QSize size;         // of a new one, in pixels
    QString properties; // of a new one: <property> elements
    Maker make;

    /** What a form includes: "<ZelCmnCtrl03/CButtonEx>". */
    QString header() const;
    QIcon icon() const;
    /** The name of a new one, and of those that follow with a number: "buttonEx". */
    QString objectName() const;
    /** What Designer copies onto the form. */
    QString domXml() const;
};

/** All rows, in the order of the widget box. */
const QVector<WidgetRow> &widgetTable();
