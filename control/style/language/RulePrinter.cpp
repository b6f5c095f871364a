#include "style/language/RulePrinter.h"

#include <boost/variant/apply_visitor.hpp>
#include <boost/variant/static_visitor.hpp>

#include <algorithm>
#include <string_view>

namespace tamble::client {

namespace {

bool isNameCharacter(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           (character >= '0' && character <= '9') || character == '_' || character == '-';
}

bool isName(std::string_view text)
{
    return !text.empty() && text.front() != '-' && (text.front() < '0' || text.front() > '9') &&
           std::all_of(text.begin(), text.end(), isNameCharacter);
}

bool isColour(std::string_view text)
{
    return text.size() > 1 && text.front() == '#' &&
           text.find_first_not_of("0123456789abcdefABCDEF", 1) == std::string_view::npos;
}

// Values never hold both kinds of quotes, because the language knows no way to write that.
std::string inQuotes(std::string_view text)
{
    const char quote = text.find('"') == std::string_view::npos ? '"' : '\'';
    std::string result(1, quote);
    result.append(text).push_back(quote);
    return result;
}

struct ValuePrinter : boost::static_visitor<std::string>
{
    std::string operator()(const std::string &text) const
    {
        return isName(text) || isColour(text) ? text : inQuotes(text);
    }

    std::string operator()(const Expression &call) const
    {
        std::string result = call.name + '(';
        for (const std::string &argument : call.arguments) {
            if (&argument != &call.arguments.front())
                result += ", ";
            const bool plain = !argument.empty() && std::all_of(argument.begin(), argument.end(), [](char character) {
                return isNameCharacter(character) || character == '.' || character == '%';
            });
            result += plain ? argument : inQuotes(argument);
        }
        return result + ')';
    }
};

std::string declarationText(const PropertySpec &declaration)
{
    std::string result = declaration.name + ": " + valuesText(declaration.values);
    result.append("; // ").append(sheetName(declaration.origin));
    result.append(" at line ").append(std::to_string(declaration.position.line));
    return result.append(" column ").append(std::to_string(declaration.position.column));
}

} // namespace

std::string selectorText(const NameTable &names, const SelectorTree &tree, SelectorTree::Node node)
{
    std::vector<std::string_view> keys; // from the innermost element outward
    for (; tree.parent(node) != SelectorTree::none; node = tree.parent(node))
        keys.push_back(names.text(tree.key(node)));
    std::reverse(keys.begin(), keys.end());

    std::vector<std::string> elements;
    std::vector<std::string_view> joins;
    std::string_view join = " > ";
    for (const std::string_view key : keys) {
        if (key == SelectorTree::sameElementKey) {
            join = {};
        } else if (key == SelectorTree::descendantKey) {
            join = " ";
        } else {
            if (elements.empty() || !join.empty()) {
                joins.push_back(join);
                elements.emplace_back();
            }
            elements.back() += key;
            join = " > ";
        }
    }

    std::string result;
    for (std::size_t i = elements.size(); i-- > 0;) {
        result += elements[i];
        if (i > 0)
            result += joins[i];
    }
    return result;
}

std::string valueText(const StyleValue &value)
{
    return boost::apply_visitor(ValuePrinter(), value);
}

std::string valuesText(const std::vector<StyleValue> &values)
{
    std::string result;
    for (const StyleValue &value : values) {
        if (&value != &values.front())
            result += ", ";
        result += valueText(value);
    }
    return result;
}

std::string ruleText(const StyleSheet &sheet, SelectorTree::Node node)
{
    std::string result = selectorText(sheet.names(), sheet.tree(), node) + " {\n";
    for (const PropertySpec *declaration : sheet.tree().declarations(node))
        result.append("    ").append(declarationText(*declaration)).append("\n");
    return result + "}\n";
}

} // namespace tamble::client
