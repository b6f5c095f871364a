#pragma once

#include <QtCore/QObject>
#include <QtGui/QColor>

namespace tamble::client {

/// Colour that a style object names; not valid when there is none, which draws nothing.
QColor styleColor(const QObject *style, const char *name);

/// Line width that a style object names, in pixels; 1 when there is none.
double styleWidth(const QObject *style, const char *name);

/// Whether anything drawn in the colour shows.
inline bool showsColor(const QColor &color)
{
    return color.isValid() && color.alpha() > 0;
}

/// Connects every change of a style object's properties, and its end, to `slot` of an item ("refreshColors()").
void followStyle(QObject *style, QObject *item, const char *slot);

} // namespace tamble::client
