#pragma once

#include "style/resolution/Cascade.h"

#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QStringView>
#include <QtCore/QVariant>

#include <cstddef>
#include <memory>
#include <string_view>
#include <utility>

namespace tamble::client {

/// The declarations in force on a style path, by property name.
///
/// It holds what its own element declares and refers to what the path around it supplies, which all maps below that
/// path share: ten thousand differently named items in one panel do not copy the panel's declarations. So do the values
/// that bindings ask for: they are converted once for all paths of one map.
class ResolvedMap
{
public:
    /// Values by key and by the name of the type that was asked for.
    using Values = QHash<std::pair<QString, const char *>, QVariant>;

    /// Without declarations.
    ResolvedMap() = default;
    /// `parent`, the map of the path around, must outlive this one; null when there is nothing to inherit.
    ResolvedMap(DeclarationMap own, const ResolvedMap *parent);
    Q_DISABLE_COPY_MOVE(ResolvedMap)

    bool isEmpty() const { return m_own.empty() && (!m_inherited || m_inherited->empty()); }

    /// The declaration of `name`, or null.
    const PropertySpec *find(QStringView name) const;
    const PropertySpec *find(std::string_view name) const;

    /// All declarations, inherited ones too.
    const DeclarationMap &all() const;

    const DeclarationMap &own() const { return m_own; }
    /// What the path around supplies, some of it hidden by own declarations; null for nothing. The maps of two elements
    /// inherit the same when these are the same object.
    const DeclarationMap *inherited() const { return m_inherited; }

    /// Room for what readers have converted; it changes nothing of what is declared.
    Values &convertedValues() const { return m_convertedValues; }

private:
    DeclarationMap m_own;
    const DeclarationMap *m_inherited = nullptr;
    mutable std::unique_ptr<const DeclarationMap> m_all; // made when asked for: most maps have none below them
    mutable Values m_convertedValues;
};

} // namespace tamble::client
