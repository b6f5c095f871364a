#pragma once

#include <QtGui/QColor>

/// WCAG 2 relative luminance, 0 (black) to 1 (white). Alpha is ignored.
double relativeLuminance(const QColor &colour);

/// WCAG 2 contrast of two opaque colours, 1 (equal) to 21 (black and white), in either order.
double contrastRatio(const QColor &a, const QColor &b);

/// What is seen of `top`, by its alpha, in front of `below`, which is opaque.
QColor composed(const QColor &top, const QColor &below);

enum class ColourVision { Normal, Deuteranopia, Protanopia };

/// CIE 1976 difference (ΔE in L*a*b*, white D65) of two opaque colours as an eye of that vision sees them.
///
/// Dichromatic vision is simulated in linear sRGB with the matrices of Machado, Oliveira and Fernandes (2009) for full
/// severity. About 2 is just noticeable.
double colourDifference(const QColor &a, const QColor &b, ColourVision vision);
