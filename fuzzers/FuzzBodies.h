#pragma once

#include <cstdint>
#include <span>

/// What is checked with any bytes whatever. A fault ends in an exception or worse.

/// The bytes are a style sheet: it parses or is refused, and what was parsed is the same again after printing.
void fuzzParser(std::span<const std::uint8_t> bytes);

/// The bytes choose two style sheets and some style paths: what the resolver finds is what the rules of the cascade say
/// when they are followed one by one.
void fuzzCascade(std::span<const std::uint8_t> bytes);
