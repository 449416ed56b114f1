#pragma once

#include <QQmlExtensionPlugin>

/** The QML module Drevon.Zalento.Measuring. */
class MeasuringPlugin : public QQmlExtensionPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QQmlExtensionInterface_iid)

public:
    void registerTypes(const char *uri) override;
};
