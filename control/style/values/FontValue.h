#pragma once

#include <QtGui/QFont>

#include <string>

namespace tamble::client {

/// The font that a shorthand such as "Brack Office Sans bold 14px" stands for.
///
/// In any order: a style (italic, upright, oblique), a capitalization (mixedcase, alluppercase, alllowercase,
/// smallcaps, capitalize), a weight (bold, demibold, black, regular), a hinting preference (defaulthinting, nohinting,
/// verticalhinting, fullhinting), a size in px or in pt; the other words are the family. Of several words of one group
/// the first counts, the others belong to the family; a size in px counts more than one in pt. What no word sets stays
/// at Qt's default. Words are taken apart at blanks and compared exactly. Every text is a font, so nothing is raised.
QFont fontFromText(const std::string &text);

} // namespace tamble::client
