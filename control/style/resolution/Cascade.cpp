#include "style/resolution/Cascade.h"

#include <algorithm>
#include <iterator>
#include <tuple>

namespace tamble::client {

void sortMatches(std::vector<StyleMatch> &matches, const SelectorTree &tree)
{
    const auto place = [](const PropertySpec *declaration) {
        return std::tuple(declaration->position, declaration->origin != SheetOrigin::UserSheet);
    };
    // Rules with several selectors share their first declarations, so all of them are compared.
    const auto isWeaker = [&](const StyleMatch &a, const StyleMatch &b) {
        if (a.specificity != b.specificity)
            return a.specificity < b.specificity;
        return std::ranges::lexicographical_compare(tree.declarations(a.node), tree.declarations(b.node), {}, place,
                                                    place);
    };
    std::ranges::stable_sort(matches, isWeaker);
}

DeclarationMap mergeMatches(std::span<const StyleMatch> matches, const SelectorTree &tree)
{
    // Gathered first and sorted by name once: keeping the result sorted would take quadratic time over many names.
    struct Claim
    {
        const PropertySpec *declaration;
        std::size_t rank; // of the match, then of the declaration
        bool positionCounts;
    };
    std::vector<Claim> claims;
    Specificity previous;
    for (const StyleMatch &match : matches) {
        // Positions count against whatever declared the name before, even in a less specific match: only the
        // specificity of the match right before is looked at. This is wanted.
        const bool positionCounts = match.specificity == previous;
        for (const PropertySpec *declaration : tree.declarations(match.node))
            claims.push_back({declaration, claims.size(), positionCounts});
        previous = match.specificity;
    }
    std::ranges::sort(claims, [](const Claim &a, const Claim &b) {
        const int order = a.declaration->name.compare(b.declaration->name);
        return order != 0 ? order < 0 : a.rank < b.rank;
    });

    DeclarationMap result;
    for (const Claim &claim : claims) {
        if (result.empty() || result.back()->name != claim.declaration->name)
            result.push_back(claim.declaration);
        else if (!claim.positionCounts || result.back()->position < claim.declaration->position)
            result.back() = claim.declaration;
    }
    return result;
}

DeclarationMap withInherited(const DeclarationMap &own, const DeclarationMap &inherited)
{
    DeclarationMap result;
    result.reserve(own.size() + inherited.size());
    std::ranges::set_union(own, inherited, std::back_inserter(result), {}, &PropertySpec::name, &PropertySpec::name);
    return result;
}

} // namespace tamble::client
