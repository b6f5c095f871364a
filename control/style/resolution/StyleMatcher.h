#pragma once

#include "style/language/SelectorTree.h"
#include "style/resolution/Specificity.h"
#include "style/resolution/StylePath.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace tamble::client {

/// A type name, class word or state word of an element, as a key of the selector tree.
struct MatchWord
{
    NameId key;
    std::uint32_t count; ///< how often the element carries the word, at least 1
    Specificity weight;  ///< what a match of the word adds

    bool operator==(const MatchWord &) const = default;
};

/// An element of a style path as a sheet sees it: the words that the sheet does not mention are left out.
struct MatchElement
{
    std::span<const MatchWord> words;           ///< in the order of their keys
    const MatchElement *parent = nullptr;       ///< the next outer element
    const MatchElement *nearestKnown = nullptr; ///< the nearest outer element that has words
};

/// A node of the selector tree with declarations whose selector matches.
struct StyleMatch
{
    SelectorTree::Node node;
    Specificity specificity;
    /// In how many ways the selector matches: more than 1 when an element carries a word repeatedly. Counted up to the
    /// limit of the type.
    std::uint32_t routes;

    bool operator==(const StyleMatch &) const = default;
};

/// Finds the rules of one sheet that match a style path.
///
/// A node of the tree is reached on one element of the path at most, since a descendant step stops at the nearest
/// ancestor that it fits. So the cost is bounded by the nodes that match, times depth and words for each descendant
/// step, whatever else the sheet holds; and by the nodes of the sheet, however many words an element has.
class StyleMatcher
{
public:
    /// Both must outlive the matcher and stay as they are.
    StyleMatcher(const NameTable &names, const SelectorTree &tree);

    /// The words of `element` that the sheet mentions, each once, in the order of their keys.
    std::vector<MatchWord> words(const StyleElement &element) const;

    /// Replaces `matches` with those of the path that ends in `innermost`, in the order they are found.
    void match(const MatchElement &innermost, std::vector<StyleMatch> &matches);

    /// How often the matcher asked the tree for a child so far.
    std::size_t lookUpCount() const { return m_lookUps; }

private:
    struct Candidate
    {
        SelectorTree::Node node;
        const MatchElement *element;
        Specificity specificity;
        std::uint32_t routes;
    };

    const std::vector<SelectorTree::Node> &childrenOf(SelectorTree::Node node);
    SelectorTree::Node child(SelectorTree::Node node, NameId key);
    bool matchWords(const Candidate &from, SelectorTree::Node node, const MatchElement &element);
    void continueFrom(const Candidate &candidate, std::vector<StyleMatch> &matches);
    void record(const Candidate &candidate, SelectorTree::Node node, std::vector<StyleMatch> &matches) const;

    const NameTable &m_names;
    const SelectorTree &m_tree;
    NameId m_sameElement;
    NameId m_descendant;
    std::vector<Candidate> m_candidates;                     // kept for its capacity
    std::vector<std::vector<SelectorTree::Node>> m_children; // by node; gathered for the first element of many words
    std::size_t m_lookUps = 0;
};

} // namespace tamble::client
