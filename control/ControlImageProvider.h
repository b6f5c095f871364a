#pragma once

#include "base/ControlExport.h"

#include <QtCore/QList>
#include <QtCore/QUrl>
#include <QtQuick/QQuickImageProvider>

namespace tamble::client {

class ControlImageProviderRule;

/// Serves theme artwork ("ui/…") and product pictures ("products/…") from PNG files beside the application, so that an
/// installation can replace them without a new build. Installed in every engine under the id "tamble".
///
/// Asset directories, in order: `<base URL>/asset` (or, when that does not exist, `../Resources/asset` of an
/// application bundle), then `asset` beside the executable. They are fixed at construction.
class TAMBLE_CLIENT_CONTROL_EXPORT ControlImageProvider : public QQuickImageProvider
{
public:
    /// `baseUrl` is the engine's; one that is no local file counts as the root of the file system.
    explicit ControlImageProvider(const QUrl &baseUrl);

    /// The first image that a rule finds for `id`, in its own size: nothing is scaled to `requestedSize`. An unknown id
    /// gives the placeholder picture, or a null image when no directory holds one. `size` must not be null. May be
    /// called from several threads at once.
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;

private:
    QList<const ControlImageProviderRule *> m_rules;
};

} // namespace tamble::client
