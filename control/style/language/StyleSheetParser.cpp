#include "style/language/StyleSheetParser.h"

#include "style/language/StyleSheetActions.h"
#include "style/language/StyleSheetBuilder.h"
#include "style/language/StyleSheetGrammar.h"
#include "style/language/StyleSheetMessages.h"

#include <limits>

namespace tamble::client {

StyleSheet parseSheet(std::string_view text)
{
    if (text.size() >= std::numeric_limits<std::uint32_t>::max())
        throw ParseException("A style sheet must be shorter than 4 GiB", {1, 1}, {});
    if (constexpr std::string_view byteOrderMark = "\xef\xbb\xbf"; text.starts_with(byteOrderMark))
        text.remove_prefix(byteOrderMark.size());

    StyleSheetBuilder builder(text);
    // The lazy input keeps one pointer and no lines; the builder knows every position by its offset.
    tao::pegtl::memory_input<tao::pegtl::tracking_mode::lazy> input(text.data(), text.data() + text.size(), "");
    // The grammar ends with the end of the text or with an exception, never by not matching.
    static_cast<void>(tao::pegtl::parse<grammar::sheet, grammar::Action, grammar::Control>(input, builder));
    return builder.finish();
}

StyleSheet parseStdString(const std::string &text)
{
    return parseSheet(text);
}

} // namespace tamble::client
