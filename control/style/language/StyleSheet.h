#pragma once

#include "style/language/NameTable.h"
#include "style/language/PropertySpec.h"
#include "style/language/SelectorTree.h"
#include "style/language/StyleValue.h"

#include <cstddef>
#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace tamble::client {

/// A font file that a sheet names: `@font-face { src: url(…); }`.
struct FontFace
{
    std::string url;
    SourcePosition position;
    SheetOrigin origin = SheetOrigin::DefaultSheet;
};

/// A parsed sheet: its rules as a selector tree, with the declarations the tree refers to, its variables and its fonts.
class StyleSheet
{
public:
    using Variables = std::map<std::string, std::vector<StyleValue>, std::less<>>;

    StyleSheet() = default;
    StyleSheet(StyleSheet &&) = default;
    StyleSheet &operator=(StyleSheet &&) = default;

    /// The names that the keys of the tree stand for.
    const NameTable &names() const { return m_names; }
    const SelectorTree &tree() const { return m_tree; }
    /// In the order of the text.
    const std::vector<FontFace> &fontFaces() const { return m_fontFaces; }
    /// The last definition of each variable, with its references resolved.
    const Variables &variables() const { return m_variables; }

    /// True when there is no rule; variables and fonts do not count.
    bool isEmpty() const { return m_ruleCount == 0; }
    /// How many blocks of declarations there are, however many selectors stand before each.
    std::size_t ruleCount() const { return m_ruleCount; }

    /// One tree from both sheets: the rules of `defaultSheet` first, marked default, then those of `userSheet`, marked
    /// user.
    ///
    /// A user declaration replaces the default sheet's declarations of the same key under the identical selector. A
    /// user variable replaces the default sheet's variable of the same name; both sheets' fonts are listed.
    static StyleSheet merged(const StyleSheet &defaultSheet, const StyleSheet &userSheet);

private:
    friend class StyleSheetBuilder;
    friend class StyleSheetMerger;

    NameTable m_names;
    SelectorTree m_tree;
    std::deque<PropertySpec> m_declarations; // in the order of the text; the tree points into it
    std::vector<FontFace> m_fontFaces;
    Variables m_variables;
    std::size_t m_ruleCount = 0;
};

} // namespace tamble::client
