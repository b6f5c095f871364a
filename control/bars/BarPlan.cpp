#include "bars/BarPlan.h"

#include <algorithm>

namespace tamble::client {

BarPlan planBar(const BarWidths &widths, double room, double leastNavigation)
{
    const double left = std::max(0.0, room - widths.leading - widths.trailing);
    const bool compact = widths.navigation > left;
    const double wanted = compact ? widths.compactNavigation : widths.navigation;
    const double navigation = left < std::min(wanted, leastNavigation) ? wanted : std::min(wanted, left);
    const double whole = std::max(room, widths.leading + navigation + widths.trailing);
    return {compact, navigation, whole, whole <= room || room - widths.trailing >= leastNavigation};
}

} // namespace tamble::client
