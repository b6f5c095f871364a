#pragma once

#include "base/ControlExport.h"
#include "style/loading/SheetFileWatcher.h"
#include "style/loading/StylesDirWatcher.h"

#include <QtCore/QObject>
#include <QtCore/QUrl>
#include <QtQml/QQmlParserStatus>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace tamble::client {

/// Names the style sheets of an application, a default sheet and a user sheet, and has them loaded: once when the
/// component is complete, then at every change of a source or of a file. The style engine behind it is one per process.
class TAMBLE_CLIENT_CONTROL_EXPORT StyleEngineSetup : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_NAMED_ELEMENT(RStyleEngine)
    Q_PROPERTY(QUrl stylePath READ stylePath WRITE setStylePath NOTIFY stylePathChanged)
    /// File names in `stylePath`: `styleName` of the user sheet, `defaultStyleName` of the default sheet.
    Q_PROPERTY(QString styleName READ styleName WRITE setStyleName NOTIFY styleNameChanged)
    Q_PROPERTY(QString defaultStyleName READ defaultStyleName WRITE setDefaultStyleName NOTIFY defaultStyleNameChanged)
    Q_PROPERTY(QStringList fileExtensions READ fileExtensions WRITE setFileExtensions NOTIFY fileExtensionsChanged)
    /// Names of the files in `stylePath` that match `fileExtensions`, sorted.
    Q_PROPERTY(QStringList availableStyles READ availableStyles NOTIFY availableStylesChanged)
    Q_PROPERTY(QUrl styleSheetSource READ styleSheetSource WRITE setStyleSheetSource NOTIFY styleSheetSourceChanged)
    /// The default sheet, under the user sheet: a file, a resource ("qrc:/…") or relative to the QML file; empty for
    /// none.
    Q_PROPERTY(QUrl defaultStyleSheetSource READ defaultStyleSheetSource WRITE setDefaultStyleSheetSource NOTIFY
                   defaultStyleSheetSourceChanged)

public:
    explicit StyleEngineSetup(QObject *parent = nullptr);
    ~StyleEngineSetup() override;

    /// A directory of style files. The two names below are looked up in it; a name it does not hold changes nothing.
    QUrl stylePath() const { return m_directory.stylePath(); }
    void setStylePath(const QUrl &url);
    QString styleName() const { return m_styleName; }
    void setStyleName(const QString &name);
    QString defaultStyleName() const { return m_defaultStyleName; }
    void setDefaultStyleName(const QString &name);

    /// Name filters of style files, "*.css" by default, and the files that match.
    QStringList fileExtensions() const { return m_directory.fileExtensions(); }
    void setFileExtensions(const QStringList &filters) { m_directory.setFileExtensions(filters); }
    QStringList availableStyles() const { return m_directory.availableStyleSheetNames(); }

    /// The sheets themselves: files, resources ("qrc:/…") or relative to the QML file. Empty for none.
    ///
    /// Several setups share the one style engine: the last to name a sheet of a kind decides on that kind, and a setup
    /// that never named one leaves it to the others. What is read is what was written here.
    QUrl styleSheetSource() const { return m_styleSheetSource.value_or(QUrl()); }
    void setStyleSheetSource(const QUrl &url);
    QUrl defaultStyleSheetSource() const { return m_defaultStyleSheetSource.value_or(QUrl()); }
    void setDefaultStyleSheetSource(const QUrl &url);

    /// Changes both sources and loads once, so that nothing is shown with one new and one old sheet.
    Q_INVOKABLE void setStyleSheetSources(const QUrl &defaultSource, const QUrl &userSource);

    void classBegin() override {}
    void componentComplete() override;

public Q_SLOTS:
    /// Loads both sheets again.
    void onFileChanged(const QString &path);

Q_SIGNALS:
    void stylePathChanged();
    void styleNameChanged();
    void defaultStyleNameChanged();
    void fileExtensionsChanged();
    void availableStylesChanged();
    void styleSheetSourceChanged(const QUrl &url);
    void defaultStyleSheetSourceChanged(const QUrl &url);
    /// New sheets are in force and every style set has changed.
    void styleChanged();
    /// A problem of the style system: its kind and a text for the user.
    void exception(const QString &type, const QString &message);

private:
    using NamedSource = std::optional<QUrl>; // nothing for a kind that is left to others

    void update();
    void nameSheets(const NamedSource &defaultSource, const NamedSource &userSource);
    void load(bool forwardDefault, bool forwardUser);

    StylesDirWatcher m_directory{this};
    SheetFileWatcher m_files;
    QString m_styleName;
    QString m_defaultStyleName;
    NamedSource m_styleSheetSource;
    NamedSource m_defaultStyleSheetSource;
    bool m_complete = false;
};

} // namespace tamble::client
