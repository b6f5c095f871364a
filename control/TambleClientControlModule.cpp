#include "TambleClientControlModule.h"

#include "ControlImageProvider.h"
#include "InterfaceFont.h"
#include "TypeCatalogue.h"
#include "base/ToolInterfaces.h"
#include "pointer/RMouseEventSpy.h"

#include <QtGui/QPointingDevice>
#include <QtQml/QQmlContext>
#include <QtQml/QQmlEngine>
#include <QtQml/qqml.h>

namespace tamble::client {

namespace {

// Every pointing device counts, a mouse with its own number of points too.
int maximumTouchPoints()
{
    int maximum = 0;
    for (const QInputDevice *device : QInputDevice::devices()) {
        if (const auto *pointingDevice = qobject_cast<const QPointingDevice *>(device))
            maximum = qMax(maximum, pointingDevice->maximumPoints());
    }
    return maximum;
}

} // namespace

void TambleClientControlModule::registerTypes(const char *uri)
{
    // Qt is asked rather than a list of our own, since its registrations can be cleared and made again.
    if (qmlTypeId(uri, 1, 0, "RValueConverter") < 0)
        registerCatalogue(uri);
}

void TambleClientControlModule::initializeEngine(QQmlEngine *engine, const char *)
{
    RMouseEventSpy::instance()->install();
    engine->addImageProvider(QStringLiteral("tamble"), new ControlImageProvider(engine->baseUrl()));
    for (const char *path : {"qrc:/", "qrc:/qml/", "qrc:/asset/fonts/", "qrc:/asset/icons/", "qrc:/asset/style/"})
        engine->addImportPath(QString::fromLatin1(path));
    engine->rootContext()->setContextProperty(QStringLiteral("maximumTouchPoints"), maximumTouchPoints());
    registerInterfaceFont();
    installToolInterfaces();
}

} // namespace tamble::client
