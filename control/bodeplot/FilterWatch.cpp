#include "bodeplot/FilterWatch.h"

#include <QtCore/QMetaMethod>
#include <QtCore/QMetaProperty>

#include <algorithm>
#include <array>

namespace tamble::client {

namespace {

constexpr std::array filterProperties{
    "bypass",      "type",        "freq",    "freq2",  "gain",         "quality",
    "quality2",    "slope",       "visible", "label",  "errorFlag",    "category",
    "order",       "freqHP",      "freqLP",  "header", "coefficients", "generateCoefficients",
    "errorFlagHP", "errorFlagLP", "labelHP", "labelLP"};

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
    static const QMetaMethod selection = staticMetaObject.method(staticMetaObject.indexOfSlot("reportSelection()"));
    // A filter may be listed twice.
    for (const char *property : filterProperties) {
        if (const QMetaMethod notifier = notifierOf(*filter, property); notifier.isValid())
            connect(filter, notifier, this, change, Qt::UniqueConnection);
    }
    if (const QMetaMethod notifier = notifierOf(*filter, "selected"); notifier.isValid())
        connect(filter, notifier, this, selection, Qt::UniqueConnection);
    connect(filter, &QObject::destroyed, this, &FilterWatch::reportEnd, Qt::UniqueConnection);
}

void FilterWatch::reportChange()
{
    Q_EMIT filterChanged(sender());
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
