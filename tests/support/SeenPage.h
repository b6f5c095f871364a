#pragma once

#include "TambleClientControlModule.h"
#include "support/QmlText.h"

#include <QtGui/private/qguiapplication_p.h>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickWindow>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

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
        root = objectFrom(engine,
                          "import QtQuick\nimport TambleClient.Control 1.0\n"
                          "Item { RThemeSelector { themeComponent: Component { RTheme {} } }\n"
                          "RStyleEngineSetup { engine.defaultStyleSheetSource: 'qrc:/style/tamble.dark.style' }\n" +
                              content + "}");
        if (root)
            qobject_cast<QQuickItem *>(root.get())->setParentItem(window.contentItem());
    }

    /// An item from the text of its declaration, in the window; null for none.
    std::unique_ptr<QQuickItem> make(const QString &body)
    {
        auto object = objectFrom(engine, "import QtQuick\nimport TambleClient.Control 1.0\n" + body.toUtf8());
        std::unique_ptr<QQuickItem> item(qobject_cast<QQuickItem *>(object.release()));
        if (item)
            item->setParentItem(window.contentItem());
        return item;
    }
};

} // namespace tamble::client
