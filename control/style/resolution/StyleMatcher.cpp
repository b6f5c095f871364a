#include "style/resolution/StyleMatcher.h"

#include <QtCore/QStringEncoder>
#include <QtCore/QVarLengthArray>

#include <algorithm>
#include <iterator>
#include <limits>
#include <string_view>

namespace tamble::client {

namespace {

/// Up to here looking them all up is as quick as anything.
constexpr std::size_t fewWords = 32;

/// Sorts by key and counts repetitions.
void makeDistinct(std::vector<MatchWord> &words)
{
    std::ranges::sort(words, {}, &MatchWord::key);
    auto end = words.begin();
    for (const MatchWord &word : words) {
        if (end != words.begin() && std::prev(end)->key == word.key)
            ++std::prev(end)->count;
        else
            *end++ = word;
    }
    words.erase(end, words.end());
}

std::uint32_t saturatedProduct(std::uint32_t a, std::uint32_t b)
{
    return std::uint32_t(std::min<std::uint64_t>(std::uint64_t(a) * b, std::numeric_limits<std::uint32_t>::max()));
}

/// True for texts that the tree uses for classes and states: as the type name of an item they match nothing.
bool isTypeName(const QString &name)
{
    return !name.startsWith(u'.') && !name.startsWith(u':');
}

} // namespace

StyleMatcher::StyleMatcher(const NameTable &names, const SelectorTree &tree)
    : m_names(names)
    , m_tree(tree)
    , m_sameElement(names.find(SelectorTree::sameElementKey))
    , m_descendant(names.find(SelectorTree::descendantKey))
{}

std::vector<MatchWord> StyleMatcher::words(const StyleElement &element) const
{
    std::vector<MatchWord> result;
    result.reserve(std::size_t(1 + element.classes.size() + element.states.size()));
    QVarLengthArray<char, 256> text;
    const auto add = [&](std::string_view mark, const QString &word, const Specificity &weight) {
        QStringEncoder encoder(QStringEncoder::Utf8);
        text.resize(qsizetype(mark.size()) + encoder.requiredSpace(word.size()));
        char *const begin = text.data();
        const char *const end = encoder.appendToBuffer(std::ranges::copy(mark, begin).out, word);
        const NameId key = m_names.find({begin, end});
        // A word that spells out one of the tree's own keys is none of the sheet's words.
        if (key != NameTable::unknown && key != m_sameElement && key != m_descendant)
            result.push_back({key, 1, weight});
    };
    if (isTypeName(element.typeName))
        add("", element.typeName, {.types = 1});
    for (const QString &word : element.classes)
        add(".", word, {.classes = 1});
    for (const QString &word : element.states)
        add("::", word, {.states = 1});
    makeDistinct(result);
    return result;
}

void StyleMatcher::match(const MatchElement &innermost, std::vector<StyleMatch> &matches)
{
    matches.clear();
    m_candidates.clear();
    matchWords({SelectorTree::root, &innermost, {}, 1}, SelectorTree::root, innermost);
    for (std::size_t i = 0; i < m_candidates.size(); ++i) { // NOLINT(modernize-loop-convert): the list grows meanwhile
        const Candidate candidate = m_candidates[i];
        continueFrom(candidate, matches);
    }
}

void StyleMatcher::continueFrom(const Candidate &candidate, std::vector<StyleMatch> &matches)
{
    record(candidate, candidate.node, matches);

    if (const SelectorTree::Node same = child(candidate.node, m_sameElement); same != SelectorTree::none) {
        record(candidate, same, matches);
        matchWords(candidate, same, *candidate.element);
    }

    if (!candidate.element->parent)
        return;
    matchWords(candidate, candidate.node, *candidate.element->parent);
    if (const SelectorTree::Node descendant = child(candidate.node, m_descendant); descendant != SelectorTree::none) {
        // The nearest ancestor that fits any selector behind the step ends the search for all of them.
        const MatchElement *ancestor = candidate.element->nearestKnown;
        while (ancestor && !matchWords(candidate, descendant, *ancestor))
            ancestor = ancestor->nearestKnown;
    }
}

/// Adds the children of `node` that fit `element` to the candidates; false when there is none.
bool StyleMatcher::matchWords(const Candidate &from, SelectorTree::Node node, const MatchElement &element)
{
    const std::size_t before = m_candidates.size();
    const auto add = [&](SelectorTree::Node next, const MatchWord &word) {
        m_candidates.push_back(
            {next, &element, from.specificity + word.weight, saturatedProduct(from.routes, word.count)});
    };
    // An element may have as many words as the sheet has nodes, so the fewer of the two are gone through.
    if (element.words.size() > fewWords && childrenOf(node).size() < element.words.size()) {
        for (const SelectorTree::Node next : childrenOf(node)) {
            const auto word = std::ranges::lower_bound(element.words, m_tree.key(next), {}, &MatchWord::key);
            if (word != element.words.end() && word->key == m_tree.key(next))
                add(next, *word);
        }
    } else {
        for (const MatchWord &word : element.words) {
            if (const auto next = child(node, word.key); next != SelectorTree::none)
                add(next, word);
        }
    }
    return m_candidates.size() > before;
}

void StyleMatcher::record(const Candidate &candidate, SelectorTree::Node node, std::vector<StyleMatch> &matches) const
{
    if (!m_tree.declarations(node).empty())
        matches.push_back({node, candidate.specificity, candidate.routes});
}

const std::vector<SelectorTree::Node> &StyleMatcher::childrenOf(SelectorTree::Node node)
{
    if (m_children.empty()) {
        m_children.resize(m_tree.nodeCount());
        for (SelectorTree::Node child = SelectorTree::root + 1; child < m_tree.nodeCount(); ++child)
            m_children[m_tree.parent(child)].push_back(child);
    }
    return m_children[node];
}

SelectorTree::Node StyleMatcher::child(SelectorTree::Node node, NameId key)
{
    ++m_lookUps;
    return m_tree.child(node, key);
}

} // namespace tamble::client
