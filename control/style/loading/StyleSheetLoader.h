#pragma once

#include "style/language/StyleSheet.h"

#include <QtCore/QString>
#include <QtCore/QUrl>

#include <functional>
#include <memory>

namespace tamble::client {

/// Reads style sheets from files and resources, and reports what goes wrong.
class StyleSheetLoader
{
public:
    /// Takes the kind of a problem and a text for the user.
    using Report = std::function<void(const QString &type, const QString &message)>;

    /// Relative URLs are resolved against `baseUrl`.
    StyleSheetLoader(QUrl baseUrl, Report report);

    /// The sheet behind `url`: a file, a resource ("qrc:/…") or a relative URL. An empty URL, one of another form and a
    /// file that does not exist give an empty sheet; for a missing file the call waits a second first, since an editor
    /// may be replacing it. Nothing when the sheet cannot be read, is too long or does not parse.
    std::shared_ptr<const StyleSheet> load(const QUrl &url) const;

private:
    std::shared_ptr<const StyleSheet> read(const QString &path) const;
    void reportFailure(const QString &message) const;

    QUrl m_baseUrl;
    Report m_report;
};

} // namespace tamble::client
