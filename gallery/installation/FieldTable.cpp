#include "FieldTable.h"

#include <QtCore/QHash>

namespace {

/// `first` is the index that the first of them is going to have.
QList<FieldSpec> channelFields(const QString &channel, int first)
{
    const auto name = [&](const char *suffix) { return channel + QLatin1String(suffix); };
    return {
        {name("DelaySamples"), ValueKind::Samples, 0.0, 96000.0},
        {name("DelayMs"), ValueKind::Milliseconds, 0.0, 2000.0, first},
        {name("Name"), ValueKind::Line, 0.0, 24.0},
        {name("Source"), ValueKind::Source, 0.0, 9999.0},
        {name("Gain"), ValueKind::Gain, -80.0, 18.0},
        {name("Mute"), ValueKind::Flag},
    };
}

QList<FieldSpec> createFields()
{
    QList<FieldSpec> fields{
        {QStringLiteral("name"), ValueKind::Line, 1.0, 24.0},
        {QStringLiteral("location"), ValueKind::Line, 0.0, 40.0},
        {QStringLiteral("ipAddress"), ValueKind::Address},
        {QStringLiteral("subnetMask"), ValueKind::SubnetMask},
        {QStringLiteral("gateway"), ValueKind::Address},
        {QStringLiteral("dhcp"), ValueKind::Flag},
        {QStringLiteral("pin"), ValueKind::Digits, 4.0, 8.0},
        {QStringLiteral("temperature"), ValueKind::Reading, -20.0, 120.0},
        {QStringLiteral("notes"), ValueKind::Lines, 0.0, 500.0},
    };
    for (int i = 1; i <= inputCount; ++i)
        fields.append(channelFields(QStringLiteral("input%1").arg(i), int(fields.size())));
    for (int i = 1; i <= outputCount; ++i)
        fields.append(channelFields(QStringLiteral("output%1").arg(i), int(fields.size())));
    return fields;
}

QHash<QStringView, int> createIndex()
{
    QHash<QStringView, int> index;
    const QList<FieldSpec> &fields = amplifierFields();
    for (int i = 0; i < int(fields.size()); ++i)
        index.insert(fields[i].name, i);
    return index;
}

} // namespace

const QList<FieldSpec> &amplifierFields()
{
    static const QList<FieldSpec> fields = createFields();
    return fields;
}

int fieldIndex(QStringView name)
{
    static const QHash<QStringView, int> index = createIndex();
    return index.value(name, -1);
}
