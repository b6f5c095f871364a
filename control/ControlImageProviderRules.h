#pragma once

#include "base/ControlExport.h"

#include <QtCore/QStringList>
#include <QtGui/QImage>

namespace tamble::client {

/// One way of finding the file behind an image id in a list of asset directories.
///
/// A rule is immutable, so that image-loading threads may share it. Ids and requested sizes are the engine's; no rule
/// scales, so the requested size is ignored. An id with a segment ".." or a backslash finds nothing: product names come
/// from devices on the network and must not lead out of the asset directories.
class TAMBLE_CLIENT_CONTROL_EXPORT ControlImageProviderRule
{
public:
    /// The image for `id`, or a null image when the rule does not apply or finds no readable file.
    virtual QImage image(const QString &id, const QSize &requestedSize) const = 0;

protected:
    /// `assetDirectories` are absolute paths without a trailing slash, searched in this order.
    explicit ControlImageProviderRule(QStringList assetDirectories);
    ~ControlImageProviderRule() = default;

    const QStringList &assetDirectories() const { return m_assetDirectories; }

private:
    QStringList m_assetDirectories;
};

/// Theme artwork: "ui/folder/name_24x24_hover" is looked up as `<directory>/folder/name_24x24_hover.png`, then without
/// its last underscore piece, and so on, before the next directory is searched.
class TAMBLE_CLIENT_CONTROL_EXPORT ThemeControlImageProviderRule final : public ControlImageProviderRule
{
public:
    explicit ThemeControlImageProviderRule(const QStringList &assetDirectories);
    QImage image(const QString &id, const QSize &requestedSize) const override;
};

/// Product pictures: "products/name" is `<directory>/products/name.png`; further segments of the id do not count.
class TAMBLE_CLIENT_CONTROL_EXPORT ProductsControlImageProviderRule final : public ControlImageProviderRule
{
public:
    explicit ProductsControlImageProviderRule(const QStringList &assetDirectories);
    QImage image(const QString &id, const QSize &requestedSize) const override;
};

/// Any id: `<directory>/Placeholder.png`.
class TAMBLE_CLIENT_CONTROL_EXPORT FallbackControlImageProviderRule final : public ControlImageProviderRule
{
public:
    explicit FallbackControlImageProviderRule(const QStringList &assetDirectories);
    QImage image(const QString &id, const QSize &requestedSize) const override;
};

} // namespace tamble::client
