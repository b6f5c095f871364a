#include "style/language/StyleSheet.h"

#include <string_view>
#include <unordered_map>
#include <unordered_set>

namespace tamble::client {

/// Copies sheets into one, marking where each declaration comes from.
class StyleSheetMerger
{
public:
    explicit StyleSheetMerger(StyleSheet &target)
        : m_target(target)
    {}

    /// `hidden`: for nodes of `sheet`, the names whose declarations a later sheet replaces.
    using HiddenNames = std::unordered_map<SelectorTree::Node, std::unordered_set<std::string_view>>;

    void append(const StyleSheet &sheet, SheetOrigin origin, const HiddenNames &hidden)
    {
        std::unordered_map<const PropertySpec *, const PropertySpec *>
            copies; // rules with several selectors share theirs
        std::vector<SelectorTree::Node> nodes(sheet.tree().nodeCount(), SelectorTree::root);
        for (SelectorTree::Node node = 0; node < sheet.tree().nodeCount(); ++node) {
            if (node != SelectorTree::root)
                nodes[node] =
                    m_target.m_tree.insert(nodes[sheet.tree().parent(node)],
                                           m_target.m_names.intern(sheet.names().text(sheet.tree().key(node))));
            const auto replaced = hidden.find(node);
            for (const PropertySpec *declaration : sheet.tree().declarations(node)) {
                if (replaced != hidden.end() && replaced->second.contains(declaration->name))
                    continue;
                const PropertySpec *&copy = copies[declaration];
                if (!copy) {
                    m_target.m_declarations.push_back(*declaration);
                    m_target.m_declarations.back().origin = origin;
                    copy = &m_target.m_declarations.back();
                }
                m_target.m_tree.attach(nodes[node], copy);
            }
        }
        for (const FontFace &face : sheet.fontFaces())
            m_target.m_fontFaces.push_back({face.url, face.position, origin});
        for (const auto &[name, values] : sheet.variables())
            m_target.m_variables.insert_or_assign(name, values);
        m_target.m_ruleCount += sheet.ruleCount();
    }

    /// The names that `over` declares under a selector that `under` has as well, by the node of `under`.
    static HiddenNames hiddenNames(const StyleSheet &under, const StyleSheet &over)
    {
        HiddenNames hidden;
        std::vector<SelectorTree::Node> nodes(over.tree().nodeCount(), SelectorTree::root);
        for (SelectorTree::Node node = 1; node < over.tree().nodeCount(); ++node) {
            const SelectorTree::Node parent = nodes[over.tree().parent(node)];
            const NameId key = under.names().find(over.names().text(over.tree().key(node)));
            const bool reachable = parent != SelectorTree::none && key != NameTable::unknown;
            nodes[node] = reachable ? under.tree().child(parent, key) : SelectorTree::none;
            if (nodes[node] == SelectorTree::none || under.tree().declarations(nodes[node]).empty())
                continue;
            for (const PropertySpec *declaration : over.tree().declarations(node))
                hidden[nodes[node]].insert(declaration->name);
        }
        return hidden;
    }

private:
    StyleSheet &m_target;
};

StyleSheet StyleSheet::merged(const StyleSheet &defaultSheet, const StyleSheet &userSheet)
{
    StyleSheet result;
    StyleSheetMerger merger(result);
    merger.append(defaultSheet, SheetOrigin::DefaultSheet, StyleSheetMerger::hiddenNames(defaultSheet, userSheet));
    merger.append(userSheet, SheetOrigin::UserSheet, {});
    return result;
}

} // namespace tamble::client
