#pragma once

#include "CascadeCase.h"

#include <map>

/// What the rules of the cascade give for a path, followed step by step over all selectors: property name to value.
///
/// Slow, without a tree, without a cache.
class ReferenceCascade
{
public:
    using Result = std::map<std::string, std::string>;

    ReferenceCascade(const SheetCase &defaultSheet, const SheetCase &userSheet);

    Result resolve(std::span<const PathElement> path) const;

private:
    struct Placed
    {
        Declaration declaration;
        bool isUsers = false;
    };
    /// A selector from its innermost word outward, with a word for each step, and what its rules declare.
    using Chain = std::vector<std::string>;
    using Chains = std::map<Chain, std::vector<Placed>>;
    struct Match;
    struct Search;

    static Chain chainOf(const Selector &selector);
    static Chains chainsOf(const SheetCase &sheet, bool isUsers);
    Result ownResult(std::span<const PathElement> path) const;

    Chains m_chains;
};
