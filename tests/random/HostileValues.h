#pragma once

#include "Random.h"

#include <QtCore/QMetaProperty>
#include <QtCore/QString>

/// A script expression for a value that a page could write by mistake: half of the time one of the property's kind.
/// Expressions may name `objects[0]` to `objects[objectCount - 1]`.
QString hostileValue(Random &random, const QMetaProperty &property, std::size_t objectCount);

/// The same for a width or a height.
QString hostileSize(Random &random);
