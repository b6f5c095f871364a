#pragma once

#include <QtCore/QString>

namespace tamble::client {

/// What a badge has room for, three characters: of a greater number that it is more than 99, of a longer text the
/// beginning.
QString shortBadge(const QString &badge);

} // namespace tamble::client
