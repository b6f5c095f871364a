#pragma once

#include <QtCore/QString>

namespace tamble::client {

/// `text` as it is shown: "&" before a letter or digit marks the key that, with Alt, presses the control, and is left
/// out; "&&" is one "&"; any other "&" stands for itself, as in "Drums & Bass".
QString withoutMnemonic(const QString &text);

} // namespace tamble::client
