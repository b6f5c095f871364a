#pragma once

namespace tamble::client {

/// Registers the module's meta-types, native types and QML components under `uri`, version 1.0, in the order of the
/// catalogue. Call it once per URI.
void registerCatalogue(const char *uri);

} // namespace tamble::client
