#include "style/loading/StyleLocations.h"

#include <QtQml/QQmlContext>
#include <QtQml/QQmlEngine>

namespace tamble::client {

QUrl styleBaseUrl(const QObject *object)
{
    QQmlContext *context = qmlContext(object);
    if (!context && object->parent())
        context = qmlContext(object->parent());
    while (context && context->parentContext() && context->baseUrl().toString().startsWith(QStringLiteral("qrc:/qml/")))
        context = context->parentContext();
    return context ? context->baseUrl() : QUrl();
}

QString localStylePath(const QUrl &url, const QObject *object)
{
    return url.isEmpty() ? QString() : styleBaseUrl(object).resolved(url).toLocalFile();
}

} // namespace tamble::client
