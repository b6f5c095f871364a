#pragma once

namespace tamble::client {

/// The way of a zoom slider: each part of it multiplies the zoom by the same factor.
struct ZoomTravel
{
    double minimum = 0.2; ///< The zoom factors at the ends.
    double maximum = 4.0;

    /// Where on the way a zoom factor is, 0 to 1; 0 where there is no way.
    double placeOf(double zoom) const;
    /// The zoom factor at a place. With `detent` those close to 1 become 1.
    double zoomAt(double place, bool detent) const;
};

/// What a step of wheel, keyboard or button multiplies a zoom factor by.
constexpr double zoomKeyFactor = 1.25;

} // namespace tamble::client
