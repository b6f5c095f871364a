#include "PageList.h"

#include <QtCore/QDir>
#include <QtCore/QRegularExpression>
#include <QtCore/QVariantMap>

PageList::PageList(const QString &folder)
{
    static const QRegularExpression wordStart(QStringLiteral("(?<=[a-z0-9])(?=[A-Z])"));
    for (const QFileInfo &file : QDir(folder).entryInfoList({QStringLiteral("*.qml")}, QDir::Files, QDir::Name)) {
        const QStringList words = file.completeBaseName().split(wordStart);
        QString title = words.join(u' ').toLower();
        title[0] = title[0].toUpper();
        m_pages.append({words.join(u'-').toLower(), title, QStringLiteral("qrc") + file.filePath()});
    }
}

QStringList PageList::names() const
{
    QStringList names;
    for (const Page &page : m_pages)
        names.append(page.name);
    return names;
}

qsizetype PageList::indexOf(const QString &name) const
{
    return names().indexOf(name);
}

QVariantList PageList::toVariantList() const
{
    QVariantList list;
    for (const Page &page : m_pages) {
        list.append(QVariantMap{{QStringLiteral("name"), page.name},
                                {QStringLiteral("title"), page.title},
                                {QStringLiteral("source"), page.source}});
    }
    return list;
}
