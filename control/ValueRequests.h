#pragma once

namespace tamble::client {

/// Lets assistive tools edit values as users do.
///
/// Qt writes the property `value` when a tool sets a value, and then the control would show what its device does not
/// have. Items with an invokable function `requestValue(QVariant)` get the wish there instead. Further calls do
/// nothing.
void installValueRequests();

} // namespace tamble::client
