#pragma once

#include "FieldTable.h"

#include <QtCore/QVariant>

class RandomSource;

/// What a device makes of a value that it was asked to take.
struct Judgement
{
    /// The value as the device keeps it.
    QVariant value;
    /// Why it does not take the value, for people; empty when it does.
    QString reason;
};

/// Judges a value by its field alone. A device that `clamps` takes numbers out of range and texts that are too long as
/// far as it can, and rounds gains to whole dB.
Judgement judgedValue(const FieldSpec &field, const QVariant &value, bool clamps);

/// What a field without a value has, of the type that all its values have.
QVariant emptyValue(const FieldSpec &field);

/// A value that a field may have.
QVariant sampleValue(const FieldSpec &field, RandomSource &random);

/// Whether a field can be changed at all.
bool isEditable(const FieldSpec &field);

/// An IPv4 address as a number; −1 for any other text.
qint64 addressNumber(const QString &text);
