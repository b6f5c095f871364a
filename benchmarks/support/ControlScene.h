#pragma once

#include "support/BenchWindow.h"

#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickItem>

#include <memory>

/// A window in which controls of the module, under its dark sheet, and of Qt Quick Controls Basic stand side by side.
class ControlScene
{
public:
    ControlScene();

    std::unique_ptr<QQmlComponent> compile(const char *import, const char *declaration);
    std::unique_ptr<QQuickItem> create(QQmlComponent &component);

    /// Lets the script engine give back what nothing uses, and deletes what waits for it.
    void settle();

    /// Until a frame is on the screen that was asked for after the call.
    void awaitFrame();

    QQmlEngine &engine() { return m_engine; }
    QQuickWindow &window() { return m_window; }

private:
    QQmlEngine m_engine;
    std::unique_ptr<QObject> m_setup;
    BenchWindow m_window;
};
