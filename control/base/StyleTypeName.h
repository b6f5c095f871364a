#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QString>

namespace tamble::client {

/// The name under which style sheets know a class: `className` up to the first "_QMLTYPE_", or else up to the first
/// "_QML_", which is where the QML engine appends a number of its own. Any other name stands as it is.
QString styleTypeName(QByteArrayView className);

} // namespace tamble::client
