#include "PlainValue.h"

#include <QLocale>
#include <QMetaType>

#include <cmath>

namespace tamble::client {

namespace {

template <typename... Ts>
struct Overloaded : Ts...
{
    using Ts::operator()...;
};
template <typename... Ts>
Overloaded(Ts...) -> Overloaded<Ts...>;

PlainValue numberOrNothing(double number)
{
    return std::isnan(number) ? PlainValue() : PlainValue(number);
}

PlainValue textOrNothing(const QString &text)
{
    return text.isEmpty() ? PlainValue() : PlainValue(text);
}

// 0.1f means one tenth, although the nearest float is 0.100000001490116.
double decimalReading(float number)
{
    return std::isfinite(number) ? QByteArray::number(static_cast<double>(number), 'g', 7).toDouble()
                                 : static_cast<double>(number);
}

QString numberKey(double number)
{
    constexpr double largestExactWhole = 9007199254740992.0;
    if (number == std::trunc(number) && std::abs(number) <= largestExactWhole)
        return QString::number(static_cast<qint64>(number));
    return QString::number(number, 'g', QLocale::FloatingPointShortest);
}

} // namespace

PlainValue plainValue(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::UnknownType:
    case QMetaType::Nullptr:
        return {};
    case QMetaType::Bool:
        return value.toBool();
    case QMetaType::Float:
        return numberOrNothing(decimalReading(value.toFloat()));
    case QMetaType::Double:
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::UChar:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return numberOrNothing(value.toDouble());
    case QMetaType::QString:
        return value.toString();
    case QMetaType::QByteArray:
        return QString::fromUtf8(value.toByteArray());
    default:
        break;
    }

    // A QML engine registers how its arrays convert, so this library need not know them. Its objects convert to a list
    // as well, an empty one.
    if (value.canConvert<QVariantList>()) {
        const QVariantList list = value.toList();
        return list.isEmpty() ? PlainValue() : PlainValue(list);
    }
    return textOrNothing(value.toString());
}

std::optional<QString> keyText(const PlainValue &value)
{
    using Key = std::optional<QString>;
    return std::visit(Overloaded{
                          [](std::monostate) { return Key(); },
                          [](bool on) { return Key(on ? QStringLiteral("true") : QStringLiteral("false")); },
                          [](double number) { return Key(numberKey(number)); },
                          [](const QString &text) { return Key(text); },
                          [](const QVariantList &) { return Key(); },
                      },
                      value);
}

QVariant keyValue(const QString &key)
{
    if (key == QLatin1String("true"))
        return true;
    if (key == QLatin1String("false"))
        return false;
    bool isNumber = false;
    const double number = key.toDouble(&isNumber);
    return isNumber && !std::isnan(number) ? QVariant(number) : QVariant(key);
}

bool isSameValue(const QVariant &left, const QVariant &right)
{
    if (left.metaType() != right.metaType())
        return false;
    if (left.typeId() == QMetaType::Double && std::isnan(left.toDouble()))
        return std::isnan(right.toDouble());
    return left == right;
}

} // namespace tamble::client
