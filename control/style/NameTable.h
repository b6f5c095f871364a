#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

namespace tamble::client {

/// Number of a name within one NameTable.
using NameId = std::uint32_t;

/// The names of one sheet, each stored once and numbered from 0 in the order of their first appearance.
class NameTable
{
public:
    static constexpr NameId Unknown = 0xffffffff;

    /// The number of `name`, which is added when it is new.
    NameId intern(std::string_view name);
    /// The number of `name`, or Unknown when the sheet never mentions it.
    NameId find(std::string_view name) const;
    std::string_view text(NameId id) const { return m_texts[id]; }

private:
    struct Fnv1a
    {
        std::size_t operator()(std::string_view text) const noexcept;
    };

    std::deque<std::string> m_texts; // a deque never moves what the map's keys refer to
    std::unordered_map<std::string_view, NameId, Fnv1a> m_ids;
};

} // namespace tamble::client
