#pragma once

#include "base/ControlExport.h"

#include <QtCore/QObject>
#include <QtQml/qqmlregistration.h>

// Enumerations of the frequency plot. Each holder carries one enumeration `Type` and is never instantiated; the values
// are shared with the filter mathematics and with devices.

namespace tamble::client {

/// Shape of an equaliser band. `EQ_SYMMETRICAL_Q` is a second name of `EQ_PEQ`.
class TAMBLE_CLIENT_CONTROL_EXPORT RBodeplotEqTypeEnum : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RBodeplotEqTypeEnum)
    QML_UNCREATABLE("")

public:
    enum Type {
        EQ_PEQ = 0,
        EQ_SYMMETRICAL_Q = 0,
        EQ_LOSHELV = 1,
        EQ_HISHELV = 2,
        EQ_HIPASS = 3,
        EQ_LOPASS = 4,
        EQ_ALLPASS = 5,
        EQ_PROPORTIONAL_Q = 6,
        EQ_CONSTANT_Q = 7,
        EQ_BANDPASS = 8,
        EQ_NOTCH = 9,
        EQ_LOSHELVQ = 10,
        EQ_HISHELVQ = 11,
        ASYMMETRIC = 12,
    };
    Q_ENUM(Type)
};

/// Slope and alignment of a crossover; the `Q_05` to `Q_20` sections are 12 dB per octave with Q 0.5 to 2.0.
class TAMBLE_CLIENT_CONTROL_EXPORT RBodeplotXOverTypeEnum : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RBodeplotXOverTypeEnum)
    QML_UNCREATABLE("")

public:
    enum Type {
        XOVER_THRU = 0,
        XOVER_SIX_DB = 1,
        XOVER_TWELVE_DB_Q_05 = 2,
        XOVER_TWELVE_DB_Q_06 = 3,
        XOVER_TWELVE_DB_Q_07 = 4,
        XOVER_TWELVE_DB_Q_08 = 5,
        XOVER_TWELVE_DB_Q_10 = 6,
        XOVER_TWELVE_DB_Q_12 = 7,
        XOVER_TWELVE_DB_Q_15 = 8,
        XOVER_TWELVE_DB_Q_20 = 9,
        XOVER_BESSEL_TWELVE_DB = 10,
        XOVER_BUTTERWORTH_TWELVE_DB = 11,
        XOVER_LINKWITZ_TWELVE_DB = 12,
        XOVER_BESSEL_EIGHTEEN_DB = 13,
        XOVER_BUTTERWORTH_EIGHTEEN_DB = 14,
        XOVER_BESSEL_TWENTYFOUR_DB = 15,
        XOVER_BUTTERWORTH_TWENTYFOUR_DB = 16,
        XOVER_LINKWITZ_TWENTYFOUR_DB = 17,
    };
    Q_ENUM(Type)
};

/// Side of a crossover.
class TAMBLE_CLIENT_CONTROL_EXPORT RBodeplotXOverCategoryEnum : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RBodeplotXOverCategoryEnum)
    QML_UNCREATABLE("")

public:
    enum Type {
        XOVERCATEGORY_LOPASS = 0,
        XOVERCATEGORY_HIPASS = 1,
    };
    Q_ENUM(Type)
};

/// Slope of a shelf or pass band, in dB per octave.
class TAMBLE_CLIENT_CONTROL_EXPORT RBodeplotSlopeTypeEnum : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RBodeplotSlopeTypeEnum)
    QML_UNCREATABLE("")

public:
    enum Type {
        SLOPE_NULL_SLOPE = 0,
        SLOPE_SIX_DB_SLOPE = 1,
        SLOPE_TWELVE_DB_SLOPE = 2,
    };
    Q_ENUM(Type)
};

/// Kind of an FIR filter. The values are the ones that devices exchange, hence the gaps.
class TAMBLE_CLIENT_CONTROL_EXPORT RBodeplotFIRTypeEnum : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RBodeplotFIRTypeEnum)
    QML_UNCREATABLE("")

public:
    enum Type {
        FIR_LOPASS = 0,
        FIR_HIPASS = 1,
        FIR_BANDPASS = 2,
        FIR_M_LOPASS = 3,
        FIR_M_HIPASS = 4,
        FIR_M_BANDPASS = 5,
        FIR_DEF_DC = 123,
        FIR_DEV_EV = 39,
        FIR_DEF = 255,
        FIR_NEW_DIALOG = 67,
        FIR_USER = 17,
    };
    Q_ENUM(Type)
};

/// Unit in which a delay is shown.
class TAMBLE_CLIENT_CONTROL_EXPORT RBodeplotDelayUnitEnum : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RBodeplotDelayUnitEnum)
    QML_UNCREATABLE("")

public:
    enum Type {
        UNIT_MS = 0,
        UNIT_S = 1,
    };
    Q_ENUM(Type)
};

/// Scale of an axis of plot, grid and labels.
class TAMBLE_CLIENT_CONTROL_EXPORT RBodeplotAxisScaleEnum : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RBodeplotAxisScaleEnum)
    QML_UNCREATABLE("")

public:
    enum Type {
        LINEAR = 0,
        LOGARITHMIC = 1,
    };
    Q_ENUM(Type)
};

/// Direction of a zoom step.
class TAMBLE_CLIENT_CONTROL_EXPORT RBodeplotZoomEnum : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RBodeplotZoomEnum)
    QML_UNCREATABLE("")

public:
    enum Type {
        ZOOM_OUT = 0,
        ZOOM_IN = 1,
    };
    Q_ENUM(Type)
};

/// Quantity that a curve shows.
class TAMBLE_CLIENT_CONTROL_EXPORT RBodeplotSpectrumEnum : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RBodeplotSpectrumEnum)
    QML_UNCREATABLE("")

public:
    enum Type {
        MAGNITUDE = 0,
        PHASE = 1,
    };
    Q_ENUM(Type)
};

} // namespace tamble::client
