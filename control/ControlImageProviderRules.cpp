#include "ControlImageProviderRules.h"

#include <QtCore/QFile>

namespace tamble::client {

namespace {

constexpr QLatin1String suffix(".png");

/// Whether a file may have this name, which the suffix follows. No file system of ours has names of more than 255
/// bytes.
bool canBeFileName(const QString &name)
{
    constexpr qsizetype maximumBytes = 255 - suffix.size();
    // A character has at least a byte, so the conversion is needed for short names only.
    return name.size() <= maximumBytes && QFile::encodeName(name).size() <= maximumBytes;
}

QImage variantOrLessSpecific(const QString &folder, QString name)
{
    for (qsizetype end = name.size(); end >= 0; end = end == 0 ? -1 : name.lastIndexOf(u'_', end - 1)) {
        name.truncate(end);
        if (!canBeFileName(name))
            continue;
        const QImage image(folder + name + suffix);
        if (!image.isNull())
            return image;
    }
    return {};
}

// Out of the directory, where backslashes separate segments on some systems, or to a name that no file can have.
bool leadsNowhere(const QStringList &segments)
{
    const QString path = segments.join(u'/');
    return segments.contains(QStringLiteral("..")) || path.contains(u'\\') || path.contains(QChar::Null);
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
    if (leadsNowhere(folders))
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
    if (leadsNowhere({product}))
        return {};
    for (const QString &directory : assetDirectories()) {
        const QImage image(directory + QStringLiteral("/products/") + product + suffix);
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
