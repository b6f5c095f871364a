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
    static constexpr NameId unknown = 0xffffffff;

    NameTable() = default;
    NameTable(NameTable &&) = default;
    NameTable &operator=(NameTable &&) = default;

    /// The number of `name`, which is added when it is new.
    NameId intern(std::string_view name);
    /// The number of `name`, or unknown when the sheet never mentions it.
    NameId find(std::string_view name) const;
    std::string_view text(NameId id) const { return m_texts[id]; }
    /// How many names there are; their numbers are all below.
    std::size_t size() const { return m_texts.size(); }

private:
    // The hash stays with the text: the map asks for it again whenever it walks a bucket.
    struct Key
    {
        std::string_view text;
        std::size_t hash;

        bool operator==(const Key &other) const { return hash == other.hash && text == other.text; }
    };
    struct KeyHash
    {
        std::size_t operator()(const Key &key) const noexcept { return key.hash; }
    };

    std::deque<std::string> m_texts; // a deque never moves what the map's keys refer to
    std::unordered_map<Key, NameId, KeyHash> m_ids;
};

} // namespace tamble::client
