#include "style/SelectorTree.h"

#include <utility>

namespace tamble::client {

SelectorTree::SelectorTree()
    : m_nodes(1)
{}

SelectorTree::Node SelectorTree::insert(Node parent, NameId key)
{
    const quint64 step = stepOf(parent, key);
    if (const auto known = m_children.constFind(step); known != m_children.cend())
        return *known;
    const Node node = nodeCount();
    NodeData data;
    data.parent = parent;
    data.key = key;
    data.olderSibling = std::exchange(m_nodes[parent].newestChild, node);
    ++m_nodes[parent].childCount;
    m_nodes.push_back(std::move(data));
    m_children.insert(step, node);
    return node;
}

} // namespace tamble::client
