#include "IconKeys.h"

#include <QtCore/QDir>

QStringList IconKeys::keys() const
{
    const QString suffix = QStringLiteral("_24x24.png");
    QStringList keys = QDir(QStringLiteral(":/icons")).entryList({u'*' + suffix}, QDir::Files, QDir::Name);
    for (QString &key : keys)
        key.chop(suffix.size());
    return keys;
}
