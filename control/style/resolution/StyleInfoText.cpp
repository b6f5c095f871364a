#include "style/resolution/StyleInfoText.h"

#include "style/language/RulePrinter.h"
#include "style/resolution/StyleResolver.h"

#include <boost/range/adaptor/reversed.hpp>

#include <algorithm>
#include <string>

namespace tamble::client {

namespace {

// A selector with repeated words can match in millions of ways, each of which says the same.
constexpr std::uint32_t maximumRepetitions = 8;

} // namespace

QString styleInfoText(const StyleSheet &sheet, const StylePath &path)
{
    if (sheet.isEmpty())
        return {};
    std::string text = "Style info for path " + path.text().toStdString() + '\n';
    const std::vector<StyleMatch> matches = StyleResolver(sheet).matches(path);
    for (const StyleMatch &match : boost::adaptors::reverse(matches)) {
        std::string rule = "// specificity: " + match.specificity.text() + '\n' + ruleText(sheet, match.node);
        if (!rule.ends_with('\n'))
            rule += '\n';
        for (std::uint32_t i = 0; i < std::min(match.routes, maximumRepetitions); ++i)
            text += rule;
    }
    return QString::fromStdString(text);
}

} // namespace tamble::client
