#pragma once

#include <QString>
#include <QVariant>
#include <QVariantList>

#include <optional>
#include <variant>

namespace tamble::client {

/// What a value from C++ or QML amounts to for display: nothing, a switch, a number, a text or a list.
///
/// A number is never NaN, a list never empty. Nothing stands for values that are undefined, null, NaN, an empty list or
/// of a type without a text.
using PlainValue = std::variant<std::monostate, bool, double, QString, QVariantList>;

/// Sorts `value` into one of the kinds, whatever type carries it.
PlainValue plainValue(const QVariant &value);

/// The text by which a map names a value: "true", "0", "-3.5", the text itself. None for nothing and for lists.
///
/// Numbers are written with as many digits as tell them apart, whole ones without fraction or exponent.
std::optional<QString> keyText(const PlainValue &value);

/// The value that keyText() would write as `key`; a text when it is neither a number nor a switch.
QVariant keyValue(const QString &key);

/// Equality for setters: unlike QVariant's own, it tells true from 1, and NaN equals NaN.
bool isSameValue(const QVariant &left, const QVariant &right);

} // namespace tamble::client
