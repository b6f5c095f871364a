#pragma once

#include <optional>
#include <string_view>

namespace tamble::client {

/// Numbers as sheets write them: the whole text is the number, the decimal point is ".", whatever the locale of the
/// process or of the C++ library.
///
/// One leading "+" or "-" is allowed. Blanks, units and "%", grouped digits, hexadecimal digits, "nan", "inf" and what
/// the type cannot hold are not numbers.
std::optional<int> strictInteger(std::string_view text);
std::optional<float> strictFloat(std::string_view text);
std::optional<double> strictDouble(std::string_view text);

} // namespace tamble::client
