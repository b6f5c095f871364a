#include "ReferenceCascade.h"

#include <algorithm>
#include <array>
#include <tuple>
#include <utility>

namespace {

/// States, classes, types.
using Weight = std::array<int, 3>;

struct Word
{
    std::string text;
    Weight weight;
};

std::vector<Word> wordsOf(const PathElement &element)
{
    std::vector<Word> words{{element.typeName, {0, 0, 1}}};
    for (const std::string &name : element.classes)
        words.push_back({'.' + name, {0, 1, 0}});
    for (const std::string &name : element.states)
        words.push_back({"::" + name, {1, 0, 0}});
    return words;
}

template <typename List>
List with(List list, const std::string &last)
{
    list.push_back(last);
    return list;
}

bool startsWith(const std::vector<std::string> &list, const std::vector<std::string> &start)
{
    return list.size() >= start.size() && std::equal(start.begin(), start.end(), list.begin());
}

} // namespace

struct ReferenceCascade::Match
{
    Weight weight;
    const std::vector<Placed> *declarations;

    // Weak ones first; of equal ones, those that stand earlier, the user's before the default sheet's.
    auto key() const
    {
        std::vector<std::tuple<std::uint32_t, std::uint32_t, bool>> places;
        for (const Placed &placed : *declarations)
            places.emplace_back(placed.declaration.position.line, placed.declaration.position.column, !placed.isUsers);
        return std::pair(weight, places);
    }
};

/// Collects what matches the innermost element of a path.
struct ReferenceCascade::Search
{
    const Chains &chains;
    std::span<const PathElement> path;
    std::vector<Match> matches = {};

    /// Tries each word of an element behind the beginning of a chain; false when no chain goes on with any of them.
    bool tryElement(const Chain &beginning, std::size_t element, const Weight &weight)
    {
        bool found = false;
        for (const Word &word : wordsOf(path[element])) {
            const Chain longer = with(beginning, word.text);
            const auto first = chains.lower_bound(longer);
            if (first == chains.end() || !startsWith(first->first, longer))
                continue;
            found = true;
            goOn(longer, element, {weight[0] + word.weight[0], weight[1] + word.weight[1], weight[2] + word.weight[2]});
        }
        return found;
    }

    void goOn(const Chain &matched, std::size_t element, const Weight &weight)
    {
        if (const auto whole = chains.find(matched); whole != chains.end())
            matches.push_back({weight, &whole->second});
        tryElement(with(matched, "&"), element, weight);
        if (element > 0)
            tryElement(matched, element - 1, weight);
        // The nearest ancestor that fits ends the search, whether or not the rest of a selector fits there.
        for (std::size_t ancestor = element; ancestor-- > 0;) {
            if (tryElement(with(matched, "::desc::"), ancestor, weight))
                break;
        }
    }
};

ReferenceCascade::Chain ReferenceCascade::chainOf(const Selector &selector)
{
    Chain chain;
    for (std::size_t i = selector.elements.size(); i-- > 0;) {
        const SelectorElement &element = selector.elements[i];
        for (const std::string &piece : element) {
            if (&piece != &element.front())
                chain.emplace_back("&");
            chain.push_back(piece);
        }
        if (i > 0 && !selector.isChild[i - 1])
            chain.emplace_back("::desc::");
    }
    return chain;
}

ReferenceCascade::Chains ReferenceCascade::chainsOf(const SheetCase &sheet, bool isUsers)
{
    Chains chains;
    for (const Rule &rule : sheet.rules) {
        for (const Selector &selector : rule.selectors) {
            for (const Declaration &declaration : rule.declarations)
                chains[chainOf(selector)].push_back({declaration, isUsers});
        }
    }
    return chains;
}

ReferenceCascade::ReferenceCascade(const SheetCase &defaultSheet, const SheetCase &userSheet)
    : m_chains(chainsOf(defaultSheet, false))
{
    for (const auto &[chain, users] : chainsOf(userSheet, true)) {
        std::vector<Placed> &all = m_chains[chain];
        std::erase_if(all, [&users = users](const Placed &placed) {
            return std::ranges::any_of(
                users, [&](const Placed &user) { return user.declaration.name == placed.declaration.name; });
        });
        all.insert(all.end(), users.begin(), users.end());
    }
}

ReferenceCascade::Result ReferenceCascade::ownResult(std::span<const PathElement> path) const
{
    Search search{m_chains, path};
    search.tryElement({}, path.size() - 1, {});
    std::ranges::stable_sort(search.matches, {}, &Match::key);

    Result result;
    std::map<std::string, tamble::client::SourcePosition> places;
    Weight previous{};
    for (const Match &match : search.matches) {
        for (const Placed &placed : *match.declarations) {
            const Declaration &declaration = placed.declaration;
            const auto known = places.find(declaration.name);
            // Whichever match has set it: only the weight of the match right before counts.
            if (known != places.end() && match.weight == previous && known->second >= declaration.position)
                continue;
            result[declaration.name] = declaration.value;
            places[declaration.name] = declaration.position;
        }
        previous = match.weight;
    }
    return result;
}

ReferenceCascade::Result ReferenceCascade::resolve(std::span<const PathElement> path) const
{
    Result result;
    // The nearer declaration wins.
    for (std::size_t length = path.size(); length > 0; --length)
        result.merge(ownResult(path.first(length)));
    return result;
}
