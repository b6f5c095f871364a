#pragma once

// Qt's header uses a keyword that this project has switched off.
#pragma push_macro("emit")
#undef emit
#define emit
#include <QtQuick/private/qquickpositioners_p.h>
#pragma pop_macro("emit")
