#include "Screenshots.h"

#include "GalleryAudio.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QEventLoop>
#include <QtCore/QTextStream>
#include <QtCore/QTimer>
#include <QtCore/QtMath>
#include <QtGui/QImage>
#include <QtQuick/QQuickWindow>

namespace {

constexpr int frameTimeout = 5000; // ms; a frame of the longest page takes less than one second
/// In pixels. Renderers draw no more at once: a page that is taller at this zoom is shown as far as it fits.
constexpr int tallestPicture = 16384;
/// Just after a beat three seconds into the signal: the meters are up and the averages have settled.
constexpr int blocksBeforePicture = 62;

// Deferred deletions and polishes of the page that was just loaded come before its picture.
void settle()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

// The window system takes its time to change a window's size; what is grabbed before is empty.
void waitForFrame(QQuickWindow &window)
{
    QEventLoop loop;
    QObject::connect(&window, &QQuickWindow::frameSwapped, &loop, &QEventLoop::quit);
    QTimer::singleShot(frameTimeout, &loop, &QEventLoop::quit);
    window.update();
    loop.exec();
}

QString writeScreenshot(QQuickWindow &window, int shortest, const QString &file)
{
    settle();
    while (!window.property("ready").toBool())
        waitForFrame(window);
    const int height = qBound(shortest, qCeil(window.property("wholePageHeight").toReal()),
                              qMax(shortest, int(tallestPicture / window.effectiveDevicePixelRatio())));
    if (window.height() != height) {
        window.setHeight(height);
        waitForFrame(window);
    }
    settle();
    if (!window.grabWindow().save(file))
        return QStringLiteral("cannot write \"%1\"").arg(file);
    return {};
}

} // namespace

QString writeScreenshots(QQuickWindow &window, GalleryAudio &audio, const PageList &allPages, const QStringList &pages,
                         const QString &directory)
{
    if (!QDir().mkpath(directory))
        return QStringLiteral("cannot create the directory \"%1\"").arg(directory);
    const int shortest = window.height();
    const QStringList themes{QStringLiteral("light"), QStringLiteral("dark"), QStringLiteral("contrast-light"),
                             QStringLiteral("contrast-dark")};
    for (const QString &theme : themes) {
        QMetaObject::invokeMethod(&window, "setTheme", Q_ARG(QString, theme));
        for (const QString &page : pages) {
            window.setProperty("currentPage", int(allPages.indexOf(page)));
            audio.rewind();
            audio.advance(blocksBeforePicture);
            const QString file = QStringLiteral("%1/%2-%3.png").arg(directory, page, theme);
            if (const QString error = writeScreenshot(window, shortest, file); !error.isEmpty())
                return error;
        }
    }
    QTextStream(stdout) << QStringLiteral("%1 screenshots: %2 pages in %3 themes\n")
                               .arg(pages.size() * themes.size())
                               .arg(pages.size())
                               .arg(themes.size());
    return {};
}
