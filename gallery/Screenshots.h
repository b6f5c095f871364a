#pragma once

#include "PageList.h"

class GalleryAudio;
class QQuickWindow;

/// Writes `<directory>/<page>-<theme>.png` for `pages` in every theme and prints how many. Each picture shows the whole
/// page, or as much of it as 16384 pixels hold. The window has the properties `currentPage` (index into all pages) and
/// `wholePageHeight`, `ready` (whether the page is there), and the function `setTheme`. Every picture shows the same
/// moment of `audio`, which must be stepped. Returns an error text, empty on success.
QString writeScreenshots(QQuickWindow &window, GalleryAudio &audio, const PageList &allPages, const QStringList &pages,
                         const QString &directory);
