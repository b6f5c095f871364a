#include "style/values/ValueFunctions.h"

#include "style/values/ConvertException.h"
#include "style/values/StrictNumber.h"

#include <QtCore/QString>

#include <algorithm>
#include <cmath>
#include <optional>
#include <string_view>
#include <unordered_map>

namespace tamble::client {

namespace {

using Arguments = std::vector<std::string>;

/// What a function says when it cannot be evaluated. Some texts name another function or count than their own: sheets'
/// authors and log filters know them like that.
struct Messages
{
    const char *wrongCount;
    const char *badValue;
};

constexpr Messages rgbMessages = {"rgb() expression expects 3 arguments", "rgb() expression with bad value"};
constexpr Messages rgbaMessages = {"rgba() expression expects 4 arguments", "rgba() expression with bad value"};
constexpr Messages hslMessages = {"hsl() expression expects 3 arguments", "hsl() expression with bad values"};
constexpr Messages hslaMessages = {"hsla() expression expects 4 arguments", "hsla() expression with bad values"};
constexpr Messages hsbMessages = {"hsl() expression expects 3 arguments", "hsl() expression with bad values"};
constexpr Messages hsbaMessages = {"hsla() expression expects 3 arguments", "hsla() expression with bad values"};
constexpr const char *urlWrongCount = "url() expression expects 1 argument";

void expectCount(const Arguments &arguments, std::size_t count, const char *message)
{
    if (arguments.size() != count)
        throw ConvertException(message);
}

template <typename Number>
Number valueOr(std::optional<Number> number, const char *badValue)
{
    if (!number)
        throw ConvertException(badValue);
    return *number;
}

/// The text before a final "%", if there is one.
std::optional<std::string_view> beforePercent(std::string_view text)
{
    return text.ends_with('%') ? std::optional(text.substr(0, text.size() - 1)) : std::nullopt;
}

/// 0 to 255
int colorComponent(std::string_view text, const char *badValue)
{
    if (const auto percent = beforePercent(text)) {
        const float share = valueOr(strictFloat(*percent), badValue);
        return int(std::clamp(std::round(share * 255.0f / 100.0f), 0.0f, 255.0f));
    }
    return std::clamp(valueOr(strictInteger(text), badValue), 0, 255);
}

/// 0 to 255. The factor is 256 on purpose: one half is 128, and 1.0 becomes 255 by the clamping.
int byteAlpha(std::string_view text, const char *badValue)
{
    const double alpha = double(valueOr(strictFloat(text), badValue)) * 256.0;
    return int(std::clamp(std::round(alpha), 0.0, 255.0));
}

/// A share of the full circle, 0 to 1
float hueShare(std::string_view text, const char *badValue)
{
    return float(std::clamp(valueOr(strictInteger(text), badValue) / 360.0, 0.0, 1.0));
}

/// 0 to 1; the "%" is required
float percentage(std::string_view text, const char *badValue)
{
    const std::string_view number = valueOr(beforePercent(text), badValue);
    return float(std::clamp(valueOr(strictInteger(number), badValue) / 100.0, 0.0, 1.0));
}

/// 0 to 1
float fractionAlpha(std::string_view text, const char *badValue)
{
    return float(std::clamp(valueOr(strictDouble(text), badValue), 0.0, 1.0));
}

EvaluationResult rgb(const Arguments &arguments, const Messages &messages, std::size_t count)
{
    expectCount(arguments, count, messages.wrongCount);
    const int red = colorComponent(arguments[0], messages.badValue);
    const int green = colorComponent(arguments[1], messages.badValue);
    const int blue = colorComponent(arguments[2], messages.badValue);
    return QColor(red, green, blue, count == 4 ? byteAlpha(arguments[3], messages.badValue) : 255);
}

/// For QColor::setHslF and QColor::setHsvF
EvaluationResult hueBased(void (QColor::*set)(float, float, float, float), const Arguments &arguments,
                          const Messages &messages, std::size_t count)
{
    expectCount(arguments, count, messages.wrongCount);
    const float hue = hueShare(arguments[0], messages.badValue);
    const float saturation = percentage(arguments[1], messages.badValue);
    const float lightness = percentage(arguments[2], messages.badValue);
    const float alpha = count == 4 ? fractionAlpha(arguments[3], messages.badValue) : 1.0f;
    QColor color;
    (color.*set)(hue, saturation, lightness, alpha);
    return color;
}

EvaluationResult url(const Arguments &arguments)
{
    expectCount(arguments, 1, urlWrongCount);
    return QUrl(QString::fromStdString(arguments[0]), QUrl::TolerantMode);
}

using Function = EvaluationResult (*)(const Arguments &arguments);

const std::unordered_map<std::string, Function> &functions()
{
    static const std::unordered_map<std::string, Function> table = {
        {"rgb", [](const Arguments &arguments) { return rgb(arguments, rgbMessages, 3); }},
        {"rgba", [](const Arguments &arguments) { return rgb(arguments, rgbaMessages, 4); }},
        {"hsl", [](const Arguments &arguments) { return hueBased(&QColor::setHslF, arguments, hslMessages, 3); }},
        {"hsla", [](const Arguments &arguments) { return hueBased(&QColor::setHslF, arguments, hslaMessages, 4); }},
        {"hsb", [](const Arguments &arguments) { return hueBased(&QColor::setHsvF, arguments, hsbMessages, 3); }},
        {"hsba", [](const Arguments &arguments) { return hueBased(&QColor::setHsvF, arguments, hsbaMessages, 4); }},
        {"url", [](const Arguments &arguments) { return url(arguments); }},
    };
    return table;
}

} // namespace

EvaluationResult evaluate(const Expression &call)
{
    const auto function = functions().find(call.name);
    if (function == functions().end())
        throw ConvertException("Unsupported expression '" + call.name + "'");
    return function->second(call.arguments);
}

QColor toColor(const Expression &call)
{
    const EvaluationResult result = evaluate(call);
    if (const auto *color = boost::get<QColor>(&result))
        return *color;
    throw ConvertException("Not a color expression '" + call.name + "'");
}

QUrl toUrl(const Expression &call)
{
    const EvaluationResult result = evaluate(call);
    if (const auto *address = boost::get<QUrl>(&result))
        return *address;
    throw ConvertException("Not an url expression '" + call.name + "'");
}

} // namespace tamble::client
