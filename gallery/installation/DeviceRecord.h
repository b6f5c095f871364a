#pragma once

#include "FieldTable.h"

#include <QtCore/QList>
#include <QtCore/QVariant>

/// A value of a field, by its index.
struct FieldChange
{
    int field;
    QVariant value;

    bool operator==(const FieldChange &) const = default;
};

/// The values of one device, by the indices of its fields.
class DeviceRecord
{
public:
    /// Every text empty, every number 0.
    explicit DeviceRecord(DeviceKind kind);

    DeviceKind kind() const { return m_kind; }

    const QVariant &read(int field) const { return m_values.at(field); }
    /// Writes a value of the field's own type and returns what is different now: a delay is held in samples and in ms.
    QList<FieldChange> write(int field, const QVariant &value);
    const QVariantList &values() const { return m_values; }
    /// Every field with its value.
    QList<FieldChange> all() const;

    bool operator==(const DeviceRecord &) const = default;

private:
    DeviceKind m_kind;
    QVariantList m_values;
};
