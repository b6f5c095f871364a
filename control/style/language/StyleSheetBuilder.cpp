#include "style/language/StyleSheetBuilder.h"

#include "style/language/TextExcerpt.h"

#include <boost/variant/get.hpp>

#include <algorithm>
#include <string>

namespace tamble::client {

namespace {

// What all references of a sheet together may expand to. A few lines of definitions that double one another would
// otherwise fill the memory; a sheet of one megabyte made of nothing but references to single values needs 10 MB.
constexpr std::size_t maximumExpandedBytes = std::size_t(64) << 20;

// A block of declarations is attached to each selector before it, so that the two lengths multiply.
constexpr std::size_t maximumAttachments = std::size_t(16) << 20;

constexpr std::string_view nameCharacters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_-";

std::size_t bytesOf(const StyleValue &value)
{
    std::size_t bytes = sizeof(StyleValue);
    if (const auto *text = boost::get<std::string>(&value))
        return bytes + text->size();
    for (const std::string &argument : boost::get<Expression>(value).arguments)
        bytes += sizeof(std::string) + argument.size();
    return bytes;
}

} // namespace

StyleSheetBuilder::StyleSheetBuilder(std::string_view text)
    : m_text(text)
    , m_sameElement(m_sheet.m_names.intern(SelectorTree::sameElementKey))
    , m_descendant(m_sheet.m_names.intern(SelectorTree::descendantKey))
{
    m_declarationOffsets.reserve(text.size() / 32);
}

void StyleSheetBuilder::beginDefinition(std::string_view name)
{
    m_definition = name;
    m_definitionValues.clear();
    m_values = &m_definitionValues;
}

void StyleSheetBuilder::endDefinition()
{
    m_sheet.m_variables.insert_or_assign(std::string(m_definition), std::move(m_definitionValues));
}

void StyleSheetBuilder::addFontFace(std::string_view url)
{
    m_sheet.m_fontFaces.push_back({std::string(url), {}, SheetOrigin::DefaultSheet});
    m_fontFaceOffsets.push_back(offsetOf(url.data()));
}

void StyleSheetBuilder::addPiece(std::string_view key)
{
    m_pieces.push_back({m_sheet.m_names.intern(key), m_nextJoin});
    m_nextJoin = Join::SameElement;
}

void StyleSheetBuilder::endSelector()
{
    // From the innermost element, which stands last in the text, outward; within an element in the order of the text.
    SelectorTree &tree = m_sheet.m_tree;
    SelectorTree::Node node = SelectorTree::root;
    auto end = m_pieces.cend();
    while (end != m_pieces.cbegin()) {
        auto begin = end - 1;
        while (begin != m_pieces.cbegin() && begin->join == Join::SameElement)
            --begin;
        for (auto piece = begin; piece != end; ++piece) {
            if (piece != begin)
                node = tree.insert(node, m_sameElement);
            node = tree.insert(node, piece->key);
        }
        if (begin != m_pieces.cbegin() && begin->join == Join::Descendant)
            node = tree.insert(node, m_descendant);
        end = begin;
    }
    m_pieces.clear();
    m_nodes.push_back(node);
}

void StyleSheetBuilder::beginDeclaration(std::string_view name)
{
    m_attachments += m_nodes.size();
    if (m_attachments > maximumAttachments)
        throw ruleError("Too many declarations for too many selectors", name);
    PropertySpec &declaration = m_sheet.m_declarations.emplace_back();
    declaration.name = name;
    m_lastName = name;
    m_values = &declaration.values;
    m_declarationOffsets.push_back(offsetOf(name.data()));
    for (const SelectorTree::Node node : m_nodes)
        m_sheet.m_tree.attach(node, &declaration);
}

void StyleSheetBuilder::endRule()
{
    m_nodes.clear();
    ++m_sheet.m_ruleCount;
}

void StyleSheetBuilder::addText(std::string_view text)
{
    m_values->emplace_back(std::string(text));
    m_lastText = text;
}

void StyleSheetBuilder::addReference(std::string_view name)
{
    const auto definition = m_sheet.m_variables.find(name);
    if (definition == m_sheet.m_variables.end())
        throw ruleError("Undefined variable", name);
    for (const StyleValue &value : definition->second)
        m_expandedBytes += bytesOf(value);
    if (m_expandedBytes > maximumExpandedBytes)
        throw ruleError("Too long expansion of variable", name);
    m_values->insert(m_values->end(), definition->second.cbegin(), definition->second.cend());
}

void StyleSheetBuilder::beginCall(std::string_view name)
{
    m_values->emplace_back(Expression{std::string(name), {}});
}

void StyleSheetBuilder::addArgument(std::string_view text)
{
    boost::get<Expression>(m_values->back()).arguments.emplace_back(text);
}

StyleSheet StyleSheetBuilder::finish()
{
    LineTable lines(m_text);
    auto offset = m_declarationOffsets.cbegin();
    for (PropertySpec &declaration : m_sheet.m_declarations)
        declaration.position = lines.position(*offset++);
    offset = m_fontFaceOffsets.cbegin();
    for (FontFace &face : m_sheet.m_fontFaces)
        face.position = lines.position(*offset++);
    return std::move(m_sheet);
}

ParseException StyleSheetBuilder::syntaxError(const char *place, std::string_view expected) const
{
    const std::string_view rest = m_text.substr(offsetOf(place));
    if (rest.starts_with('#')) {
        const std::size_t end = std::min(rest.find_first_not_of(nameCharacters, 1), rest.size());
        if (end > 1)
            return faultAt(place, cutAround(rest.substr(0, end), 0) + " is no colour");
    }
    return faultAt(place, "expected " + std::string(expected));
}

ParseException StyleSheetBuilder::missingColon(const char *place, std::string_view expected) const
{
    const char *const begin = m_lastText.data();
    if (!begin || begin + m_lastText.size() != m_lastName.data())
        return syntaxError(place, expected);
    const std::string_view whole(begin, m_lastText.size() + m_lastName.size());
    return faultAt(begin, cutAround(whole, 0) + (whole.starts_with('#') ? " is no colour" : " is no number"));
}

ParseException StyleSheetBuilder::faultAt(const char *place, const std::string &description) const
{
    LineTable lines(m_text);
    const SourcePosition position = lines.position(offsetOf(place));
    const std::string prefix = std::to_string(position.line) + ':' + std::to_string(position.column);
    return {prefix + ": syntax error, " + description, position, lines.excerpt(position)};
}

ParseException StyleSheetBuilder::ruleError(std::string_view description, std::string_view name) const
{
    LineTable lines(m_text);
    const SourcePosition position = lines.position(offsetOf(name.data()));
    std::string message(description);
    message.append(" ").append(cutAround(name, 0)).append(" line ").append(std::to_string(position.line));
    return {message, position, lines.excerpt(position)};
}

} // namespace tamble::client
