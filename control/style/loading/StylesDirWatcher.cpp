#include "style/loading/StylesDirWatcher.h"

#include "style/loading/StyleLocations.h"

#include <QtCore/QDir>

namespace tamble::client {

StylesDirWatcher::StylesDirWatcher(QObject *parent)
    : QObject(parent)
{
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &StylesDirWatcher::onDirectoryChanged);
}

void StylesDirWatcher::setStylePath(const QUrl &url)
{
    if (m_stylePath == url)
        return;
    if (!m_watcher.directories().isEmpty())
        m_watcher.removePaths(m_watcher.directories());
    m_stylePath = url;
    m_directory = localStylePath(url, this);
    if (!m_directory.isEmpty() && m_watcher.addPath(m_directory))
        refresh();
    Q_EMIT stylePathChanged();
}

void StylesDirWatcher::setFileExtensions(const QStringList &filters)
{
    if (m_fileExtensions == filters)
        return;
    m_fileExtensions = filters;
    refresh();
    Q_EMIT fileExtensionsChanged();
}

void StylesDirWatcher::onDirectoryChanged(const QString &)
{
    refresh();
}

void StylesDirWatcher::refresh()
{
    if (m_directory.isEmpty() || m_fileExtensions.isEmpty())
        return;
    const QStringList names = QDir(m_directory).entryList(m_fileExtensions, QDir::Files, QDir::Name);
    if (names == m_availableStyles)
        return;
    m_availableStyles = names;
    Q_EMIT availableStylesChanged();
}

} // namespace tamble::client
