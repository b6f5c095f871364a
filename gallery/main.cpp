#include "FirstFrame.h"
#include "GalleryAudio.h"
#include "GalleryInstallation.h"
#include "GalleryOptions.h"
#include "PageList.h"
#include "Screenshots.h"

#include <QtCore/QTextStream>
#include <QtGui/QFont>
#include <QtGui/QGuiApplication>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickWindow>

#include <memory>
#include <utility>

namespace {

constexpr int usageError = 2;

int fail(const QString &message, int exitCode)
{
    QTextStream(stderr) << "tamble-gallery: " << message << Qt::endl;
    return exitCode;
}

/// The sample installation as it is met: at work, with an amplifier that somebody has unplugged.
void begin(GalleryInstallation &installation)
{
    NetworkBehaviour behaviour = installation.behaviour();
    behaviour.readingsPerMinute = 12.0;
    installation.setBehaviour(behaviour);
    constexpr int unplugged = 22;
    constexpr int tenMinutes = 600'000;
    installation.dropOut(unplugged, tenMinutes);
    installation.advance(behaviour.latency);
}

/// Icons take a small part of the textures that Qt would make by the size of the window: 8 MB for a common one.
void limitTextureAtlas()
{
    for (const auto &[name, pixels] : {std::pair("QSG_ATLAS_WIDTH", "1024"), std::pair("QSG_ATLAS_HEIGHT", "512")}) {
        if (!qEnvironmentVariableIsSet(name))
            qputenv(name, pixels);
    }
}

/// The interface's own font: Qt lays out a text area once before it has one, for which another would be loaded.
void setFont()
{
    QFont font(QStringLiteral("Brack Office Sans"));
    font.setPixelSize(12);
    QGuiApplication::setFont(font);
}

GalleryOptions optionsFrom(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return GalleryOptions::parse(arguments);
}

} // namespace

int main(int argc, char **argv)
{
    const GalleryOptions options = optionsFrom(argc, argv);
    if (!options.error.isEmpty())
        return fail(options.error, usageError);
    if (options.help) {
        QTextStream(stdout) << options.helpText;
        return 0;
    }
    if (!options.scale.isEmpty())
        qputenv("QT_SCALE_FACTOR", options.scale.toLatin1());

    limitTextureAtlas();

    const PageList pages(QStringLiteral(":/Gallery"));
    const int firstPage = options.page.isEmpty() ? 0 : int(pages.indexOf(options.page));
    if (firstPage < 0) {
        return fail(QStringLiteral("there is no page \"%1\"; the pages are: %2")
                        .arg(options.page, pages.names().join(QStringLiteral(", "))),
                    usageError);
    }

    const QGuiApplication application(argc, argv);
    setFont();

    GalleryAudio audio(nullptr);
    audio.setStepped(!options.screenshotDir.isEmpty());
    GalleryInstallation installation(1, nullptr);
    installation.setStepped(!options.screenshotDir.isEmpty());
    begin(installation);
    if (!options.audioFile.isEmpty() && !audio.open(options.audioFile))
        return fail(audio.errorText(), EXIT_FAILURE);

    // Not an application engine, which would look for variants by platform and language of each file and picture.
    QQmlEngine engine;
    // The module in the build tree, and as installed.
    engine.addImportPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../qml"));
    engine.addImportPath(QCoreApplication::applicationDirPath() + QStringLiteral("/" TAMBLE_INSTALLED_QML_PATH));
    engine.addImportPath(QStringLiteral("qrc:/"));
    QQmlComponent component(&engine, QUrl(QStringLiteral("qrc:/Gallery/GalleryWindow.qml")));
    if (!component.isReady())
        return fail(component.errorString(), EXIT_FAILURE);
    const std::unique_ptr<QObject> root(
        component.createWithInitialProperties({{QStringLiteral("festivalPages"), pages.festival()},
                                               {QStringLiteral("cataloguePages"), pages.catalogue()},
                                               {QStringLiteral("currentPage"), firstPage},
                                               {QStringLiteral("startZoom"), options.zoom},
                                               {QStringLiteral("still"), !options.screenshotDir.isEmpty()}}));
    auto *window = qobject_cast<QQuickWindow *>(root.get());
    if (!window)
        return fail(QStringLiteral("the window cannot be made: %1").arg(component.errorString()), EXIT_FAILURE);

    if (options.firstFrame) {
        printFirstFrame(*window);
        return EXIT_SUCCESS;
    }
    if (options.screenshotDir.isEmpty())
        return QGuiApplication::exec();

    const QStringList wanted = options.page.isEmpty() ? pages.names() : QStringList(options.page);
    const QString error = writeScreenshots(*window, audio, pages, wanted, options.screenshotDir);
    return error.isEmpty() ? EXIT_SUCCESS : fail(error, EXIT_FAILURE);
}
