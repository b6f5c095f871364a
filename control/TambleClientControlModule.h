#pragma once

#include "base/ControlExport.h"

#include <QtQml/QQmlExtensionPlugin>

namespace tamble::client {

/// The frame of the QML module "TambleClient.Control" 1.0.
///
/// Use it in one of two ways, not both in one process. A QML engine that finds the module's qmldir loads this class as
/// a plugin and calls both functions itself. A C++ host without the qmldir within reach of its import paths links the
/// library and calls registerTypes() once and initializeEngine() for each engine. Qt refuses the mixture ("Namespace …
/// has already been used for type registration").
class TAMBLE_CLIENT_CONTROL_EXPORT TambleClientControlModule : public QQmlExtensionPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QQmlExtensionInterface_iid)

public:
    using QQmlExtensionPlugin::QQmlExtensionPlugin;

    /// Registers every type of the module under `uri`, version 1.0. Later calls with the same URI do nothing.
    void registerTypes(const char *uri) override;

    /// Prepares `engine`: mouse-event spy, image provider "tamble", import paths into the resources, interface font and
    /// the context property "maximumTouchPoints". May be repeated; `uri` is not used.
    void initializeEngine(QQmlEngine *engine, const char *uri) override;
};

} // namespace tamble::client
