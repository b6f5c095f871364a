#pragma once

#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickWindow>

#include <cstddef>
#include <memory>
#include <vector>

/// CPU time of the calling thread in seconds: a neighbour on a shared machine does not count.
double threadSeconds();

/// Bytes in use on the heap of C++, without that of the script engine.
std::size_t heapBytes();

/// Items below the root of a window that is not shown.
class BenchScene
{
public:
    using Items = std::vector<std::unique_ptr<QQuickItem>>;

    BenchScene();

    /// `count` items of a type of the folder qml/, each in its place before its bindings are evaluated first.
    Items create(const char *type, std::size_t count);

    /// Lets the script engine give back what nothing uses, and deletes what waits for it.
    void settle();

private:
    QQmlEngine m_engine;
    QQuickWindow m_window;
};
