#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringView>

#include <limits>

/// What sort of value a field holds; FieldRules.h says what each allows.
enum class ValueKind {
    Line,         ///< one line of text
    Lines,        ///< several lines of text
    Digits,       ///< digits, as in a PIN
    Address,      ///< IPv4 address as text
    SubnetMask,   ///< IPv4 mask as text
    Flag,         ///< on or off
    Source,       ///< id of an audio source, 0 for none
    Gain,         ///< dB, −∞ for off
    Samples,      ///< whole samples at 48 kHz
    Milliseconds, ///< time that the device rounds to whole samples
    Reading,      ///< number that the device measures
};

/// One of the values that a device has.
struct FieldSpec
{
    QString name;
    ValueKind kind;
    /// Bounds of a number, or of the length of a text in characters.
    double minimum = 0.0;
    double maximum = 0.0;
    /// Field of the same record that holds the value in samples; −1 for a field that holds its own.
    int storedAs = -1;
};

enum class DeviceKind { Amplifier, Mixer, Matrix };

/// A field of a device, by its index.
struct FieldPlace
{
    int device;
    int field;

    bool operator==(const FieldPlace &) const = default;
};

/// How many channels a kind of device has.
struct ChannelCount
{
    int inputs;
    int outputs;
};

constexpr int samplesPerMillisecond = 48;

/// Value of a gain that is off, dB.
constexpr double gainOff = -std::numeric_limits<double>::infinity();

/// 4 × 4 of an amplifier, 16 × 2 of a mixer, 16 × 16 of a matrix.
ChannelCount channelCount(DeviceKind kind);

/// All fields of a device: "name", "ipAddress", …, for channels "input1Name", "input1Source", "input1Gain",
/// "input1DelayMs", "input1DelaySamples", "input1Mute" to "output4Mute", and "mute" for all at once. Of the channels, a
/// matrix has the names alone, and between them "route1x1" to "route16x16", input first. A field's place here is its
/// index everywhere; up to "notes" it is the same for all kinds.
const QList<FieldSpec> &deviceFields(DeviceKind kind = DeviceKind::Amplifier);

/// Index of a field, −1 for a name that the device does not have.
int fieldIndex(QStringView name, DeviceKind kind = DeviceKind::Amplifier);

/// A field that any kind of device has; those that several kinds have are alike. Null for an unknown name.
const FieldSpec *anyField(QStringView name);

/// The name of a field for people: "Input 3 gain".
QString fieldTitle(const QString &name);
