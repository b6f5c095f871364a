// The page of devices that the gallery begins with, as a client with the controls of Qt's Basic style alone shows it:
// the same bar, list and form, with the same texts, icons, records and sizes, and what users can do there. It is
// written as such a client would be, in a few files that are compiled ahead of time.
//
// It leaves out
// - the simulated network: fields edit the records, so that nothing waits, fails or is told beside a field. The records
//   have no channels;
// - setting up several devices at once: the list chooses one, its current row, also while rows are searched for;
// - themes, style sheets, zoom and an interface font of its own: colours and most sizes are those of Basic, the font is
//   the system's;
// - underlined letters in the captions of the form, and moving to fields by them;
// - a bar that scrolls sideways in a narrow window;
// - the other pages, and the forms of the sections that are closed at first, which the gallery loads when they open.
//
//     basic-client [--first-frame] [--bare CONTROLS TEXTS]   --bare: instead, buttons and labels with numbers alone

#include "FirstFrame.h"
#include "Installation.h"

#include <QtGui/QGuiApplication>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickWindow>

#include <cstdlib>
#include <memory>

namespace {

std::unique_ptr<QObject> createWindow(QQmlEngine &engine, const char *file, const QVariantMap &properties)
{
    QQmlComponent component(&engine, QUrl(QStringLiteral("qrc:/BasicClient/client/%1").arg(QLatin1String(file))));
    std::unique_ptr<QObject> window(component.createWithInitialProperties(properties));
    if (!window)
        qCritical("%s", qPrintable(component.errorString()));
    return window;
}

std::unique_ptr<QObject> createWindow(QQmlEngine &engine, const QStringList &arguments)
{
    const qsizetype bare = arguments.indexOf(QStringLiteral("--bare"));
    if (bare < 0) {
        auto *installation = new Installation(&engine);
        return createWindow(engine, "ClientWindow.qml",
                            {{QStringLiteral("installation"), QVariant::fromValue(installation)}});
    }
    return createWindow(engine, "BareWindow.qml",
                        {{QStringLiteral("controls"), arguments.value(bare + 1).toInt()},
                         {QStringLiteral("texts"), arguments.value(bare + 2).toInt()}});
}

} // namespace

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    QQmlEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/"));
    const std::unique_ptr<QObject> root = createWindow(engine, arguments);
    auto *window = qobject_cast<QQuickWindow *>(root.get());
    if (!window)
        return EXIT_FAILURE;
    if (!arguments.contains(QStringLiteral("--first-frame")))
        return QGuiApplication::exec();
    printFirstFrame(*window);
    return EXIT_SUCCESS;
}
