#pragma once

#include <limits>

namespace tamble::client {

/// The sizes of a step: with Shift, plain, with Ctrl or by PageUp and PageDown.
enum class StepSize { Fine, Normal, Page };

/// How a number moves by steps between its bounds.
struct StepRule
{
    double from = -std::numeric_limits<double>::infinity(); ///< Infinite for none.
    double to = std::numeric_limits<double>::infinity();    ///< Likewise. A range without width, or one the wrong way
                                                            ///< round, cannot be stepped through.
    double normal = 1.0; ///< 0 stands for continuous: 1 % of the range. The sign does not count in any of the three.
    double fine = 0.1;
    double page = 10.0;
    int decimals = -1;  ///< Of stepped and shown numbers; negative for those that the two smaller steps need.
    bool wraps = false; ///< Whether a step beyond a bound goes to the other one.

    bool isUsable() const;
    double size(StepSize size) const;
    int shownDecimals() const;
    /// To the decimals shown, half away from zero; 0.1 + 0.2 becomes 0.3.
    double rounded(double value) const;
    /// The nearest whole number of steps from `from`, or from 0 where that is infinite, within the bounds.
    double snapped(double value) const;
    /// One step up or down (`direction` 1 or -1). From outside of the bounds, and from NaN, the first goes to the
    /// nearest of them.
    double stepped(double value, StepSize size, int direction) const;
};

} // namespace tamble::client
