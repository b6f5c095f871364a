#include "GalleryFiles.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>

QStringList GalleryFiles::iconKeys() const
{
    const QString suffix = QStringLiteral("_24x24.png");
    QStringList keys = QDir(QStringLiteral(":/icons")).entryList({u'*' + suffix}, QDir::Files, QDir::Name);
    for (QString &key : keys)
        key.chop(suffix.size());
    return keys;
}

QUrl GalleryFiles::styleDirectory() const
{
    return QUrl::fromLocalFile(QCoreApplication::applicationDirPath() + QStringLiteral("/styles"));
}
