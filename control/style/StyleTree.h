#pragma once

#include "style/resolution/StylePath.h"

#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtCore/QString>

class QObject;

namespace tamble::client {

class StyleSet;

/// How the objects on screen form the tree that style paths walk.

/// Where style paths go on from `object`: the visual parent of an item, nothing above a window, the parent of any other
/// object.
QObject *visualParent(const QObject *object);

/// The style set attached to `object`, or null; makes none.
StyleSet *attachedStyleSet(const QObject *object);

/// What style sheets call the type of `object`: `typeName` unless that is empty, otherwise its QML or C++ type.
QString styleTypeName(const QObject *object, const QString &typeName);

/// The path of `object`, styled or not; null for no object.
StylePathRef pathOf(QObject *object);

/// Whether a path begins in the scene of a window.
bool isInScene(const StylePath *path);

/// Whether a path begins in a scene or in a popup, rather than at an item that is not in one yet.
bool isRooted(const StylePath *path);

/// The style sets below `object` that have no other one between.
void collectNearestStyleSets(const QObject *object, QList<QPointer<StyleSet>> &found);

} // namespace tamble::client
