#pragma once

#include "style/language/StyleSheet.h"
#include "style/resolution/StylePath.h"

#include <QtCore/QString>

namespace tamble::client {

/// Which rules match `path`, for people: a line with the path, then each matching rule with its specificity before it,
/// the strongest rule first. Empty when the sheet has no rules.
QString styleInfoText(const StyleSheet &sheet, const StylePath &path);

} // namespace tamble::client
