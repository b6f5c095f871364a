#include "base/ControlLog.h"

#include <QtQml/QQmlEngine>
#include <QtQml/QQmlError>
#include <QtQml/QQmlInfo>

namespace tamble::client {

Q_LOGGING_CATEGORY(controlLog, "tamble.control")

// The engine knows the place and would print it without a category, so its own printing rests meanwhile.
void warnOfPage(const QObject *object, const QString &text)
{
    QQmlEngine *engine = qmlEngine(object);
    if (!engine) {
        qCWarning(controlLog).noquote() << text;
        return;
    }
    const auto print = [](const QList<QQmlError> &errors) {
        for (const QQmlError &error : errors)
            qCWarning(controlLog).noquote() << error.toString();
    };
    const auto connection = QObject::connect(engine, &QQmlEngine::warnings, engine, print);
    const bool printed = engine->outputWarningsToStandardError();
    engine->setOutputWarningsToStandardError(false);
    qmlWarning(object) << text;
    engine->setOutputWarningsToStandardError(printed);
    QObject::disconnect(connection);
}

} // namespace tamble::client
