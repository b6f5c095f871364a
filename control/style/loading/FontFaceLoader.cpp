#include "style/loading/FontFaceLoader.h"

#include "style/loading/StyleLog.h"

#include <QtCore/QFileInfo>
#include <QtGui/QFontDatabase>

namespace tamble::client {

namespace {

QString fontPath(const QUrl &url)
{
    if (url.scheme() == QLatin1String("qrc"))
        return u':' + url.path();
    return url.isLocalFile() ? url.toLocalFile() : QString();
}

} // namespace

void FontFaceLoader::load(const QUrl &url, const QUrl &sheetUrl, const Report &report)
{
    const QString path = fontPath(sheetUrl.resolved(url));
    if (path.isEmpty()) {
        report(QStringLiteral("Font url could not be resolved."));
        return;
    }
    if (m_loaded.contains(path))
        return;
    if (!QFileInfo(path).isFile()) {
        report(QStringLiteral("Could not find font file"));
        return;
    }
    const int id = QFontDatabase::addApplicationFont(path);
    const QStringList families = QFontDatabase::applicationFontFamilies(id);
    if (families.isEmpty()) {
        report(QStringLiteral("Could not find font in font registry after loading."));
        return;
    }
    m_loaded.insert(path, id);
    qCInfo(styleLog).noquote() << "INFO: Load font from" << path << "-> family:" << families.constFirst();
}

} // namespace tamble::client
