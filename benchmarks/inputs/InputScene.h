#pragma once

#include <QtCore/QStringListModel>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickWindow>

#include <atomic>
#include <cstddef>
#include <memory>

/// CPU time of the process in seconds.
double processSeconds();

/// Bytes in use on the heap of C++, without that of the script engine.
std::size_t heapBytes();

/// A window in which controls of the module, under its dark sheet, and of Qt Quick Controls Basic stand side by side.
class InputScene
{
public:
    InputScene();

    std::unique_ptr<QQmlComponent> compile(const char *import, const char *declaration);
    std::unique_ptr<QQuickItem> create(QQmlComponent &component);

    /// Lets the script engine give back what nothing uses, and deletes what waits for it.
    void settle();

    /// Until a frame is on the screen that was asked for after the call.
    void awaitFrame();

    QQuickWindow &window() { return m_window; }

private:
    QQmlEngine m_engine;
    std::unique_ptr<QObject> m_setup;
    QStringListModel m_channels; ///< 10,000 names, of which the last alone begins with "Z".
    QQuickWindow m_window;
    std::atomic_bool m_swapped = false; ///< The frame may be of another thread.
};
