#include "FuzzBodies.h"

#include "style/language/ParseException.h"
#include "style/language/RulePrinter.h"
#include "style/language/StyleSheetParser.h"
#include "style/values/ConvertException.h"
#include "style/values/ValueConversions.h"

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

using namespace tamble::client;

namespace {

/// A rule as the parser arranges it: the keys of its selector from the innermost element outward, and what it declares.
struct ParsedRule
{
    std::vector<std::string> keys;
    std::vector<std::pair<std::string, std::vector<StyleValue>>> declarations;

    bool operator==(const ParsedRule &) const = default;
};

std::optional<StyleSheet> parsed(std::string_view text)
{
    try {
        return parseSheet(text);
    } catch (const ParseException &fault) {
        const std::size_t length = fault.lineText().size();
        const bool isCut = length > 190; // long lines are, somewhere below 200 bytes
        if (fault.line() == 0 || fault.column() == 0 || (!isCut && fault.column() > length + 2))
            throw std::logic_error("a fault without a place: " + fault.message());
        return std::nullopt;
    }
}

std::vector<ParsedRule> rulesOf(const StyleSheet &sheet)
{
    std::vector<ParsedRule> rules;
    const SelectorTree &tree = sheet.tree();
    for (SelectorTree::Node node = 1; node < tree.nodeCount(); ++node) {
        if (tree.declarations(node).empty())
            continue;
        ParsedRule &rule = rules.emplace_back();
        for (SelectorTree::Node step = node; step != SelectorTree::root; step = tree.parent(step))
            rule.keys.emplace_back(sheet.names().text(tree.key(step)));
        for (const PropertySpec *declaration : tree.declarations(node))
            rule.declarations.emplace_back(declaration->name, declaration->values);
    }
    std::ranges::sort(rules, {}, &ParsedRule::keys);
    return rules;
}

std::string printed(const StyleSheet &sheet)
{
    std::string text;
    for (SelectorTree::Node node = 1; node < sheet.tree().nodeCount(); ++node) {
        if (!sheet.tree().declarations(node).empty())
            text += ruleText(sheet, node);
    }
    return text;
}

// Every value is one of a kind or refused as such.
template <typename Convert>
void convertAll(const std::vector<ParsedRule> &rules, Convert convert)
{
    for (const ParsedRule &rule : rules) {
        for (const auto &[name, values] : rule.declarations) {
            for (const StyleValue &value : values) {
                try {
                    static_cast<void>(convert(value));
                } catch (const ConvertException &) { // as it should be
                }
            }
        }
    }
}

} // namespace

void fuzzParser(std::span<const std::uint8_t> bytes)
{
    const std::optional<StyleSheet> sheet = parsed({reinterpret_cast<const char *>(bytes.data()), bytes.size()});
    if (!sheet)
        return;
    const std::vector<ParsedRule> rules = rulesOf(*sheet);
    const std::string text = printed(*sheet);
    const std::optional<StyleSheet> again = parsed(text);
    if (!again)
        throw std::logic_error("printed rules do not parse:\n" + text);
    if (rulesOf(*again) != rules)
        throw std::logic_error("printed rules are others:\n" + text);
    convertAll(rules, colorFrom);
    convertAll(rules, numberFrom);
    convertAll(rules, urlFrom);
}
