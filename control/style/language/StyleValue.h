#pragma once

#include <boost/variant.hpp>

#include <string>
#include <vector>

namespace tamble::client {

/// A function call in a style sheet, such as `rgba(0, 86, 145, 0.5)`: the name and the texts of the arguments.
struct Expression
{
    std::string name;
    std::vector<std::string> arguments;

    bool operator==(const Expression &) const = default;
};

/// One value of a declaration: its text, without the quotes of a quoted string, or a function call.
using StyleValue = boost::variant<std::string, Expression>;

} // namespace tamble::client
