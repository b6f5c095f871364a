#pragma once

#include <QtCore/QString>
#include <QtCore/QUrl>

class QObject;

namespace tamble::client {

/// What relative style URLs of `object` are relative to: the QML file of the application that uses it, whatever
/// components of this module stand between.
QUrl styleBaseUrl(const QObject *object);

/// `url` as a local directory or file; empty when it is neither local nor relative to something local.
QString localStylePath(const QUrl &url, const QObject *object);

} // namespace tamble::client
