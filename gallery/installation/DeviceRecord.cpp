#include "DeviceRecord.h"

#include "FieldRules.h"

#include <cmath>
#include <utility>

DeviceRecord::DeviceRecord(DeviceKind kind)
    : m_kind(kind)
{
    for (const FieldSpec &field : deviceFields(kind))
        m_values.append(emptyValue(field));
}

QList<FieldChange> DeviceRecord::write(int field, const QVariant &value)
{
    const QList<FieldSpec> &fields = deviceFields(m_kind);
    if (const int stored = fields[field].storedAs; stored >= 0)
        return write(stored, int(std::lround(value.toDouble() * samplesPerMillisecond)));
    if (m_values.at(field) == value)
        return {};
    m_values[field] = value;
    QList<FieldChange> changes{{field, value}};
    for (int other = 0; other < int(fields.size()); ++other) {
        if (fields[other].storedAs != field)
            continue;
        m_values[other] = value.toDouble() / samplesPerMillisecond;
        changes.append({other, m_values.at(other)});
    }
    return changes;
}

QList<FieldChange> DeviceRecord::all() const
{
    QList<FieldChange> fields;
    for (int field = 0; field < int(m_values.size()); ++field)
        fields.append({field, m_values.at(field)});
    return fields;
}
