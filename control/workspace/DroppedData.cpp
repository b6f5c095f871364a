#include "workspace/DroppedData.h"

#include <QtCore/QMimeData>
#include <QtCore/QUrl>
#include <QtQuick/private/qquickdrag_p.h>

namespace tamble::client {

QVariant droppedData(const QMimeData &data)
{
    // Qt keeps the meta-object of that class to itself, so that it cannot be cast to.
    if (data.inherits("QQuickDragMimeData"))
        return QVariant::fromValue(static_cast<const QQuickDragMimeData &>(data).source());
    if (data.hasUrls())
        return QVariant::fromValue(data.urls());
    if (data.hasText())
        return data.text();
    QVariantMap formats;
    for (const QString &format : data.formats())
        formats.insert(format, data.data(format));
    return formats;
}

} // namespace tamble::client
