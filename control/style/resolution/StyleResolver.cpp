#include "style/resolution/StyleResolver.h"

#include "style/resolution/Cascade.h"

#include <QtCore/QHashFunctions>

#include <boost/range/adaptor/reversed.hpp>

#include <utility>

namespace tamble::client {

std::size_t StyleResolver::MapHash::operator()(const MapKey &key) const noexcept
{
    return qHashRange(key.own.begin(), key.own.end(), quintptr(key.inherited));
}

std::size_t StyleResolver::LookHash::operator()(const Look &look) const noexcept
{
    std::size_t hash = qHash(quintptr(look.parent));
    for (const MatchWord &word : look.words)
        hash = qHashMulti(hash, word.key, word.count);
    return hash;
}

StyleResolver::StyleResolver(const StyleSheet &sheet)
    : m_sheet(sheet)
    , m_matcher(m_sheet.names(), m_sheet.tree())
{}

const ResolvedMap &StyleResolver::resolve(const StylePath &path)
{
    return *resolution(path).map;
}

std::vector<StyleMatch> StyleResolver::matches(const StylePath &path)
{
    std::vector<StyleMatch> result;
    m_matcher.match(resolution(path).element, result);
    sortMatches(result, m_sheet.tree());
    return result;
}

const StyleResolver::Resolution &StyleResolver::resolution(const StylePath &path)
{
    std::vector<const StylePath *> missing; // instead of a recursion: a path may have hundreds of elements
    const Resolution *innermost = nullptr;
    for (const StylePath *step = &path; step && !innermost; step = step->parent()) {
        const auto known = m_entries.find(step);
        if (known != m_entries.end())
            innermost = known->second.resolution;
        else
            missing.push_back(step);
    }
    for (const StylePath *step : boost::adaptors::reverse(missing)) {
        innermost = &resolveLook({innermost, m_matcher.words(step->element())});
        m_entries.emplace(step, Entry{step, innermost});
    }
    return *innermost;
}

const StyleResolver::Resolution &StyleResolver::resolveLook(Look look)
{
    const auto [entry, isNew] = m_resolutions.try_emplace(std::move(look));
    Resolution &resolution = entry->second;
    if (!isNew)
        return resolution;
    resolution.element.words = entry->first.words;
    const Resolution *parent = entry->first.parent;
    if (parent) {
        resolution.element.parent = &parent->element;
        resolution.element.nearestKnown =
            parent->element.words.empty() ? parent->element.nearestKnown : &parent->element;
    }
    m_matcher.match(resolution.element, m_matches);
    sortMatches(m_matches, m_sheet.tree());
    resolution.map = map(mergeMatches(m_matches, m_sheet.tree()), parent ? parent->map : nullptr);
    return resolution;
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

} // namespace tamble::client
