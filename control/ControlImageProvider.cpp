#include "ControlImageProvider.h"

#include "ControlImageProviderRules.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QMutex>

#include <map>

namespace tamble::client {

namespace {

QStringList assetDirectories(const QUrl &baseUrl)
{
    const QString applicationDirectory = QCoreApplication::applicationDirPath();
    QString first = baseUrl.toLocalFile() + QStringLiteral("/asset");
    if (!QDir(first).exists())
        first = applicationDirectory + QStringLiteral("/../Resources/asset");
    return {first, applicationDirectory + QStringLiteral("/asset")};
}

struct RuleSet
{
    explicit RuleSet(const QStringList &directories)
        : theme(directories)
        , products(directories)
        , fallback(directories)
    {}

    ThemeControlImageProviderRule theme;
    ProductsControlImageProviderRule products;
    FallbackControlImageProviderRule fallback;
};

// Rules outlive their providers, since an image-loading thread may still be inside one when the engine goes. Providers
// of the same directories share a set, so engines that come and go leave nothing more behind.
const RuleSet &ruleSet(const QStringList &directories)
{
    static QBasicMutex mutex;
    static auto *const sets = new std::map<QStringList, RuleSet>;
    const QMutexLocker locker(&mutex);
    return sets->try_emplace(directories, directories).first->second;
}

} // namespace

ControlImageProvider::ControlImageProvider(const QUrl &baseUrl)
    : QQuickImageProvider(QQmlImageProviderBase::Image)
{
    const QStringList directories = assetDirectories(baseUrl);
    const RuleSet &rules = ruleSet(directories);
    m_rules = {&rules.theme, &rules.products, &rules.fallback};
}

QImage ControlImageProvider::requestImage(const QString &id, QSize *size, const QSize &requestedSize)
{
    QImage image;
    for (const ControlImageProviderRule *rule : m_rules) {
        image = rule->image(id, requestedSize);
        if (!image.isNull())
            break;
    }
    *size = image.size();
    return image;
}

} // namespace tamble::client
