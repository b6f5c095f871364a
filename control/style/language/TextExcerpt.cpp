#include "style/language/TextExcerpt.h"

#include <algorithm>

namespace tamble::client {

namespace {

constexpr std::size_t maximumBytes = 200;
constexpr std::string_view ellipsis = "...";

bool isWithinCharacter(std::string_view text, std::size_t place)
{
    return place < text.size() && (static_cast<unsigned char>(text[place]) & 0xc0u) == 0x80u;
}

} // namespace

std::string cutAround(std::string_view text, std::size_t place)
{
    if (text.size() <= maximumBytes)
        return std::string(text);
    const std::size_t room = maximumBytes - 2 * ellipsis.size();
    std::size_t begin = std::min(place - std::min(place, room / 2), text.size() - room);
    std::size_t end = begin + room;
    // No more than the three bytes that a character can have behind its first: other text is not UTF-8 at all.
    for (int i = 0; i < 3 && isWithinCharacter(text, begin); ++i)
        ++begin;
    for (int i = 0; i < 3 && isWithinCharacter(text, end); ++i)
        --end;

    std::string result(begin > 0 ? ellipsis : std::string_view());
    result.append(text.substr(begin, end - begin));
    return result.append(end < text.size() ? ellipsis : std::string_view());
}

} // namespace tamble::client
