#include "Installation.h"

#include <QtCore/QVariant>

namespace {

class Edit : public QUndoCommand
{
public:
    Edit(Device &device, const QByteArray &property, const QVariant &value, const QString &text)
        : QUndoCommand(text)
        , m_device(device)
        , m_property(property)
        , m_before(device.property(property))
        , m_value(value)
    {}

    void undo() override { m_device.setProperty(m_property, m_before); }
    void redo() override { m_device.setProperty(m_property, m_value); }

private:
    Device &m_device;
    QByteArray m_property;
    QVariant m_before;
    QVariant m_value;
};

} // namespace

Installation::Installation(QObject *parent)
    : QObject(parent)
    , m_devices(nullptr)
{}

void Installation::edit(Device *device, const QString &property, const QVariant &value, const QString &title)
{
    const QByteArray name = property.toLatin1();
    if (device->property(name) != value)
        m_history.push(new Edit(*device, name, value, tr("%1: %2").arg(device->property("name").toString(), title)));
}
