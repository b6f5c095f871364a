#include "style/loading/SheetFile.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

namespace tamble::client {

namespace {

/// The path of a resource, or empty.
QString resourcePath(const QString &text)
{
    if (text.startsWith(QStringLiteral("qrc:/")))
        return text.mid(3);
    return text.startsWith(QStringLiteral(":/")) ? text : QString();
}

} // namespace

QString sheetPath(const QUrl &url, const QUrl &baseUrl)
{
    const QString own = resourcePath(url.toString());
    if (!own.isEmpty())
        return own;
    const QUrl resolved = baseUrl.resolved(url);
    const QString resource = resourcePath(resolved.toString());
    return resource.isEmpty() ? resolved.toLocalFile() : resource;
}

bool isSheetFile(const QString &path)
{
    return QFileInfo(path).isFile();
}

std::optional<QByteArray> readSheetFile(const QString &path, QString *error)
{
    QFile file(path);
    if (isSheetFile(path) && file.open(QFile::ReadOnly | QFile::Unbuffered)) {
        QByteArray text = file.read(maximumSheetBytes + 1);
        text.squeeze(); // what is read keeps the room of what was asked for, and texts are kept
        return text;
    }
    if (error)
        *error = file.errorString();
    return std::nullopt;
}

} // namespace tamble::client
