#include "bodeplot/filters/FilterWatch.h"

#include <QtCore/QMetaMethod>
#include <QtCore/QMetaProperty>

#include <algorithm>
#include <array>

namespace tamble::client {

namespace {

constexpr std::array filterProperties{
    "bypass", "type",        "freq",        "freq2",     "gain",     "quality",      "quality2",
    "slope",  "visible",     "label",       "errorFlag", "category", "order",        "freqHP",
    "freqLP", "errorFlagHP", "errorFlagLP", "labelHP",   "labelLP",  "coefficients", "generateCoefficients"};

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
    for (const char *property : filterProperties)
        watchProperty(property, change);
    watchProperty("header", header);
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
