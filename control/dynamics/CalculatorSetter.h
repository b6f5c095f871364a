#pragma once

#include <QtCore/QObject>

namespace tamble::client {

/// The setter rule of the curve calculators; each calculator befriends it.
struct CalculatorSetter
{
    /// Stores a changed value, rebuilds the curve and then emits the property's own signal; an equal value does
    /// nothing.
    template <typename Calculator, typename Value>
    static void assign(Calculator &calculator, Value &stored, Value value, void (Calculator::*changed)())
    {
        if (stored == value)
            return;
        stored = value;
        calculator.recompute();
        Q_EMIT(calculator.*changed)();
    }
};

} // namespace tamble::client
