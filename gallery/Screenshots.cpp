#include "Screenshots.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtGui/QImage>
#include <QtQuick/QQuickWindow>

namespace {

QString writeScreenshot(QQuickWindow &window, const QString &file)
{
    // Deferred deletions and polishes of the page that was just loaded come first.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    if (!window.grabWindow().save(file))
        return QStringLiteral("cannot write \"%1\"").arg(file);
    return {};
}

} // namespace

QString writeScreenshots(QQuickWindow &window, const PageList &allPages, const QStringList &pages,
                         const QString &directory)
{
    if (!QDir().mkpath(directory))
        return QStringLiteral("cannot create the directory \"%1\"").arg(directory);
    for (const QString &theme : {QStringLiteral("light"), QStringLiteral("dark")}) {
        QMetaObject::invokeMethod(&window, "showTheme", Q_ARG(QString, theme));
        for (const QString &page : pages) {
            window.setProperty("currentPage", int(allPages.indexOf(page)));
            const QString file = QStringLiteral("%1/%2-%3.png").arg(directory, page, theme);
            if (const QString error = writeScreenshot(window, file); !error.isEmpty())
                return error;
        }
    }
    return {};
}
