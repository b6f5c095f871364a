#pragma once

#include "style/language/ParseException.h"
#include "style/language/StyleSheet.h"

#include <string>
#include <string_view>

namespace tamble::client {

/// Parses a whole sheet, given as the bytes of its file.
///
/// A UTF-8 byte order mark at the start is skipped. Raises ParseException on the first syntax error, on a reference to
/// a variable that no earlier definition names, and when references expand beyond all measure. The declarations are
/// marked as the default sheet's until sheets are merged.
StyleSheet parseSheet(std::string_view text);

/// The same from a string.
StyleSheet parseStdString(const std::string &text);

} // namespace tamble::client
