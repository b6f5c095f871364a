#pragma once

#include <QtCore/QTemporaryDir>
#include <QtCore/QUrl>

/// Two style sheets with the same rules and other colours: about 20 KB of rules for other types, and those for the
/// items of this folder.
class BenchSheets
{
public:
    BenchSheets();

    /// Puts the sheet that is not in force in force.
    void swap();

    /// Reads the sheet in force again.
    void reload();

private:
    QTemporaryDir m_directory;
    QUrl m_current;
    QUrl m_other;
};
