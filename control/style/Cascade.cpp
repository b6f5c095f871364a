#include "style/Cascade.h"

#include <algorithm>
#include <iterator>
#include <tuple>

namespace tamble::client {

void sortMatches(std::vector<StyleMatch> &matches, const SelectorTree &tree)
{
    const auto key = [&tree](const StyleMatch &match) {
        const PropertySpec &first = *tree.declarations(match.node).front();
        return std::tuple(match.specificity, first.position, first.origin != SheetOrigin::UserSheet);
    };
    std::ranges::stable_sort(matches, {}, key);
}

DeclarationMap mergeMatches(std::span<const StyleMatch> matches, const SelectorTree &tree)
{
    DeclarationMap result;
    Specificity previous;
    for (const StyleMatch &match : matches) {
        // Positions count against whatever the map holds, even when a less specific match put it there: only the
        // specificity of the match right before is looked at. This is wanted.
        const bool positionsCount = match.specificity == previous;
        for (const PropertySpec *declaration : tree.declarations(match.node)) {
            const auto place = std::ranges::lower_bound(result, declaration->name, {}, &PropertySpec::name);
            if (place == result.end() || (*place)->name != declaration->name)
                result.insert(place, declaration);
            else if (!positionsCount || (*place)->position < declaration->position)
                *place = declaration;
        }
        previous = match.specificity;
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
