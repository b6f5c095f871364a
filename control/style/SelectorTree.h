#pragma once

#include "style/NameTable.h"
#include "style/PropertySpec.h"

#include <cstdint>
#include <span>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tamble::client {

/// The rules of a sheet, arranged for matching from a control outward.
///
/// The root stands before the innermost simple selector of every rule. The key of a step is a type name, "." and a class
/// word, "::" and a state word, "&" (a further simple selector on the same element) or "::desc::" (some ancestor). Without
/// "&" or "::desc::" between two steps the second is matched on the direct parent. `RAppBarButton::hovered RIcon {…}` is
/// the chain "RIcon", "::desc::", "RAppBarButton", "&", "::hovered", with the declarations on its last node.
class SelectorTree
{
public:
    using Node = std::uint32_t;
    static constexpr Node Root = 0;
    static constexpr Node None = 0xffffffff;

    static constexpr std::string_view SameElementKey = "&";
    static constexpr std::string_view DescendantKey = "::desc::";

    /// The child of `parent` behind `key`, or None.
    Node child(Node parent, NameId key) const;
    /// The child of `parent` behind `key`, made when there is none.
    Node insert(Node parent, NameId key);

    /// Declarations attached to `node`, in the order they were added.
    std::span<const PropertySpec *const> declarations(Node node) const;
    /// Attaches a declaration, which must outlive the tree, to `node`.
    void attach(Node node, const PropertySpec *declaration);
};

} // namespace tamble::client
