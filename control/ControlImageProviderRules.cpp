#include "ControlImageProviderRules.h"

namespace tamble::client {

namespace {

QImage variantOrLessSpecific(const QString &folder, const QString &name)
{
    for (QStringList pieces = name.split(u'_'); !pieces.isEmpty(); pieces.removeLast()) {
        const QImage image(folder + pieces.join(u'_') + QStringLiteral(".png"));
        if (!image.isNull())
            return image;
    }
    return {};
}

// Backslashes separate segments on some systems.
bool leavesDirectory(const QStringList &segments)
{
    return segments.contains(QStringLiteral("..")) || segments.join(u'/').contains(u'\\');
}

} // namespace

ControlImageProviderRule::ControlImageProviderRule(QStringList assetDirectories)
    : m_assetDirectories(std::move(assetDirectories))
{}

ThemeControlImageProviderRule::ThemeControlImageProviderRule(const QStringList &assetDirectories)
    : ControlImageProviderRule(assetDirectories)
{}

QImage ThemeControlImageProviderRule::image(const QString &id, const QSize &) const
{
    if (!id.startsWith(QStringLiteral("ui/")))
        return {};
    QStringList folders = id.split(u'/').mid(1);
    if (leavesDirectory(folders))
        return {};
    const QString name = folders.takeLast();
    for (const QString &directory : assetDirectories()) {
        const QImage image = variantOrLessSpecific((QStringList(directory) + folders).join(u'/') + u'/', name);
        if (!image.isNull())
            return image;
    }
    return {};
}

ProductsControlImageProviderRule::ProductsControlImageProviderRule(const QStringList &assetDirectories)
    : ControlImageProviderRule(assetDirectories)
{}

QImage ProductsControlImageProviderRule::image(const QString &id, const QSize &) const
{
    if (!id.startsWith(QStringLiteral("products/")))
        return {};
    const QString product = id.section(u'/', 1, 1);
    if (leavesDirectory({product}))
        return {};
    for (const QString &directory : assetDirectories()) {
        const QImage image(directory + QStringLiteral("/products/") + product + QStringLiteral(".png"));
        if (!image.isNull())
            return image;
    }
    return {};
}

FallbackControlImageProviderRule::FallbackControlImageProviderRule(const QStringList &assetDirectories)
    : ControlImageProviderRule(assetDirectories)
{}

QImage FallbackControlImageProviderRule::image(const QString &, const QSize &) const
{
    for (const QString &directory : assetDirectories()) {
        const QImage image(directory + QStringLiteral("/Placeholder.png"));
        if (!image.isNull())
            return image;
    }
    return {};
}

} // namespace tamble::client
