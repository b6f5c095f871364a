#pragma once

#include "DeviceList.h"

#include <QtGui/QUndoStack>
#include <QtQml/qqml.h>

/// As `UndoStack` in QML.
struct UndoStackType
{
    Q_GADGET
    QML_FOREIGN(QUndoStack)
    QML_NAMED_ELEMENT(UndoStack)
    QML_UNCREATABLE("Made by Installation")
};

/// The devices as the gallery's installer leaves them, and what was edited in them.
class Installation : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the program")
    Q_PROPERTY(DeviceList *devices READ devices CONSTANT)
    Q_PROPERTY(QUndoStack *history READ history CONSTANT)

public:
    explicit Installation(QObject *parent = nullptr);

    DeviceList *devices() { return &m_devices; }
    QUndoStack *history() { return &m_history; }

    /// Writes a property of a device as a step that can be undone. `title` is the field for people.
    Q_INVOKABLE void edit(Device *device, const QString &property, const QVariant &value, const QString &title);

private:
    DeviceList m_devices;
    QUndoStack m_history;
};
