#pragma once

#include <limits>

/// What hostile pages write where a number belongs.
inline constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
inline constexpr double infinity = std::numeric_limits<double>::infinity();
