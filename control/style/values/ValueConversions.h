#pragma once

#include "style/language/StyleValue.h"

#include <QtCore/QString>
#include <QtCore/QUrl>
#include <QtGui/QColor>
#include <QtGui/QFont>

namespace tamble::client {

/// A value of a sheet as a typed value. What does not fit raises ConvertException.

/// A call of a colour function, or a text as QColor reads it: "#rgb", "#rrggbb", "#aarrggbb" (alpha first), a name of
/// the SVG list such as "white", or "transparent".
QColor colorFrom(const StyleValue &value);

/// Exactly "true" or "false".
bool booleanFrom(const StyleValue &value);

/// A text that is a number and nothing else, with "." as the decimal point; a percentage is none.
double numberFrom(const StyleValue &value);

/// Any text, read as a font shorthand; see fontFromText().
QFont fontFrom(const StyleValue &value);

/// Any text, which is UTF-8.
QString stringFrom(const StyleValue &value);

/// `url(…)`, or a text that is an address; the empty text is the empty address.
QUrl urlFrom(const StyleValue &value);

} // namespace tamble::client
