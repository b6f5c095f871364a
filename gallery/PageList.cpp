#include "PageList.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QRegularExpression>
#include <QtCore/QVariantMap>

#include <array>

namespace {

struct FestivalPage
{
    const char *file;
    const char *title;
    const char *icon;
};

constexpr std::array festivalPages{
    FestivalPage{"Devices", QT_TRANSLATE_NOOP("PageList", "Devices"), "device"},
    FestivalPage{"Stage", QT_TRANSLATE_NOOP("PageList", "Stage"), "loudspeaker"},
    FestivalPage{"Routing", QT_TRANSLATE_NOOP("PageList", "Routing"), "matrix"},
    FestivalPage{"Levels", QT_TRANSLATE_NOOP("PageList", "Levels"), "mixer"},
    FestivalPage{"Equalizer", QT_TRANSLATE_NOOP("PageList", "Equaliser"), "eq"},
    FestivalPage{"Dynamics", QT_TRANSLATE_NOOP("PageList", "Dynamics"), "compressor"},
    FestivalPage{"Settings", QT_TRANSLATE_NOOP("PageList", "Settings"), "settings"},
    FestivalPage{"Log", QT_TRANSLATE_NOOP("PageList", "Log"), "clock"},
};

} // namespace

PageList::PageList(const QString &folder)
{
    for (const FestivalPage &page : festivalPages) {
        const QString file = QString::fromLatin1(page.file);
        m_festival.append(
            {QStringLiteral("festival-") + file.toLower(), QCoreApplication::translate("PageList", page.title),
             QStringLiteral("qrc%1/festival/pages/%2Page.qml").arg(folder, file), QString::fromLatin1(page.icon)});
    }
    static const QRegularExpression wordStart(QStringLiteral("(?<=[a-z0-9])(?=[A-Z])"));
    const QDir catalogue(folder + QStringLiteral("/pages"));
    for (const QFileInfo &file : catalogue.entryInfoList({QStringLiteral("*.qml")}, QDir::Files, QDir::Name)) {
        const QStringList words = file.completeBaseName().split(wordStart);
        QString title = words.join(u' ').toLower();
        title[0] = title[0].toUpper();
        m_catalogue.append({words.join(u'-').toLower(), title, QStringLiteral("qrc") + file.filePath(), {}});
    }
}

QStringList PageList::names() const
{
    QStringList names;
    for (const Page &page : m_festival + m_catalogue)
        names.append(page.name);
    return names;
}

qsizetype PageList::indexOf(const QString &name) const
{
    return names().indexOf(name);
}

QVariantList PageList::festival() const
{
    return toVariantList(m_festival);
}

QVariantList PageList::catalogue() const
{
    return toVariantList(m_catalogue);
}

QVariantList PageList::toVariantList(const QList<Page> &pages)
{
    QVariantList list;
    for (const Page &page : pages) {
        list.append(QVariantMap{{QStringLiteral("key"), page.name},
                                {QStringLiteral("title"), page.title},
                                {QStringLiteral("source"), page.source},
                                {QStringLiteral("icon"), page.icon},
                                {QStringLiteral("keepAlive"), true}});
    }
    return list;
}
