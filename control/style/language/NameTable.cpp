#include "style/language/NameTable.h"

namespace tamble::client {

namespace {

/// FNV-1a of 64 bits.
std::size_t hashOf(std::string_view text)
{
    std::uint64_t hash = 0xcbf29ce484222325;
    for (const char character : text)
        hash = (hash ^ static_cast<unsigned char>(character)) * 0x100000001b3;
    return std::size_t(hash);
}

} // namespace

NameId NameTable::intern(std::string_view name)
{
    const std::size_t hash = hashOf(name);
    if (const auto known = m_ids.find({name, hash}); known != m_ids.end())
        return known->second;
    const auto id = NameId(m_texts.size());
    m_texts.emplace_back(name);
    m_ids.emplace(Key{m_texts.back(), hash}, id);
    return id;
}

NameId NameTable::find(std::string_view name) const
{
    const auto known = m_ids.find({name, hashOf(name)});
    return known == m_ids.end() ? unknown : known->second;
}

} // namespace tamble::client
