#pragma once

#include "style/language/StyleSheetBuilder.h"
#include "style/language/StyleSheetGrammar.h"

#include <string_view>

/// What a syntax error says was expected, for every rule of the grammar that must match.
namespace tamble::client::grammar {

template <typename Rule>
extern const std::string_view expected; // a rule without a text does not link

template <>
inline constexpr std::string_view expected<comment_end> = "\"*/\" at the end of the comment";
template <>
inline constexpr std::string_view expected<closing_quote> = "the same quote at the end of the text";
template <>
inline constexpr std::string_view expected<argument> = "an argument after \",\"";
template <>
inline constexpr std::string_view expected<url_argument> = "an argument after \",\"";
template <>
inline constexpr std::string_view expected<close_bracket> = "\",\" or \")\" after the argument";
template <>
inline constexpr std::string_view expected<referenced_name> = "the name of a variable after \"@\"";
template <>
inline constexpr std::string_view expected<value> = "a value";
template <>
inline constexpr std::string_view expected<values> = "a value";
template <>
inline constexpr std::string_view expected<defined_name> = "the name of a variable after \"@\"";
template <>
inline constexpr std::string_view expected<equals> = "\"=\" after the name of the variable";
template <>
inline constexpr std::string_view expected<semicolon> = "\";\" after the definition";
template <>
inline constexpr std::string_view expected<source_word> = "\"src\"";
template <>
inline constexpr std::string_view expected<colon> = "\":\" after the name of the property";
template <>
inline constexpr std::string_view expected<url_start> = "\"url(\"";
template <>
inline constexpr std::string_view expected<font_url> = "the address of a font file";
template <>
inline constexpr std::string_view expected<font_face_end> = "\"}\" after the source of the font";
template <>
inline constexpr std::string_view expected<open_brace> = "\"{\"";
template <>
inline constexpr std::string_view expected<close_brace> = "a declaration or \"}\"";
template <>
inline constexpr std::string_view expected<class_word> = "a class word after \".\"";
template <>
inline constexpr std::string_view expected<state_word> = "a state word after \"::\"";
template <>
inline constexpr std::string_view expected<element> = "a type name or \".\" and a class word after \">\"";
template <>
inline constexpr std::string_view expected<selector> = "a selector after \",\"";
template <>
inline constexpr std::string_view expected<peg::eof> = "a rule, a variable definition or \"@font-face\"";

/// Has the parser raise ParseException, with the place and the text that was expected there.
template <typename Rule>
struct Control : peg::normal<Rule>
{
    template <typename Input>
    [[noreturn]] static void raise(const Input &input, StyleSheetBuilder &builder)
    {
        throw builder.syntaxError(input.current(), expected<Rule>);
    }
};

/// Where a name follows a number or a colour without a gap, this was meant to be longer: "14px", "#ff88zz".
template <>
struct Control<colon> : peg::normal<colon>
{
    template <typename Input>
    [[noreturn]] static void raise(const Input &input, StyleSheetBuilder &builder)
    {
        throw builder.missingColon(input.current(), expected<colon>);
    }
};

} // namespace tamble::client::grammar
