#pragma once

#include "TambleClientControlModule.h"

#include <QtCore/QDebug>
#include <QtGui/private/qguiapplication_p.h>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickWindow>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <memory>

namespace tamble::client {

/// A page with the module, seen by a screen reader.
struct SeenPage
{
    QQmlEngine engine;
    QQuickWindow window;
    std::unique_ptr<QObject> root;

    explicit SeenPage(const QByteArray &content)
    {
        TambleClientControlModule module;
        module.registerTypes("TambleClient.Control");
        module.initializeEngine(&engine, "TambleClient.Control");
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(true);
        QQmlComponent component(&engine);
        component.setData("import QtQuick\nimport TambleClient.Control 1.0\n"
                          "Item { RThemeSelector { themeComponent: Component { RTheme {} } }\n"
                          "RStyleEngineSetup { engine.defaultStyleSheetSource: 'qrc:/style/tamble.dark.style' }\n" +
                              content + "}",
                          QUrl());
        root.reset(component.create());
        if (root)
            qobject_cast<QQuickItem *>(root.get())->setParentItem(window.contentItem());
        else
            qWarning() << component.errorString();
    }
};

} // namespace tamble::client
