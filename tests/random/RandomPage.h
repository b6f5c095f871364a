#pragma once

#include "Random.h"

#include <QtCore/QMetaProperty>
#include <QtCore/QPointer>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickWindow>

#include <functional>
#include <memory>
#include <vector>

/// All types of the module that can be made, with what is needed to make them.
class TypeShelf
{
public:
    explicit TypeShelf(QQmlEngine &engine);

    std::size_t count() const { return m_names.size(); }
    const QString &name(std::size_t index) const { return m_names.at(index); }
    QObject *make(std::size_t index);

private:
    std::vector<QString> m_names;
    std::vector<std::unique_ptr<QQmlComponent>> m_components;
};

/// A few objects in a window, whose properties are written at random.
class RandomPage
{
public:
    /// `report` is given every step as a script before it is taken.
    RandomPage(QQmlEngine &engine, QQuickWindow &window, Random &random,
               const std::function<void(const QString &)> &report);
    ~RandomPage();

    void add(TypeShelf &shelf, std::size_t type);
    /// Writes a value to some property of some object.
    void write();
    /// Deletes some object while others may refer to it.
    void remove();
    /// Lets timers and polishing pass and draws a frame.
    void draw();

private:
    void run(const QString &script);

    QQmlEngine &m_engine;
    QQuickWindow &m_window;
    Random &m_random;
    std::function<void(const QString &)> m_report;
    std::vector<QPointer<QObject>> m_objects;
    std::vector<std::vector<QMetaProperty>> m_properties; // what can be written, for each object
    QJSValue m_wrappers;
};
