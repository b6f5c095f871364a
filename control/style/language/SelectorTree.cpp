#include "style/language/SelectorTree.h"

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
    m_nodes.push_back({parent, key, {}});
    m_children.insert(step, node);
    return node;
}

} // namespace tamble::client
