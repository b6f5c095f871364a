#pragma once

#include <QtCore/QDebug>
#include <QtCore/QUrl>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>

#include <memory>

/// The object that a text declares; nothing, and a warning, when the text has a fault.
inline std::unique_ptr<QObject> objectFrom(QQmlEngine &engine, const QByteArray &text, const QUrl &place = {})
{
    QQmlComponent component(&engine);
    component.setData(text, place);
    std::unique_ptr<QObject> object(component.create());
    if (!object)
        qWarning().noquote() << component.errorString();
    return object;
}
