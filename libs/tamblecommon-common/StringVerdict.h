#pragma once

#include "TambleCommonCommonExport.h"

#include <QDebug>
#include <QObject>

namespace tamble::common {
Q_NAMESPACE_EXPORT(TAMBLE_COMMON_COMMON_EXPORT)

/// How far a text is from meeting its rule. The values are those of QValidator::State.
enum class StringState {
    Invalid = 0,      ///< no further typing, at any position, can make the text right
    Intermediate = 1, ///< not right yet
    Acceptable = 2,   ///< right
};
Q_ENUM_NS(StringState)

/// Why a text is not acceptable.
enum class StringFault {
    None,
    ForbiddenCharacter, ///< the rule allows `character`, at `position`, nowhere
    TooLong,            ///< more than `limit` characters
    TooManyBytes,       ///< more than `limit` bytes of UTF-8
    TooShort,           ///< fewer than `limit` characters
    OuterBlank,         ///< a blank at `position`, which is the text's first or last
    TrailingDot,        ///< a dot at `position`, which is the text's last
    ReservedName,       ///< a name that operating systems keep for a device
    EmptyLabel,         ///< nothing between two dots, or before or after a dot, at `position`
    LabelTooLong,       ///< the label starting at `position` has more than `limit` characters
    LabelHyphen,        ///< a hyphen at `position`, which is its label's first or last
    OddLength,          ///< half a byte is missing
    PatternIncomplete,  ///< so far the text matches the pattern
    PatternMismatch,    ///< whatever is appended, the text does not match the pattern
};
Q_ENUM_NS(StringFault)

/// What was found about a text, as data from which a message can be made.
struct StringVerdict
{
    StringState state = StringState::Acceptable;
    StringFault fault = StringFault::None;
    qsizetype position = -1; ///< UTF-16 index of the fault in the text, -1 when the fault concerns all of it
    qsizetype limit = 0;     ///< the limit that was missed; 0 for faults without one
    char32_t character = 0;  ///< the forbidden code point; 0 for all other faults

    bool isAcceptable() const { return state == StringState::Acceptable; }

    bool operator==(const StringVerdict &other) const = default;
};

TAMBLE_COMMON_COMMON_EXPORT QDebug operator<<(QDebug debug, const StringVerdict &verdict);

} // namespace tamble::common
