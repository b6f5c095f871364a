#pragma once

#include "style/language/StyleSheet.h"
#include "style/resolution/ResolvedMap.h"
#include "style/resolution/StyleMatcher.h"
#include "style/resolution/StylePath.h"

#include <cstddef>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace tamble::client {

/// Resolves style paths against one sheet, each distinct path once.
///
/// The sheet never changes, so neither does a result: a style load makes a new resolver and drops the old one with all
/// it holds. It keeps the paths that it has resolved, so the pool collects them after the resolver is gone. Paths of
/// one resolver are of one pool. For the GUI thread only.
class StyleResolver
{
public:
    /// `sheet` must outlive the resolver and stay as it is.
    explicit StyleResolver(const StyleSheet &sheet);
    Q_DISABLE_COPY_MOVE(StyleResolver)

    /// The declarations in force on `path`, valid as long as the resolver.
    ///
    /// A path whose innermost element matches nothing has the very map of the path around it, and paths with the same
    /// own declarations in the same surroundings share one map, so a different address is a first test for a change.
    const ResolvedMap &resolve(const StylePath &path);

    /// What matches the innermost element of `path`, from the weakest to the strongest.
    std::vector<StyleMatch> matches(const StylePath &path);

    /// How much is held and how often the selector tree was asked, for figures and tests of the cost.
    std::size_t pathCount() const { return m_entries.size(); }
    std::size_t mapCount() const { return m_maps.size(); }
    std::size_t lookUpCount() const { return m_matcher.lookUpCount(); }

private:
    /// The result for all paths that look the same to the sheet: names and states that it never mentions make no
    /// difference.
    struct Resolution
    {
        MatchElement element;
        const ResolvedMap *map = nullptr;
    };
    struct Look
    {
        bool operator==(const Look &) const = default;

        const Resolution *parent; // null for an outermost element
        std::vector<MatchWord> words;
    };
    struct LookHash
    {
        std::size_t operator()(const Look &look) const noexcept;
    };
    struct Entry
    {
        StylePathRef path; // a pool reuses the address of a path that it dropped
        const Resolution *resolution;
    };

    struct MapKey
    {
        MapKey(const DeclarationMap &ownDeclarations, const DeclarationMap *inheritedDeclarations)
            : own(ownDeclarations)
            , inherited(inheritedDeclarations)
        {}
        MapKey(const ResolvedMap &map) // NOLINT(google-explicit-constructor): a map is found by its key
            : MapKey(map.own(), map.inherited())
        {}

        bool operator==(const MapKey &other) const { return inherited == other.inherited && own == other.own; }

        const DeclarationMap &own;
        const DeclarationMap *inherited;
    };
    struct MapHash
    {
        using is_transparent = void;
        std::size_t operator()(const MapKey &key) const noexcept;
    };
    struct MapEqual
    {
        using is_transparent = void;
        bool operator()(const MapKey &a, const MapKey &b) const { return a == b; }
    };

    const Resolution &resolution(const StylePath &path);
    const Resolution &resolveLook(Look look);
    const ResolvedMap *map(DeclarationMap own, const ResolvedMap *parent);

    const StyleSheet &m_sheet;
    StyleMatcher m_matcher;
    std::unordered_set<ResolvedMap, MapHash, MapEqual> m_maps;
    std::unordered_map<Look, Resolution, LookHash> m_resolutions;
    std::unordered_map<const StylePath *, Entry> m_entries;
    std::vector<StyleMatch> m_matches; // kept for its capacity
};

} // namespace tamble::client
