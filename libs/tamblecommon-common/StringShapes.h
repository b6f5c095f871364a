#pragma once

#include "StringVerdict.h"

#include <QStringView>

/// What can be wrong with a text whose characters are all allowed and whose length is within bounds.
///
/// Each of these faults can be mended by typing more, so none makes a text invalid. A text without fault is acceptable.
namespace tamble::common {

/// A name has no blank at either end. `text` is not empty.
StringVerdict nameShape(QStringView text);

/// A file name is a name that does not end with a dot and that no operating system keeps for a device: neither alone
/// nor with an extension, in any case. `text` is not empty.
StringVerdict fileNameShape(QStringView text);

/// A DNS name consists of labels of 1 to 63 characters that neither start nor end with a hyphen.
StringVerdict dnsNameShape(QStringView text);

/// Hexadecimal digits come in pairs.
StringVerdict hexShape(QStringView text);

} // namespace tamble::common
