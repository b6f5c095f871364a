#pragma once

namespace tamble::client {

/// Makes the embedded font family stand in for the interface family "Brack Office Sans", so that screens look alike on
/// every machine. A machine that has the interface family itself keeps using it.
///
/// Needs the font database, hence an application object: without a QGuiApplication it does nothing, and a later call
/// makes up for it. Further calls do nothing.
void registerInterfaceFont();

} // namespace tamble::client
