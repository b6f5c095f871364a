#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QString>
#include <QtCore/QVariant>

namespace tamble::client {

/// What a page says about one view of a container.
struct ViewEntry
{
    QString key;
    QString title;
    QPointer<QObject> component; ///< What makes the view; or else
    QString source;              ///< its file, relative to the page's.
    bool keepAlive = false;      ///< Whether the view is kept while another one is shown.

    bool isMadeLike(const ViewEntry &other) const { return component == other.component && source == other.source; }
    friend bool operator==(const ViewEntry &, const ViewEntry &) = default;
};

/// The views of a list of maps, or of objects, with the names of the members above. One without a key, or with one that
/// came before, is left out.
QList<ViewEntry> viewEntries(const QVariant &views);

} // namespace tamble::client
