#pragma once

#include <QtCore/QString>

namespace tamble::client {

/// `text` as it is shown: "&" before a letter or digit marks the key that, with Alt, presses the control, and is left
/// out; "&&" is one "&"; any other "&" stands for itself, as in "Drums & Bass".
QString withoutMnemonic(const QString &text);

/// Position of the "&" that marks the key of `text`, which is the first one before a letter or digit; -1 without a key.
qsizetype mnemonicPosition(const QString &text);

} // namespace tamble::client
