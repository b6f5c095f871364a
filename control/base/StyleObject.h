#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>
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

/// Puts `style` in the place of `stored`; false when it is there already. Every change of its properties, and its end,
/// is connected to `slot` of the item ("refreshColors()").
bool exchangeStyle(QPointer<QObject> &stored, QObject *style, QObject *item, const char *slot);

} // namespace tamble::client
