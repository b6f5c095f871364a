#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

/// What the command line asks for.
struct GalleryOptions
{
    QString page;            ///< name of the page to show; empty for the first
    QString screenshotDir;   ///< where the screenshots go; empty when the gallery runs in a window
    bool firstFrame = false; ///< one frame only, to measure the start
    bool help = false;       ///< only the help text is wanted
    QString scale;           ///< factor for the whole interface, 0.5 to 4; empty for the screen's own
    int zoom = 0;            ///< size of what is in the window in percent, 50 to 300; 0 for the theme's own
    QString audioFile;       ///< sound file to show; empty for the built-in signal
    QString error;           ///< why the command line cannot be followed; empty when it can
    QString helpText;

    /// Reads `arguments`, the program's name first. Needs no application object, since the scale must be in the
    /// environment before one exists.
    static GalleryOptions parse(const QStringList &arguments);
};
