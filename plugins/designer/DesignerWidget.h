#pragma once

#include "WidgetTable.h"

#include <QObject>
#include <QPointer>
#include <QStyle>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

/** One row of the table, as Qt Designer, QUiLoader and QFormBuilder ask for it. */
class DesignerWidget : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    DesignerWidget(const WidgetRow &row, QObject *parent);

    QString name() const override { return m_row.className; }
    QString group() const override { return m_row.group; }
    QString toolTip() const override { return m_row.toolTip; }
    QString whatsThis() const override { return m_row.toolTip; }
    QString includeFile() const override { return m_row.header(); }
    QIcon icon() const override { return m_row.icon(); }
    QString domXml() const override { return m_row.domXml(); }
    bool isContainer() const override { return false; }

    /** The control in its own look: in Qt Designer under the house style, elsewhere as any program makes it. */
    QWidget *createWidget(QWidget *parent) override;

    bool isInitialized() const override { return m_bInitialized; }
    /** Called by Qt Designer alone; what loads forms in an application does not. */
    void initialize(QDesignerFormEditorInterface *core) override;

private:
    const WidgetRow m_row;
    bool m_bInitialized = false;
    QPointer<QStyle> m_pStyle; // the house style in Designer; null elsewhere
};
