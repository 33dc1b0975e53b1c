#pragma once

#include <QStylePlugin>

/** The house style for any Qt application: "cc4", and "cc4-blue" with bitmap scroll bars. Case does not matter. */
class StylePlugin : public QStylePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QStyleFactoryInterface_iid FILE "StylePlugin.json")

public:
    /** A new style that belongs to the caller; null for any other key. */
    QStyle *create(const QString &key) override;
};
