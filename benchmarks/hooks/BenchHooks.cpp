// What a benchmark harness in another program calls by name, to time a part of the library by itself. The caller keeps
// the time; a call does nothing but the work it is named for.

#include "style/language/StyleSheetParser.h"

#include <QtCore/qglobal.h>

#include <cstddef>
#include <string_view>

/// Parses `length` bytes of a style sheet into its selector tree, gives the sheet back, and returns the number of its
/// rules; 0 for a sheet that does not parse.
extern "C" Q_DECL_EXPORT std::size_t tamble_bench_parse(const char *text, std::size_t length)
{
    try {
        return tamble::client::parseSheet(std::string_view(text, length)).ruleCount();
    } catch (const tamble::client::ParseException &) {
        return 0;
    }
}
