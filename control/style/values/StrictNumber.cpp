#include "style/values/StrictNumber.h"

#include <charconv>
#include <cmath>

namespace tamble::client {

namespace {

template <typename Number>
std::optional<Number> wholeNumber(std::string_view text)
{
    // std::from_chars knows no locale, but no leading plus either.
    if (text.starts_with('+') && !text.starts_with("+-"))
        text.remove_prefix(1);
    Number number{};
    const char *const end = text.data() + text.size();
    const auto [stop, fault] = std::from_chars(text.data(), end, number);
    if (fault != std::errc() || stop != end)
        return std::nullopt;
    return number;
}

template <typename Number>
std::optional<Number> finiteNumber(std::string_view text)
{
    const std::optional<Number> number = wholeNumber<Number>(text);
    return number && std::isfinite(*number) ? number : std::nullopt;
}

} // namespace

std::optional<int> strictInteger(std::string_view text)
{
    return wholeNumber<int>(text);
}

std::optional<float> strictFloat(std::string_view text)
{
    return finiteNumber<float>(text);
}

std::optional<double> strictDouble(std::string_view text)
{
    return finiteNumber<double>(text);
}

} // namespace tamble::client
