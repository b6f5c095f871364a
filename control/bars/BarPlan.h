#pragma once

namespace tamble::client {

/// How wide the parts of a bar would be, in pixels.
struct BarWidths
{
    double leading = 0.0;
    double navigation = 0.0;        ///< With texts.
    double compactNavigation = 0.0; ///< Without.
    double trailing = 0.0;
};

/// How the room of a bar is shared out.
struct BarPlan
{
    bool compact = false;      ///< Whether navigation shows icons without texts.
    double navigation = 0.0;   ///< Room for navigation in pixels; what does not fit is flicked.
    double whole = 0.0;        ///< Width of all parts; where it is more than the bar's, they are flicked together.
    bool trailingStays = true; ///< Whether the trailing part stands still meanwhile.

    friend bool operator==(const BarPlan &, const BarPlan &) = default;
};

/// Shares out `room` pixels. Texts of the navigation go first, then navigation is flicked; where less than
/// `leastNavigation` pixels are left for that, the leading part is flicked with it, and in the end the trailing part,
/// which tells of the system's state, so that all of the bar stays within reach.
BarPlan planBar(const BarWidths &widths, double room, double leastNavigation);

} // namespace tamble::client
