#include "views/ViewEntry.h"

#include <algorithm>

namespace tamble::client {

namespace {

QVariant memberOf(const QVariant &view, const char *name)
{
    const auto *object = view.value<QObject *>();
    return object ? object->property(name) : view.toMap().value(QLatin1String(name));
}

} // namespace

QList<ViewEntry> viewEntries(const QVariant &views)
{
    QList<ViewEntry> entries;
    for (const QVariant &view : views.toList()) {
        const ViewEntry entry{memberOf(view, "key").toString(), memberOf(view, "title").toString(),
                              memberOf(view, "component").value<QObject *>(), memberOf(view, "source").toString(),
                              memberOf(view, "keepAlive").toBool()};
        if (!entry.key.isEmpty() && std::ranges::find(entries, entry.key, &ViewEntry::key) == entries.end())
            entries.append(entry);
    }
    return entries;
}

} // namespace tamble::client
