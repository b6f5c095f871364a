#include "style/language/LineTable.h"

#include "style/language/TextExcerpt.h"

#include <algorithm>

namespace tamble::client {

LineTable::LineTable(std::string_view text)
    : m_text(text)
    , m_starts(1, 0)
{
    m_starts.reserve(text.size() / 32 + 1);
    // Searching for each of the two characters by itself is much faster than looking at every byte for both.
    std::size_t lineFeed = text.find('\n');
    std::size_t carriageReturn = text.find('\r');
    while (lineFeed != carriageReturn) { // both are npos at the end
        const bool pair = carriageReturn != std::string_view::npos && carriageReturn + 1 == lineFeed;
        const std::size_t next = pair ? lineFeed + 1 : std::min(lineFeed, carriageReturn) + 1;
        m_starts.push_back(std::uint32_t(next));
        if (lineFeed < next)
            lineFeed = text.find('\n', next);
        if (carriageReturn < next)
            carriageReturn = text.find('\r', next);
    }
}

SourcePosition LineTable::position(std::size_t offset)
{
    const auto isIn = [this, offset](std::size_t index) {
        return m_starts[index] <= offset && (index + 1 == m_starts.size() || offset < m_starts[index + 1]);
    };
    if (!isIn(m_last)) {
        if (m_last + 1 < m_starts.size() && isIn(m_last + 1))
            ++m_last;
        else
            m_last = std::size_t(std::upper_bound(m_starts.begin(), m_starts.end(), offset) - m_starts.begin()) - 1;
    }
    return {std::uint32_t(m_last + 1), std::uint32_t(offset - m_starts[m_last] + 1)};
}

std::string LineTable::excerpt(const SourcePosition &position) const
{
    std::string_view line = m_text.substr(m_starts[position.line - 1]);
    line = line.substr(0, line.find_first_of("\r\n"));
    return cutAround(line, position.column - 1);
}

} // namespace tamble::client
