#pragma once

#include "ControlExport.h"

#include <QtCore/QObject>
#include <QtCore/QStringList>
#include <QtCore/QUrl>
#include <QtQml/QQmlParserStatus>
#include <QtQml/qqmlregistration.h>

namespace tamble::client {

/// Names the style sheets that the style engine uses: a default sheet and a user sheet.
class TAMBLE_CLIENT_CONTROL_EXPORT StyleEngineSetup : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_NAMED_ELEMENT(RStyleEngine)
    Q_PROPERTY(QUrl stylePath MEMBER m_stylePath NOTIFY stylePathChanged)
    Q_PROPERTY(QString styleName MEMBER m_styleName NOTIFY styleNameChanged)
    Q_PROPERTY(QString defaultStyleName MEMBER m_defaultStyleName NOTIFY defaultStyleNameChanged)
    Q_PROPERTY(QStringList fileExtensions MEMBER m_fileExtensions NOTIFY fileExtensionsChanged)
    Q_PROPERTY(QStringList availableStyles READ availableStyles NOTIFY availableStylesChanged)
    Q_PROPERTY(QUrl styleSheetSource MEMBER m_styleSheetSource NOTIFY styleSheetSourceChanged)
    Q_PROPERTY(QUrl defaultStyleSheetSource MEMBER m_defaultStyleSheetSource NOTIFY defaultStyleSheetSourceChanged)

public:
    explicit StyleEngineSetup(QObject *parent = nullptr);

    QStringList availableStyles() const { return m_availableStyles; }

    void classBegin() override;
    void componentComplete() override;

Q_SIGNALS:
    void stylePathChanged();
    void styleNameChanged();
    void defaultStyleNameChanged();
    void fileExtensionsChanged();
    void availableStylesChanged();
    void styleSheetSourceChanged(const QUrl &url);
    void defaultStyleSheetSourceChanged(const QUrl &url);
    void styleChanged();
    /// A problem of the style system: its kind and a text for the user.
    void exception(const QString &type, const QString &message);

private:
    QUrl m_stylePath;
    QString m_styleName;
    QString m_defaultStyleName;
    QStringList m_fileExtensions{QStringLiteral("*.css")};
    QStringList m_availableStyles;
    QUrl m_styleSheetSource;
    QUrl m_defaultStyleSheetSource;
};

} // namespace tamble::client
