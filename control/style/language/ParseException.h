#pragma once

#include "style/language/PropertySpec.h"

#include <stdexcept>
#include <string>

namespace tamble::client {

/// Raised when a sheet cannot be parsed; says where, in numbers and by the text of the line.
class ParseException : public std::runtime_error
{
public:
    ParseException(const std::string &message, SourcePosition position, std::string lineText)
        : std::runtime_error(message)
        , m_position(position)
        , m_lineText(std::move(lineText))
    {}

    /// One line for people; a syntax error's begins with line and column, as in "3:14: syntax error".
    std::string message() const { return what(); }
    /// From 1.
    std::uint32_t line() const { return m_position.line; }
    /// From 1, in bytes.
    std::uint32_t column() const { return m_position.column; }
    /// The line the fault stands in, without its line end; of a long one what is around the fault.
    const std::string &lineText() const { return m_lineText; }

private:
    SourcePosition m_position;
    std::string m_lineText;
};

} // namespace tamble::client
