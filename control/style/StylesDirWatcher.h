#pragma once

#include "ControlExport.h"

#include <QtCore/QObject>
#include <QtCore/QStringList>
#include <QtCore/QUrl>
#include <QtQml/qqmlregistration.h>

namespace tamble::client {

/// Lists the style files of a directory, by name, as they come and go.
class TAMBLE_CLIENT_CONTROL_EXPORT StylesDirWatcher : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RStylesDirWatcher)
    Q_PROPERTY(QUrl stylePath MEMBER m_stylePath NOTIFY stylePathChanged)
    Q_PROPERTY(QStringList fileExtensions MEMBER m_fileExtensions NOTIFY fileExtensionsChanged)
    Q_PROPERTY(QStringList availableStyles READ availableStyles NOTIFY availableStylesChanged)

public:
    explicit StylesDirWatcher(QObject *parent = nullptr);

    QStringList availableStyles() const { return m_availableStyles; }

    Q_INVOKABLE QStringList availableStyleSheetNames() const { return m_availableStyles; }

Q_SIGNALS:
    void stylePathChanged();
    void fileExtensionsChanged();
    void availableStylesChanged();

private:
    QUrl m_stylePath;
    QStringList m_fileExtensions{QStringLiteral("*.css")};
    QStringList m_availableStyles;
};

} // namespace tamble::client
