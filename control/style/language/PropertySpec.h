#pragma once

#include "style/language/StyleValue.h"

#include <compare>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tamble::client {

/// A place in a sheet; line and column count from 1, the column in bytes.
struct SourcePosition
{
    std::uint32_t line = 0;
    std::uint32_t column = 0;

    auto operator<=>(const SourcePosition &) const = default;
};

/// Which of the two loaded sheets a declaration comes from.
enum class SheetOrigin : std::uint8_t {
    DefaultSheet, ///< "default stylesheet"
    UserSheet,    ///< "user stylesheet"
};

/// What a sheet is called in texts for people.
constexpr std::string_view sheetName(SheetOrigin origin)
{
    return origin == SheetOrigin::UserSheet ? "user stylesheet" : "default stylesheet";
}

/// One declaration of a sheet: `name: value, value;`.
struct PropertySpec
{
    std::string name;
    std::vector<StyleValue> values; ///< at least one, in source order
    SourcePosition position;
    SheetOrigin origin = SheetOrigin::DefaultSheet;
};

} // namespace tamble::client
