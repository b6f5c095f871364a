#pragma once

#include "style/language/StyleValue.h"

#include <QtCore/QUrl>
#include <QtGui/QColor>

#include <boost/variant.hpp>

namespace tamble::client {

/// The result of a function that yields nothing.
struct Undefined
{
    bool operator==(const Undefined &) const = default;
};

using EvaluationResult = boost::variant<Undefined, QColor, QUrl>;

/// The result of a function call in a sheet.
///
///     rgb(red, green, blue)   rgba(red, green, blue, alpha)         components 0 to 255 or 0% to 100%, alpha 0 to 1
///     hsl(hue, s, l)          hsla(hue, s, l, alpha)                hue in degrees, s and l in percent
///     hsb(hue, s, b)          hsba(hue, s, b, alpha)                hue in degrees, s and b in percent
///     url(address)
///
/// What is out of range is clamped. An unknown function, a wrong number of arguments and an argument that is no number
/// raise ConvertException.
EvaluationResult evaluate(const Expression &call);

/// The result of a function call, which must be a colour; otherwise raises ConvertException.
QColor toColor(const Expression &call);

/// The result of a function call, which must be an address; otherwise raises ConvertException.
QUrl toUrl(const Expression &call);

} // namespace tamble::client
