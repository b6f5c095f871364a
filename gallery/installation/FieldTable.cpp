#include "FieldTable.h"

#include <QtCore/QHash>
#include <QtCore/QRegularExpression>
#include <QtCore/QStringList>

#include <array>

namespace {

constexpr std::array kinds{DeviceKind::Amplifier, DeviceKind::Mixer, DeviceKind::Matrix};

QList<FieldSpec> commonFields()
{
    return {
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
}

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

QList<FieldSpec> channelNameField(const QString &channel, int)
{
    return {{channel + QStringLiteral("Name"), ValueKind::Line, 0.0, 24.0}};
}

QList<FieldSpec> createFields(DeviceKind kind)
{
    const auto [inputs, outputs] = channelCount(kind);
    const auto ofChannel = kind == DeviceKind::Matrix ? channelNameField : channelFields;
    QList<FieldSpec> fields = commonFields();
    for (int i = 1; i <= inputs; ++i)
        fields.append(ofChannel("input" + QString::number(i), int(fields.size())));
    for (int i = 1; i <= outputs; ++i)
        fields.append(ofChannel("output" + QString::number(i), int(fields.size())));
    for (int i = 1; kind == DeviceKind::Matrix && i <= inputs; ++i) {
        for (int j = 1; j <= outputs; ++j)
            fields.append({"route" + QString::number(i) + u'x' + QString::number(j), ValueKind::Flag});
    }
    fields.append({QStringLiteral("mute"), ValueKind::Flag});
    return fields;
}

QHash<QStringView, int> createIndex(DeviceKind kind)
{
    QHash<QStringView, int> index;
    const QList<FieldSpec> &fields = deviceFields(kind);
    for (int i = 0; i < int(fields.size()); ++i)
        index.insert(fields[i].name, i);
    return index;
}

template <typename Value>
std::array<Value, kinds.size()> forEachKind(Value (*create)(DeviceKind kind))
{
    return {create(kinds[0]), create(kinds[1]), create(kinds[2])};
}

} // namespace

ChannelCount channelCount(DeviceKind kind)
{
    switch (kind) {
    case DeviceKind::Mixer:
        return {16, 2};
    case DeviceKind::Matrix:
        return {16, 16};
    default:
        return {4, 4};
    }
}

const QList<FieldSpec> &deviceFields(DeviceKind kind)
{
    static const auto fields = forEachKind(createFields);
    return fields[std::size_t(kind)];
}

int fieldIndex(QStringView name, DeviceKind kind)
{
    static const auto index = forEachKind(createIndex);
    return index[std::size_t(kind)].value(name, -1);
}

const FieldSpec *anyField(QStringView name)
{
    for (const DeviceKind kind : kinds) {
        if (const int field = fieldIndex(name, kind); field >= 0)
            return &deviceFields(kind).at(field);
    }
    return nullptr;
}

QString fieldTitle(const QString &name)
{
    static const QRegularExpression wordStart(QStringLiteral("(?<=[a-z])(?=[A-Z0-9])|(?<=[0-9])(?=[A-Za-z])|(?<=x)"
                                                             "(?=[0-9])"));
    QString title = name.split(wordStart).join(u' ').toLower();
    title[0] = title[0].toUpper();
    static const QRegularExpression initials(QStringLiteral("^(Ip|Dhcp|Pin)\\b"));
    const QString abbreviation = initials.match(title).captured();
    return title.replace(0, abbreviation.size(), abbreviation.toUpper());
}
