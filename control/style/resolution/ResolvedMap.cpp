#include "style/resolution/ResolvedMap.h"

#include <QtCore/QLatin1String>

#include <algorithm>
#include <utility>

namespace tamble::client {

namespace {

// Names in sheets are ASCII, which QString compares in the order of std::string.
template <typename Name>
bool isBefore(const PropertySpec *declaration, Name name)
{
    if constexpr (std::is_same_v<Name, QStringView>)
        return QLatin1StringView(declaration->name).compare(name) < 0;
    else
        return declaration->name < name;
}

template <typename Name>
bool hasName(const PropertySpec *declaration, Name name)
{
    if constexpr (std::is_same_v<Name, QStringView>)
        return QLatin1StringView(declaration->name) == name;
    else
        return declaration->name == name;
}

template <typename Name>
const PropertySpec *findIn(const DeclarationMap &declarations, Name name)
{
    const auto place = std::lower_bound(declarations.begin(), declarations.end(), name, isBefore<Name>);
    return place != declarations.end() && hasName(*place, name) ? *place : nullptr;
}

template <typename Name>
const PropertySpec *findIn(const DeclarationMap &own, const DeclarationMap *inherited, Name name)
{
    const PropertySpec *declaration = findIn(own, name);
    return declaration || !inherited ? declaration : findIn(*inherited, name);
}

} // namespace

ResolvedMap::ResolvedMap(DeclarationMap own, const ResolvedMap *parent)
    : m_own(std::move(own))
    , m_inherited(parent ? &parent->all() : nullptr)
{}

const PropertySpec *ResolvedMap::find(QStringView name) const
{
    return findIn(m_own, m_inherited, name);
}

const PropertySpec *ResolvedMap::find(std::string_view name) const
{
    return findIn(m_own, m_inherited, name);
}

const DeclarationMap &ResolvedMap::all() const
{
    if (!m_inherited || m_inherited->empty())
        return m_own;
    if (!m_all)
        m_all = std::make_unique<const DeclarationMap>(withInherited(m_own, *m_inherited));
    return *m_all;
}

} // namespace tamble::client
