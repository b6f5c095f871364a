#include "support/ColourMetrics.h"

#include <QtCore/QtGlobal>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

using Triple = std::array<double, 3>;
using Matrix = std::array<Triple, 3>;

constexpr Matrix unchanged = {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
constexpr Matrix withoutGreenCones = {
    {{0.367322, 0.860646, -0.227968}, {0.280085, 0.672501, 0.047413}, {-0.011820, 0.042940, 0.968881}}};
constexpr Matrix withoutRedCones = {
    {{0.152286, 1.052583, -0.204868}, {0.114503, 0.786281, 0.099216}, {-0.003882, -0.048116, 1.051998}}};
constexpr Matrix linearRgbToXyz = {
    {{0.4124564, 0.3575761, 0.1804375}, {0.2126729, 0.7151522, 0.0721750}, {0.0193339, 0.1191920, 0.9503041}}};
constexpr Triple WhiteD65 = {0.95047, 1.0, 1.08883};

Triple product(const Matrix &matrix, const Triple &vector)
{
    Triple result{};
    for (std::size_t row = 0; row < 3; ++row)
        for (std::size_t column = 0; column < 3; ++column)
            result[row] += matrix[row][column] * vector[column];
    return result;
}

double linear(int component)
{
    const double value = component / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

Triple linearRgb(const QColor &colour)
{
    return {linear(colour.red()), linear(colour.green()), linear(colour.blue())};
}

double labCurve(double value)
{
    constexpr double knee = 6.0 / 29.0;
    return value > knee * knee * knee ? std::cbrt(value) : value / (3 * knee * knee) + 4.0 / 29.0;
}

Triple lab(const Triple &rgb)
{
    Triple xyz = product(linearRgbToXyz, rgb);
    for (std::size_t i = 0; i < 3; ++i)
        xyz[i] = labCurve(xyz[i] / WhiteD65[i]);
    return {116 * xyz[1] - 16, 500 * (xyz[0] - xyz[1]), 200 * (xyz[1] - xyz[2])};
}

Triple seen(const QColor &colour, ColourVision vision)
{
    const Matrix &matrix = vision == ColourVision::Deuteranopia ? withoutGreenCones
                           : vision == ColourVision::Protanopia ? withoutRedCones
                                                                : unchanged;
    Triple rgb = product(matrix, linearRgb(colour));
    for (double &component : rgb)
        component = std::clamp(component, 0.0, 1.0);
    return lab(rgb);
}

} // namespace

double relativeLuminance(const QColor &colour)
{
    const Triple rgb = linearRgb(colour);
    return 0.2126 * rgb[0] + 0.7152 * rgb[1] + 0.0722 * rgb[2];
}

double contrastRatio(const QColor &a, const QColor &b)
{
    const auto [darker, lighter] = std::minmax({relativeLuminance(a), relativeLuminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor composed(const QColor &top, const QColor &below)
{
    const double alpha = top.alpha() / 255.0;
    const auto mixed = [alpha](int above, int under) { return qRound(above * alpha + under * (1 - alpha)); };
    return QColor(mixed(top.red(), below.red()), mixed(top.green(), below.green()), mixed(top.blue(), below.blue()));
}

double colourDifference(const QColor &a, const QColor &b, ColourVision vision)
{
    const Triple first = seen(a, vision);
    const Triple second = seen(b, vision);
    return std::hypot(first[0] - second[0], first[1] - second[1], first[2] - second[2]);
}
