#pragma once

#include "base/ControlExport.h"

#include <QtCore/QObject>
#include <QtCore/QVariantList>
#include <QtGui/QFont>
#include <QtQml/qqmlregistration.h>

namespace tamble::client {

/// What the plots of the dynamics panels compute, for their QML; the rules themselves are plain functions.
class TAMBLE_CLIENT_CONTROL_EXPORT RPlotRules : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RPlotRules)
    QML_SINGLETON

public:
    using QObject::QObject;

    /// Place of a level (dB) on an axis, 0 at `from` to 1 at `to`: the nearest end when the level is outside.
    Q_INVOKABLE double placeOf(double level, double from, double to) const;
    /// Level (dB) at a place; places outside of 0 to 1 give levels outside of the axis.
    Q_INVOKABLE double levelAt(double place, double from, double to) const;
    /// The multiple of `step` nearest to `wanted`, limited to the bounds in either order. A step of 0 does not round;
    /// NaN gives NaN.
    Q_INVOKABLE double limitedValue(double wanted, double minimum, double maximum, double step) const;
    /// `value` moved by `change`, rounded and limited likewise. One beyond a bound is not moved further out; NaN starts
    /// at the minimum.
    Q_INVOKABLE double steppedValue(double value, double change, double minimum, double maximum, double step) const;
    /// Ratio of a line's run to its rise (dB); `highest` for a rise of 0 or less, NaN without a run.
    Q_INVOKABLE double ratioOfLine(double run, double rise, double highest) const;
    /// Output level (dB) of a compressor for the input level (dB), with ratio n of n : 1, make-up gain (dB) and width
    /// of the soft knee (dB).
    Q_INVOKABLE double compressorOutput(double input, double threshold, double ratio, double gain, double knee) const;

    /// Height of the curve through a calculator's `values`; entries that are no points count as (0, 0).
    Q_INVOKABLE double heightOfCurve(const QVariantList &values, double x) const;

    /// The labels of a numbering helper that have room along an axis of `length` pixels: objects { text, start }, where
    /// `start` counts in pixels from the left or, when not `horizontal`, from the top.
    Q_INVOKABLE QVariantList shownNumbers(const QVariantList &labels, const QFont &font, double length,
                                          bool horizontal) const;
};

} // namespace tamble::client
