#include "style/values/ValueConversions.h"

#include "style/values/ConvertException.h"
#include "style/values/FontValue.h"
#include "style/values/StrictNumber.h"
#include "style/values/ValueFunctions.h"

namespace tamble::client {

namespace {

const std::string &textOf(const StyleValue &value, const char *type)
{
    if (const auto *text = boost::get<std::string>(&value))
        return *text;
    throw ConvertException(std::string("Not a ") + type + " '" + boost::get<Expression>(value).name + "()'");
}

} // namespace

QColor colorFrom(const StyleValue &value)
{
    if (const auto *call = boost::get<Expression>(&value))
        return toColor(*call);
    const auto &text = boost::get<std::string>(value);
    const QColor color(QString::fromStdString(text));
    if (!color.isValid())
        throw ConvertException("Not a color expression '" + text + "'");
    return color;
}

bool booleanFrom(const StyleValue &value)
{
    const std::string &text = textOf(value, "boolean");
    if (text != "true" && text != "false")
        throw ConvertException("Not a boolean '" + text + "'");
    return text == "true";
}

double numberFrom(const StyleValue &value)
{
    const std::string &text = textOf(value, "number");
    if (const auto number = strictDouble(text))
        return *number;
    throw ConvertException("Not a number '" + text + "'");
}

QFont fontFrom(const StyleValue &value)
{
    return fontFromText(textOf(value, "font"));
}

QString stringFrom(const StyleValue &value)
{
    return QString::fromStdString(textOf(value, "string"));
}

QUrl urlFrom(const StyleValue &value)
{
    if (const auto *call = boost::get<Expression>(&value))
        return toUrl(*call);
    const auto &text = boost::get<std::string>(value);
    const QUrl address(QString::fromStdString(text), QUrl::TolerantMode);
    if (!text.empty() && !address.isValid())
        throw ConvertException("Not an url expression '" + text + "'");
    return address;
}

} // namespace tamble::client
