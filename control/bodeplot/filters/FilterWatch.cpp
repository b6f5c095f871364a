#include "bodeplot/filters/FilterWatch.h"

#include "bodeplot/filters/FilterFields.h"

#include <QtCore/QMetaMethod>
#include <QtCore/QMetaProperty>

#include <algorithm>
#include <set>
#include <string_view>
#include <utility>

namespace tamble::client {

namespace {

/// Names of all properties that filters of any kind have.
std::set<std::string_view> filterProperties()
{
    std::set<std::string_view> names;
    const auto insert = [&](const auto &field) { names.insert(field.name); };
    forEachField<EqFilterExtended>(insert);
    forEachField<AsymmetricEqFilterExtended>(insert);
    forEachField<XOverFilterExtended>(insert);
    forEachField<FIRFilterExtended>(insert);
    return names;
}

QMetaMethod notifierOf(const QObject &object, const char *property)
{
    const QMetaObject *type = object.metaObject();
    const int index = type->indexOfProperty(property);
    return index < 0 ? QMetaMethod() : type->property(index).notifySignal();
}

} // namespace

void FilterWatch::setFilters(const std::vector<QObject *> &filters)
{
    if (m_filters == filters)
        return;
    for (QObject *old : m_filters) {
        if (std::ranges::find(filters, old) == filters.end())
            old->disconnect(this);
    }
    const std::vector<QObject *> watched = std::exchange(m_filters, filters);
    for (QObject *filter : filters) {
        if (std::ranges::find(watched, filter) == watched.end())
            watch(filter);
    }
}

void FilterWatch::watch(QObject *filter)
{
    static const QMetaMethod change = staticMetaObject.method(staticMetaObject.indexOfSlot("reportChange()"));
    static const QMetaMethod header = staticMetaObject.method(staticMetaObject.indexOfSlot("reportHeader()"));
    static const QMetaMethod selection = staticMetaObject.method(staticMetaObject.indexOfSlot("reportSelection()"));
    const auto watchProperty = [&](const char *property, const QMetaMethod &slot) {
        // A filter may be listed twice.
        if (const QMetaMethod notifier = notifierOf(*filter, property); notifier.isValid())
            connect(filter, notifier, this, slot, Qt::UniqueConnection);
    };
    static const std::set<std::string_view> properties = filterProperties();
    for (const std::string_view property : properties)
        watchProperty(property.data(), property == "header" ? header : change);
    watchProperty("selected", selection);
    connect(filter, &QObject::destroyed, this, &FilterWatch::reportEnd, Qt::UniqueConnection);
}

void FilterWatch::reportChange()
{
    Q_EMIT filterChanged(sender());
}

void FilterWatch::reportHeader()
{
    Q_EMIT filterHeaderChanged(sender());
}

void FilterWatch::reportSelection()
{
    Q_EMIT filterSelectionChanged(sender());
}

void FilterWatch::reportEnd(QObject *filter)
{
    std::erase(m_filters, filter);
    Q_EMIT filterDestroyed(filter);
}

} // namespace tamble::client
