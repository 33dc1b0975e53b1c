#include "DesignerPlugin.h"

#include "DesignerWidget.h"
#include "WidgetTable.h"

DesignerPlugin::DesignerPlugin(QObject *parent) : QObject(parent)
{
    for (const WidgetRow &row : widgetTable())
        m_widgets.append(new DesignerWidget(row, this));
}
