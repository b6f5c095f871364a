#pragma once

#include "base/ControlExport.h"

#include <QtCore/QObject>
#include <QtCore/QUrl>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace tamble::client {

/// The name of a window's style sheet, put together from a directory, a key and a theme word: "qrc:/style/" and "app"
/// and "dark" give "qrc:/style/app.dark.style".
class TAMBLE_CLIENT_CONTROL_EXPORT SheetName : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RSheetName)
    Q_PROPERTY(QString directory READ directory WRITE setDirectory NOTIFY partsChanged)
    Q_PROPERTY(QString key READ key WRITE setKey NOTIFY partsChanged)
    /// Theme word between key and ending.
    Q_PROPERTY(QString themeWord READ themeWord WRITE setThemeWord NOTIFY partsChanged)
    /// What key and theme word are until they are set: `defaultKey` and `defaultThemeWord`.
    Q_PROPERTY(QString defaultKey READ defaultKey WRITE setDefaultKey NOTIFY partsChanged)
    Q_PROPERTY(QString defaultThemeWord READ defaultThemeWord WRITE setDefaultThemeWord NOTIFY partsChanged)
    Q_PROPERTY(bool optional READ isOptional WRITE setOptional NOTIFY partsChanged)
    Q_PROPERTY(QUrl source READ source NOTIFY sourceChanged)
    Q_PROPERTY(bool named READ isNamed NOTIFY namedChanged)

public:
    explicit SheetName(QObject *parent = nullptr);

    /// What comes before the key, "qrc:/style/" unless set. A missing slash at its end is added when there is no file
    /// of the name without it. Relative ones start from the QML file of the application.
    QString directory() const;
    void setDirectory(const QString &directory);
    /// An empty key stands for no sheet.
    QString key() const { return m_key.value_or(m_defaultKey); }
    void setKey(const QString &key);
    QString themeWord() const { return m_themeWord.value_or(m_defaultThemeWord); }
    void setThemeWord(const QString &word);

    /// What key and theme word are until they are set.
    QString defaultKey() const { return m_defaultKey; }
    void setDefaultKey(const QString &key);
    QString defaultThemeWord() const { return m_defaultThemeWord; }
    void setDefaultThemeWord(const QString &word);

    /// Whether a file that does not exist is no fault as long as directory, key and theme have never been set.
    bool isOptional() const { return m_optional; }
    void setOptional(bool optional);

    /// Empty for no sheet.
    QUrl source() const { return m_source; }
    /// False until there is something to tell the style engine. An empty source is told once another one was.
    bool isNamed() const { return m_named; }

Q_SIGNALS:
    void partsChanged();
    void sourceChanged();
    void namedChanged();

private:
    void update();
    QUrl compose() const;
    bool exists(const QUrl &url) const;

    std::optional<QString> m_directory; // nothing until set, be it to the default
    std::optional<QString> m_key;
    std::optional<QString> m_themeWord;
    QString m_defaultKey;
    QString m_defaultThemeWord;
    QUrl m_source;
    bool m_optional = false;
    bool m_named = false;
};

} // namespace tamble::client
