#pragma once

#include <QtCore/qglobal.h>

/// Marks what the module library exports; everything else keeps hidden visibility.
#if defined(TAMBLE_CLIENT_CONTROL_BUILD)
#define TAMBLE_CLIENT_CONTROL_EXPORT Q_DECL_EXPORT
#else
#define TAMBLE_CLIENT_CONTROL_EXPORT Q_DECL_IMPORT
#endif
