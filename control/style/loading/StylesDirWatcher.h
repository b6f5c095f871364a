#pragma once

#include "base/ControlExport.h"

#include <QtCore/QFileSystemWatcher>
#include <QtCore/QObject>
#include <QtCore/QStringList>
#include <QtCore/QUrl>
#include <QtQml/qqmlregistration.h>

namespace tamble::client {

/// Lists the style files of a directory, and keeps the list current.
class TAMBLE_CLIENT_CONTROL_EXPORT StylesDirWatcher : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RStylesDirWatcher)
    /// A local directory, or one relative to the QML file that uses it; one that does not exist lists nothing.
    Q_PROPERTY(QUrl stylePath READ stylePath WRITE setStylePath NOTIFY stylePathChanged)
    /// Name filters of the files that are listed.
    Q_PROPERTY(QStringList fileExtensions READ fileExtensions WRITE setFileExtensions NOTIFY fileExtensionsChanged)
    Q_PROPERTY(QStringList availableStyles READ availableStyleSheetNames NOTIFY availableStylesChanged)

public:
    explicit StylesDirWatcher(QObject *parent = nullptr);

    QUrl stylePath() const { return m_stylePath; }
    /// A local directory, or one relative to the QML file that uses it. A directory that does not exist lists nothing.
    void setStylePath(const QUrl &url);
    QStringList fileExtensions() const { return m_fileExtensions; }
    /// Name filters, "*.css" by default.
    void setFileExtensions(const QStringList &filters);

    /// The names of the matching files, sorted.
    Q_INVOKABLE QStringList availableStyleSheetNames() const { return m_availableStyles; }

public Q_SLOTS:
    /// Lists the directory anew; the watcher calls it itself.
    void onDirectoryChanged(const QString &path);

Q_SIGNALS:
    void stylePathChanged();
    void fileExtensionsChanged();
    void availableStylesChanged();

private:
    void refresh();

    QFileSystemWatcher m_watcher;
    QUrl m_stylePath;
    QString m_directory;
    QStringList m_fileExtensions{QStringLiteral("*.css")};
    QStringList m_availableStyles;
};

} // namespace tamble::client
