#include "bars/BadgeText.h"

#include <algorithm>

namespace tamble::client {

QString shortBadge(const QString &badge)
{
    constexpr qsizetype room = 3;
    if (badge.size() <= room)
        return badge;
    const bool isNumber = std::all_of(badge.begin(), badge.end(), [](QChar c) { return c.isDigit(); });
    return isNumber ? QStringLiteral("99+") : badge.left(room - 1) + QChar(u'…');
}

} // namespace tamble::client
