#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tamble::client {

/// What of a sheet's text a message shows: at most 200 bytes of UTF-8 around the byte at `place`, with "..." in place
/// of the rest. Characters stay whole.
std::string cutAround(std::string_view text, std::size_t place);

} // namespace tamble::client
