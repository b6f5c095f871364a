#pragma once

namespace tamble::client {

/// Has Qt make what assistive tools see of the module's controls, as soon as a tool asks for one.
///
/// A SpokenControl is asked for what it tells. An item with an invokable function `requestValue(QVariant)` gets the
/// values that tools set there: Qt would write its property `value`, and the control would show what its device does
/// not have. Installing twice does no harm.
void installToolInterfaces();

} // namespace tamble::client
