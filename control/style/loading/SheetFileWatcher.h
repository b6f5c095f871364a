#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QFileSystemWatcher>
#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QTimer>

namespace tamble::client {

/// Tells when one of a few files changes, however an editor saves: in place, by truncating and writing, by renaming
/// another file over it, or by deleting and making it anew. Also when a missing file appears.
///
/// Several events within 50 ms of each other are one change, so that half-written files are not read; a row of them
/// that never pauses is looked at after 500 ms. Other files in the same directories cause no change, and neither does
/// saving what the file holds already.
class SheetFileWatcher : public QObject
{
    Q_OBJECT

public:
    explicit SheetFileWatcher(QObject *parent = nullptr);

    /// Watches exactly these files, which need not exist.
    void setFiles(const QStringList &files);

Q_SIGNALS:
    void filesChanged(const QStringList &files);

private:
    void settle();
    void watchAgain();
    void compare();

    QFileSystemWatcher m_watcher;
    QTimer m_settle;
    QDeadlineTimer m_longestSettle;        // of the events that the timer stands for
    QHash<QString, QByteArray> m_contents; // digests by path, empty for a missing file
};

} // namespace tamble::client
