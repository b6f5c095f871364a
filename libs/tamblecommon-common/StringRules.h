#pragma once

#include "StringPattern.h"
#include "StringVerdict.h"
#include "TambleCommonCommonExport.h"

#include <QStringView>

namespace tamble::common {

/// What a text may consist of. The values are stored by clients and never change.
enum class StringRule {
    Any = 0,          ///< no control characters
    Ascii = 1,        ///< printable ASCII, 0x20 to 0x7E
    Alphanumeric = 2, ///< ASCII letters and digits
    Name = 3,         ///< as Any; not empty, no blank at either end
    FileName = 4,     ///< as Name, and a file name on all operating systems
    DnsName = 5,      ///< labels of 1 to 63 from a-z, 0-9 and inner "-", joined by "."; at most 253 characters
    CapDnsName = 6,   ///< as DnsName, capital letters allowed
    Hex = 7,          ///< an even number of hexadecimal digits
    Password = 8,     ///< printable ASCII without blank, at least 8 characters
    Pattern = 9,      ///< all of the text matches StringLimits::pattern
};

/// Limits that apply on top of a rule. Characters are Unicode code points; limits of 0 or less are not set.
struct StringLimits
{
    qsizetype minimumLength = 0; ///< characters; raises the rule's own minimum, never lowers it
    qsizetype maximumLength = 0; ///< characters; lowers the rule's own maximum, never raises it
    qsizetype maximumBytes = 0;  ///< bytes of the text in UTF-8
    StringPattern pattern = {};  ///< read by StringRule::Pattern only

    bool operator==(const StringLimits &other) const = default;
};

/// Judges `text` by `rule` and `limits`.
///
/// The fault reported is the first of: a forbidden character, a text that is too long, one that is too short, one that
/// is only wrong as a whole. The first two make the text invalid. The last two leave it intermediate, except for a text
/// that does not match a pattern; see StringPattern::match. Halves of surrogate pairs are forbidden by every rule but
/// Pattern. A rule outside the enumeration counts as Any, a minimum above the maximum accepts nothing.
TAMBLE_COMMON_COMMON_EXPORT StringVerdict validate(QStringView text, StringRule rule, const StringLimits &limits = {});

/// Judges `text` by StringRule::CapDnsName, without further limits.
TAMBLE_COMMON_COMMON_EXPORT StringVerdict validateCapDnsName(QStringView text);

} // namespace tamble::common
