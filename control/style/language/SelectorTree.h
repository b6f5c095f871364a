#pragma once

#include "style/language/NameTable.h"
#include "style/language/PropertySpec.h"

#include <QtCore/QHash>

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace tamble::client {

/// The rules of a sheet, arranged for matching from a control outward.
///
/// The root stands before the innermost simple selector of every rule. The key of a step is a type name, "." and a
/// class word, "::" and a state word, "&" (a further simple selector on the same element) or "::desc::" (some
/// ancestor). Without
/// "&" or "::desc::" between two steps the second is matched on the direct parent. `RAppBarButton::hovered RIcon {…}`
/// is the chain "RIcon", "::desc::", "RAppBarButton", "&", "::hovered", with the declarations on its last node.
///
/// Nodes are numbered in the order they were made, so a node's parent has the smaller number.
class SelectorTree
{
public:
    using Node = std::uint32_t;
    static constexpr Node root = 0;
    static constexpr Node none = 0xffffffff;

    static constexpr std::string_view sameElementKey = "&";
    static constexpr std::string_view descendantKey = "::desc::";

    SelectorTree();

    /// The child of `parent` behind `key`, or none.
    Node child(Node parent, NameId key) const { return m_children.value(stepOf(parent, key), none); }
    /// The child of `parent` behind `key`, made when there is none.
    Node insert(Node parent, NameId key);

    /// Declarations attached to `node`, in the order they were added.
    std::span<const PropertySpec *const> declarations(Node node) const { return m_nodes[node].declarations; }
    /// Attaches a declaration, which must outlive the tree, to `node`.
    void attach(Node node, const PropertySpec *declaration) { m_nodes[node].declarations.push_back(declaration); }

    /// How many nodes there are, the root included.
    Node nodeCount() const { return Node(m_nodes.size()); }
    /// The node that `node` is a child of; none for the root.
    Node parent(Node node) const { return m_nodes[node].parent; }
    /// The key behind which `node` stands; NameTable::unknown for the root.
    NameId key(Node node) const { return m_nodes[node].key; }

private:
    struct NodeData
    {
        Node parent = none;
        NameId key = NameTable::unknown;
        std::vector<const PropertySpec *> declarations;
    };

    static quint64 stepOf(Node parent, NameId key) { return quint64(parent) << 32 | key; }

    std::vector<NodeData> m_nodes;
    QHash<quint64, Node> m_children; // one table for all nodes: most of them have a single child
};

} // namespace tamble::client
