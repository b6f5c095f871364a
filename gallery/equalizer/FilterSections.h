#pragma once

#include <QtCore/QObject>
#include <QtCore/QVariantList>
#include <QtQml/qqmlregistration.h>

/// The filters of the frequency response page as sections that a signal can be sent through.
class FilterSections : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// Sample rate in Hz of the signal that plays; 48000 when there is none.
    Q_PROPERTY(double sampleRate READ sampleRate CONSTANT FINAL)

public:
    explicit FilterSections(QObject *parent = nullptr);

    double sampleRate() const;

    /// The sections [b0, b1, b2, a1, a2] of `bands` one after another at `sampleRate` in Hz. A band is a map with
    /// "kind" ("eq", "asym" or "xover"; any other has no sections) and the values that its plot filter has, by the same
    /// names.
    Q_INVOKABLE QVariantList of(const QVariantList &bands, double sampleRate) const;

    /// Whether the response of a band of kind "eq" depends on its Q.
    Q_INVOKABLE bool qualityCounts(int type, int slope) const;
};
