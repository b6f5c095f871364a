#pragma once

#include "style/language/LineTable.h"
#include "style/language/ParseException.h"
#include "style/language/StyleSheet.h"

#include <string_view>
#include <vector>

namespace tamble::client {

/// Puts a sheet together from what a parser finds, in the order of the text.
///
/// All texts handed in are parts of the text given at construction, which is how their positions are known.
class StyleSheetBuilder
{
public:
    /// `text` must live as long as the builder and be shorter than 4 GiB.
    explicit StyleSheetBuilder(std::string_view text);

    void beginDefinition(std::string_view name);
    void endDefinition();
    void addFontFace(std::string_view url);

    /// A type name, a class piece with its dot or a state piece with its colons.
    void addPiece(std::string_view key);
    void endElement() { m_nextJoin = Join::Descendant; }
    void joinAsChild() { m_nextJoin = Join::Child; }
    void endSelector();

    void beginDeclaration(std::string_view name);
    void endRule();

    void addText(std::string_view text);
    void addReference(std::string_view name);
    void beginCall(std::string_view name);
    void addArgument(std::string_view text);

    /// The sheet, with the positions of its declarations; the builder is of no further use.
    StyleSheet finish();

    /// The exception for a text that does not go on with `expected` at `place`.
    ParseException syntaxError(const char *place, std::string_view expected) const;
    /// The exception for a declaration whose name is not followed by `expected`, which `place` shows instead.
    ParseException missingColon(const char *place, std::string_view expected) const;

private:
    ParseException faultAt(const char *place, const std::string &description) const;
    ParseException ruleError(std::string_view description, std::string_view name) const;

    enum class Join { SameElement, Descendant, Child };

    struct Piece
    {
        NameId key;
        Join join; ///< to the piece before it in the text
    };

    std::uint32_t offsetOf(const char *place) const { return std::uint32_t(place - m_text.data()); }

    std::string_view m_text;
    StyleSheet m_sheet;
    NameId m_sameElement;
    NameId m_descendant;

    std::vector<Piece> m_pieces; // of the current selector
    Join m_nextJoin = Join::Descendant;
    std::vector<SelectorTree::Node> m_nodes; // of the current rule's selectors
    std::size_t m_attachments = 0;

    std::vector<StyleValue> *m_values = nullptr; // what the next value is added to
    std::string_view m_lastText;                 // a value
    std::string_view m_lastName;                 // of a declaration
    std::string_view m_definition;
    std::vector<StyleValue> m_definitionValues;
    std::size_t m_expandedBytes = 0;

    // Where things stand; turned into lines and columns in one go at the end.
    std::vector<std::uint32_t> m_declarationOffsets;
    std::vector<std::uint32_t> m_fontFaceOffsets;
};

} // namespace tamble::client
