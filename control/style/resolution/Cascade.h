#pragma once

#include "style/resolution/StyleMatcher.h"

#include <span>
#include <vector>

namespace tamble::client {

/// Declarations ordered by name, each name once.
using DeclarationMap = std::vector<const PropertySpec *>;

/// Orders matches from the weakest to the strongest.
///
/// Equally specific ones come in the order of their declarations' places in the sheets, the first ones first, the
/// user's before the default sheet's at the same place, so that the result depends neither on the order of an item's
/// class words nor on the way the matches were found.
void sortMatches(std::vector<StyleMatch> &matches, const SelectorTree &tree);

/// The declarations that win, from matches in the order of sortMatches().
///
/// A later match takes a name over from an earlier one, except that a match which is exactly as specific as the match
/// right before it takes over only what stands earlier in the sheets than its own declaration.
DeclarationMap mergeMatches(std::span<const StyleMatch> matches, const SelectorTree &tree);

/// `own` and what it does not declare from `inherited`.
DeclarationMap withInherited(const DeclarationMap &own, const DeclarationMap &inherited);

} // namespace tamble::client
