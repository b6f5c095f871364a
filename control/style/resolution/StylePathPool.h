#pragma once

#include "style/resolution/StylePath.h"

#include <QtCore/QStringView>

#include <cstddef>
#include <unordered_set>

namespace tamble::client {

/// Makes style paths and holds each distinct one once. For the GUI thread only.
///
/// Paths that nothing refers to stay for a while, since a state that was left often comes back: until somebody
/// collects, at the latest until there are twice as many paths as the last collection left.
class StylePathPool
{
public:
    StylePathPool() = default;
    /// The one that the items on screen use. It is never destroyed, so paths may be held until the process ends.
    static StylePathPool &instance();
    Q_DISABLE_COPY_MOVE(StylePathPool)

    /// The path of an item below `parent`; null `parent` for the outermost item.
    ///
    /// `name` and `state` hold words separated by single blanks; empty words are dropped. The cost does not depend on
    /// the depth of `parent`.
    StylePathRef child(const StylePathRef &parent, QStringView typeName, QStringView name, QStringView state);

    /// Drops all paths that nothing refers to, and all that only those referred to.
    void collect();

    /// Fewer are not worth a search for those that can go.
    static constexpr std::size_t minimumGrowth = 512;

    /// How many paths and how many distinct elements are held.
    std::size_t pathCount() const { return m_paths.size(); }
    std::size_t elementCount() const { return m_elements.size(); }

private:
    /// The texts of an element before they are split, with a hash of their words.
    struct ElementText
    {
        ElementText(QStringView type, QStringView classes, QStringView states);

        QStringView typeName;
        QStringView name;
        QStringView state;
        std::size_t hash;
    };
    struct PooledElement
    {
        StyleElement element;
        std::size_t hash;
    };
    struct ElementHash
    {
        using is_transparent = void;
        std::size_t operator()(const PooledElement &pooled) const noexcept { return pooled.hash; }
        std::size_t operator()(const ElementText &text) const noexcept { return text.hash; }
    };
    struct ElementEqual
    {
        using is_transparent = void;
        bool operator()(const PooledElement &a, const PooledElement &b) const { return a.element == b.element; }
        bool operator()(const PooledElement &pooled, const ElementText &text) const;
        bool operator()(const ElementText &text, const PooledElement &pooled) const { return (*this)(pooled, text); }
    };

    struct PathKey
    {
        PathKey(const StylePath *parentPath, const StyleElement *innermost)
            : parent(parentPath)
            , element(innermost)
        {}
        PathKey(const StylePath &path) // NOLINT(google-explicit-constructor): a path is found by its key
            : PathKey(path.parent(), &path.element())
        {}

        bool operator==(const PathKey &) const = default;

        const StylePath *parent;
        const StyleElement *element;
    };
    struct PathHash
    {
        using is_transparent = void;
        std::size_t operator()(const PathKey &key) const noexcept;
    };
    struct PathEqual
    {
        using is_transparent = void;
        bool operator()(const PathKey &a, const PathKey &b) const { return a == b; }
    };

    const StyleElement *element(const ElementText &text);
    void dropUnusedElements();

    std::unordered_set<PooledElement, ElementHash, ElementEqual> m_elements;
    std::unordered_set<StylePath, PathHash, PathEqual> m_paths;
    std::size_t m_mostPaths = minimumGrowth;
};

} // namespace tamble::client
