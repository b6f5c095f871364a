#pragma once

#include "style/language/PropertySpec.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tamble::client {

/// Where the lines of a text begin. A line ends with "\r\n", a lone line feed or a lone carriage return.
class LineTable
{
public:
    /// `text` must live as long as the table and be shorter than 4 GiB.
    explicit LineTable(std::string_view text);

    /// Line and column of the byte at `offset`; the end of the text is a place as well. Takes constant time when
    /// `offset` stands in the same line as the one before or in the next, else logarithmic time.
    SourcePosition position(std::size_t offset);
    /// The line around `position` without its line end; of a long one the 200 bytes around the column, with "..." where
    /// it goes on.
    std::string excerpt(const SourcePosition &position) const;

private:
    std::string_view m_text;
    std::vector<std::uint32_t> m_starts;
    std::size_t m_last = 0; // index of the line that the last position was in
};

} // namespace tamble::client
