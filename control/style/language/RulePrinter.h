#pragma once

#include "style/language/StyleSheet.h"

#include <string>
#include <vector>

namespace tamble::client {

/// The selector that leads to `node` as a sheet would write it, outermost element first, such as "RAppBar > RIcon.red".
/// A node whose selector goes on behind "&", "::desc::" or nothing at all gives the part that leads to it.
std::string selectorText(const NameTable &names, const SelectorTree &tree, SelectorTree::Node node);

/// A value as a sheet would write it. Texts that would not be read back as they are come in quotes.
std::string valueText(const StyleValue &value);
/// The same of a list.
std::string valuesText(const std::vector<StyleValue> &values);

/// The rule of `node`: its selector and its declarations, each with the name of its sheet and its position.
///
///     RButton::hovered {
///         background: #008ccd; // default stylesheet at line 12 column 5
///     }
///
/// The text is a rule of the style-sheet language.
std::string ruleText(const StyleSheet &sheet, SelectorTree::Node node);

} // namespace tamble::client
