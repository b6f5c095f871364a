#include "style/StyleResolver.h"

#include "style/Cascade.h"

#include <QtCore/QHashFunctions>

#include <boost/range/adaptor/reversed.hpp>

#include <utility>

namespace tamble::client {

std::size_t StyleResolver::MapHash::operator()(const MapKey &key) const noexcept
{
    return qHashRange(key.own.begin(), key.own.end(), quintptr(key.inherited));
}

StyleResolver::StyleResolver(const StyleSheet &sheet)
    : m_sheet(sheet)
    , m_matcher(m_sheet.names(), m_sheet.tree())
{}

const ResolvedMap &StyleResolver::resolve(const StylePath &path)
{
    if (const auto known = m_entries.find(&path); known != m_entries.end())
        return *known->second.map;
    std::vector<const StylePath *> missing; // instead of a recursion: a path may have hundreds of elements
    for (const StylePath *step = &path; step && !m_entries.contains(step); step = step->parent())
        missing.push_back(step);
    for (const StylePath *step : boost::adaptors::reverse(missing))
        addEntry(*step);
    return *m_entries.at(&path).map;
}

std::vector<StyleMatch> StyleResolver::matches(const StylePath &path)
{
    resolve(path);
    std::vector<StyleMatch> result;
    m_matcher.match(m_entries.at(&path).element, result);
    sortMatches(result, m_sheet.tree());
    return result;
}

/// Resolves `path`; the path around it has been resolved.
StyleResolver::Entry &StyleResolver::addEntry(const StylePath &path)
{
    const Entry *parent = path.parent() ? &m_entries.at(path.parent()) : nullptr;
    Entry &entry = m_entries[&path];
    entry.path.reset(&path);
    entry.element.words = words(path.element());
    if (parent) {
        entry.element.parent = &parent->element;
        entry.element.nearestKnown = parent->element.words.empty() ? parent->element.nearestKnown : &parent->element;
    }
    m_matcher.match(entry.element, m_matches);
    sortMatches(m_matches, m_sheet.tree());
    entry.map = map(mergeMatches(m_matches, m_sheet.tree()), parent ? parent->map : nullptr);
    return entry;
}

const ResolvedMap *StyleResolver::map(DeclarationMap own, const ResolvedMap *parent)
{
    if (own.empty() && parent)
        return parent;
    if (parent && parent->isEmpty())
        parent = nullptr;
    const auto known = m_maps.find(MapKey(own, parent ? &parent->all() : nullptr));
    return known != m_maps.end() ? &*known : &*m_maps.emplace(std::move(own), parent).first;
}

const std::vector<MatchWord> &StyleResolver::words(const StyleElement &element)
{
    const auto known = m_words.find(&element);
    return known != m_words.end() ? known->second : m_words.emplace(&element, m_matcher.words(element)).first->second;
}

} // namespace tamble::client
