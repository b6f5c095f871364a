#pragma once

#include <cstddef>
#include <string>

/// A sheet as the library's own look: about 50 bytes a rule, one declaration a rule, CR LF and trailing blanks.
///
/// `controls` types with 36 rules each, of which most carry a class or states. With `repetitions` the text is written
/// several times, so that it grows and its tree does not.
std::string generatedSheet(std::size_t controls, std::size_t repetitions = 1);
