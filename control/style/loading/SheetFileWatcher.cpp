#include "style/loading/SheetFileWatcher.h"

#include "style/loading/SheetFile.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>

#include <algorithm>
#include <chrono>

namespace tamble::client {

namespace {

using namespace std::chrono_literals;

constexpr auto settleTime = 50ms;
constexpr auto longestSettleTime = 500ms;

// Times of modification are too coarse to tell two saves within milliseconds apart. What a file holds beyond the length
// of a sheet makes no difference, since neither is used.
QByteArray digestOf(const QString &path)
{
    const std::optional<QByteArray> text = readSheetFile(path);
    return text ? QCryptographicHash::hash(*text, QCryptographicHash::Sha1) : QByteArray();
}

// The directory of `file`, or the nearest one above that exists: the rest of the path may appear later.
QString watchableDirectory(const QString &file)
{
    QDir directory = QFileInfo(file).absoluteDir();
    while (!directory.exists() && !directory.isRoot())
        directory.setPath(QFileInfo(directory.absolutePath()).absolutePath());
    return directory.absolutePath();
}

} // namespace

SheetFileWatcher::SheetFileWatcher(QObject *parent)
    : QObject(parent)
{
    m_settle.setSingleShot(true);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &SheetFileWatcher::settle);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &SheetFileWatcher::settle);
    connect(&m_settle, &QTimer::timeout, this, &SheetFileWatcher::compare);
}

void SheetFileWatcher::setFiles(const QStringList &files)
{
    QHash<QString, QByteArray> contents;
    for (const QString &file : files)
        contents.insert(file, digestOf(file));
    m_contents = contents;
    watchAgain();
}

// A neighbour that is written all the time must not hold a changed sheet back.
void SheetFileWatcher::settle()
{
    if (!m_settle.isActive())
        m_longestSettle.setRemainingTime(longestSettleTime);
    m_settle.start(std::min(settleTime, std::chrono::milliseconds(m_longestSettle.remainingTime())));
}

// A watch on a file ends when the file is replaced, and none can be set on a missing one; hence the directories too.
void SheetFileWatcher::watchAgain()
{
    QStringList wanted;
    for (auto entry = m_contents.cbegin(); entry != m_contents.cend(); ++entry) {
        if (isSheetFile(entry.key()))
            wanted.append(entry.key());
        wanted.append(watchableDirectory(entry.key()));
    }
    const QStringList watched = m_watcher.files() + m_watcher.directories();
    for (const QString &path : watched) {
        if (!wanted.contains(path))
            m_watcher.removePath(path);
    }
    for (const QString &path : std::as_const(wanted)) {
        if (!m_watcher.files().contains(path) && !m_watcher.directories().contains(path))
            m_watcher.addPath(path);
    }
}

void SheetFileWatcher::compare()
{
    QStringList changed;
    for (auto entry = m_contents.begin(); entry != m_contents.end(); ++entry) {
        const QByteArray content = digestOf(entry.key());
        if (content == entry.value())
            continue;
        entry.value() = content;
        changed.append(entry.key());
    }
    watchAgain();
    if (!changed.isEmpty())
        Q_EMIT filesChanged(changed);
}

} // namespace tamble::client
