#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringView>

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

/// One of the values that an amplifier has.
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

constexpr int inputCount = 4;
constexpr int outputCount = 4;
constexpr int samplesPerMillisecond = 48;

/// All fields of an amplifier: "name", "ipAddress", …, and for channels "input1Name", "input1Source", "input1Gain",
/// "input1DelayMs", "input1DelaySamples", "input1Mute" to "output4Mute". A field's place here is its index everywhere.
const QList<FieldSpec> &amplifierFields();

/// Index of a field, −1 for an unknown name.
int fieldIndex(QStringView name);
