#pragma once

#include "style/StylePathPool.h"

#include <QtCore/QString>

/// The path written as "RPanel/RButton.red big::hovered pressed": class words behind the dot, state words behind the
/// colons, as a style set holds them.
inline tamble::client::StylePathRef pathFrom(tamble::client::StylePathPool &pool, const QString &text)
{
    tamble::client::StylePathRef path;
    for (const QString &element : text.split(u'/')) {
        const QString state = element.section(QStringLiteral("::"), 1);
        const QString typeAndName = element.section(QStringLiteral("::"), 0, 0);
        path = pool.child(path, typeAndName.section(u'.', 0, 0), typeAndName.section(u'.', 1), state);
    }
    return path;
}
