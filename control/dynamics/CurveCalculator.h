#pragma once

#include "base/ControlExport.h"
#include "dynamics/TransferCurves.h"

#include <QtCore/QObject>
#include <QtCore/QVariantList>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace tamble::client {

/// What the calculators of transfer curves have in common: each setter that changes something rebuilds the curve at
/// once, so `valuesChanged` precedes the signal of the property that was set. The signal is each calculator's own,
/// since the order of its members is fixed.
class TAMBLE_CLIENT_CONTROL_EXPORT CurveCalculator : public QObject
{
    Q_OBJECT
    QML_ANONYMOUS

public:
    using QObject::QObject;

    /// The corner points as QPointF, x 0 (left) to 1 (right), y 0 (top) to 1 (bottom).
    QVariantList values() const { return m_values; }

protected:
    template <typename Calculator, typename Value>
    void assign(Value &stored, Value value, void (Calculator::*changed)())
    {
        if (stored == value)
            return;
        stored = value;
        recompute();
        Q_EMIT(static_cast<Calculator *>(this)->*changed)();
    }
    /// To be called by constructors, too.
    void recompute();
    /// None for parameters out of bounds: `values` is empty then and, by convention, nothing is told.
    virtual std::optional<CurvePoints> curve() const = 0;
    virtual void tellValues() = 0;

private:
    QVariantList m_values;
};

} // namespace tamble::client
