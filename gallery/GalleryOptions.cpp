#include "GalleryOptions.h"

#include <QtCore/QCommandLineParser>

GalleryOptions GalleryOptions::parse(const QStringList &arguments)
{
    const QCommandLineOption page(QStringLiteral("page"), QStringLiteral("Show this page first, or only this one."),
                                  QStringLiteral("NAME"));
    const QCommandLineOption screenshot(QStringLiteral("screenshot"),
                                        QStringLiteral("Write DIR/<page>-<theme>.png of every page and exit."),
                                        QStringLiteral("DIR"));
    const QCommandLineOption scale(QStringLiteral("scale"), QStringLiteral("Enlarge the interface, 0.5 to 4."),
                                   QStringLiteral("FACTOR"));
    const QCommandLineOption zoom(QStringLiteral("zoom"),
                                  QStringLiteral("Enlarge what is in the window, 50 to 300 percent."),
                                  QStringLiteral("PERCENT"));
    const QCommandLineOption audio(QStringLiteral("audio"),
                                   QStringLiteral("Show the levels of this sound file, not of the built-in signal."),
                                   QStringLiteral("FILE"));
    const QCommandLineOption firstFrame(QStringLiteral("first-frame"),
                                        QStringLiteral("Show one frame, print how many controls it has, and exit."));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Show this text."));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Shows the controls of TambleClient.Control."));
    parser.addOptions({page, screenshot, scale, zoom, audio, firstFrame, help});

    GalleryOptions options;
    if (!parser.parse(arguments))
        options.error = parser.errorText();
    else if (!parser.positionalArguments().isEmpty())
        options.error = QStringLiteral("unexpected argument \"%1\"").arg(parser.positionalArguments().constFirst());
    options.page = parser.value(page);
    options.screenshotDir = parser.value(screenshot);
    options.scale = parser.value(scale);
    options.zoom = parser.value(zoom).toInt();
    options.audioFile = parser.value(audio);
    options.firstFrame = parser.isSet(firstFrame);
    options.help = parser.isSet(help);
    options.helpText = parser.helpText();

    if (parser.isSet(screenshot) && options.screenshotDir.isEmpty())
        options.error = QStringLiteral("the screenshots need a directory");
    if (parser.isSet(audio) && options.audioFile.isEmpty())
        options.error = QStringLiteral("the sound file has no name");
    if (parser.isSet(zoom) && (options.zoom < 50 || options.zoom > 300))
        options.error = QStringLiteral("the zoom \"%1\" is not a number from 50 to 300").arg(parser.value(zoom));
    bool isNumber = false;
    const double factor = options.scale.toDouble(&isNumber);
    if (parser.isSet(scale) && (!isNumber || !(factor >= 0.5 && factor <= 4.0)))
        options.error = QStringLiteral("the scale \"%1\" is not a number from 0.5 to 4").arg(options.scale);
    return options;
}
