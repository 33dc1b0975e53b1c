#include "DesignerWidget.h"

#include "HouseStyle.h"

#include <QWidget>

DesignerWidget::DesignerWidget(const WidgetRow &row, QObject *parent) : QObject(parent), m_row(row) {}

QWidget *DesignerWidget::createWidget(QWidget *parent)
{
    QWidget *widget = m_row.make(parent);
    if (m_pStyle != nullptr)
        HouseStyle::dress(widget, m_pStyle);
    return widget;
}

void DesignerWidget::initialize(QDesignerFormEditorInterface *)
{
    m_bInitialized = true;
    m_pStyle = HouseStyle::besideTheApplications();
}
