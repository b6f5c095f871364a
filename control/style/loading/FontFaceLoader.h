#pragma once

#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QUrl>

#include <functional>

namespace tamble::client {

/// Registers the font files that style sheets name with the application's font database, each once per process.
class FontFaceLoader
{
public:
    /// Takes a text for the user about a font that cannot be had.
    using Report = std::function<void(const QString &message)>;

    /// Loads the font behind `url`: a file, a resource, or relative to the sheet at `sheetUrl`. A font that was loaded
    /// before is not loaded again; one that failed is tried again.
    void load(const QUrl &url, const QUrl &sheetUrl, const Report &report);

private:
    QHash<QString, int> m_loaded; // font ids of the database by file path
};

} // namespace tamble::client
