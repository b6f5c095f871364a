// A host that imports the module like any other and links nothing of it.

#include <QtGui/QGuiApplication>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>

#include <memory>

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    QQmlEngine engine;
    engine.addImportPath(QStringLiteral(IMPORT_PATH));
    QQmlComponent component(&engine, QUrl(QStringLiteral("qrc:/Importing/Main.qml")));
    const std::unique_ptr<QObject> page(component.create());
    const bool works = page && page->findChild<QObject *>(QStringLiteral("button"));
    if (!works)
        qWarning("%s", qPrintable(component.errorString()));
    return works ? EXIT_SUCCESS : EXIT_FAILURE;
}
