#pragma once

#include <compare>
#include <cstdint>
#include <string>

namespace tamble::client {

/// How closely a selector describes what it matched. Compared from left to right: one state outweighs any number of
/// classes, one class any number of type names.
struct Specificity
{
    std::int32_t states = 0;
    std::int32_t classes = 0;
    std::int32_t types = 0;

    auto operator<=>(const Specificity &) const = default;

    friend Specificity operator+(const Specificity &a, const Specificity &b)
    {
        return {a.states + b.states, a.classes + b.classes, a.types + b.types};
    }

    /// "[states,classes,types]"
    std::string text() const
    {
        return '[' + std::to_string(states) + ',' + std::to_string(classes) + ',' + std::to_string(types) + ']';
    }
};

} // namespace tamble::client
