#pragma once

#include "PageList.h"

class QQuickWindow;

/// Writes `<directory>/<page>-<theme>.png` for `pages` in both themes, from a window that has the property
/// `currentPage` (index into all pages) and the function `showTheme`. Returns an error text, empty on success.
QString writeScreenshots(QQuickWindow &window, const PageList &allPages, const QStringList &pages,
                         const QString &directory);
