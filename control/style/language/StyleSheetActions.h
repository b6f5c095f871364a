#pragma once

#include "style/language/StyleSheetBuilder.h"
#include "style/language/StyleSheetGrammar.h"

#include <string_view>

/// What the parser does on reading each rule of the grammar.
///
/// Only rules that stay read have an action: the parser never goes back behind one.
namespace tamble::client::grammar {

/// Hands the text that a rule has read to a function of the builder.
template <void (StyleSheetBuilder::*Function)(std::string_view)>
struct WithText
{
    template <typename Input>
    static void apply(const Input &input, StyleSheetBuilder &builder)
    {
        (builder.*Function)(std::string_view(input.begin(), input.size()));
    }
};

/// The same without the first and the last character.
template <void (StyleSheetBuilder::*Function)(std::string_view)>
struct WithTextBetweenQuotes
{
    template <typename Input>
    static void apply(const Input &input, StyleSheetBuilder &builder)
    {
        (builder.*Function)(std::string_view(input.begin() + 1, input.size() - 2));
    }
};

/// Calls a function of the builder.
template <void (StyleSheetBuilder::*Function)()>
struct Alone
{
    static void apply0(StyleSheetBuilder &builder) { (builder.*Function)(); }
};

// clang-format off

template<typename Rule> struct Action : peg::nothing<Rule> {};

template<> struct Action<defined_name> : WithText<&StyleSheetBuilder::beginDefinition> {};
template<> struct Action<definition> : Alone<&StyleSheetBuilder::endDefinition> {};
template<> struct Action<quoted_font> : WithTextBetweenQuotes<&StyleSheetBuilder::addFontFace> {};
template<> struct Action<bare_font> : WithText<&StyleSheetBuilder::addFontFace> {};

template<> struct Action<type_name> : WithText<&StyleSheetBuilder::addPiece> {};
template<> struct Action<class_piece> : WithText<&StyleSheetBuilder::addPiece> {};
template<> struct Action<state_piece> : WithText<&StyleSheetBuilder::addPiece> {};
template<> struct Action<element> : Alone<&StyleSheetBuilder::endElement> {};
template<> struct Action<child_mark> : Alone<&StyleSheetBuilder::joinAsChild> {};
template<> struct Action<selector> : Alone<&StyleSheetBuilder::endSelector> {};
template<> struct Action<property_name> : WithText<&StyleSheetBuilder::beginDeclaration> {};
template<> struct Action<rule> : Alone<&StyleSheetBuilder::endRule> {};

template<> struct Action<colour> : WithText<&StyleSheetBuilder::addText> {};
template<> struct Action<number> : WithText<&StyleSheetBuilder::addText> {};
template<> struct Action<quoted_value> : WithTextBetweenQuotes<&StyleSheetBuilder::addText> {};
template<> struct Action<word> : WithText<&StyleSheetBuilder::addText> {};
template<> struct Action<referenced_name> : WithText<&StyleSheetBuilder::addReference> {};
template<> struct Action<url_name> : WithText<&StyleSheetBuilder::beginCall> {};
template<> struct Action<call_name> : WithText<&StyleSheetBuilder::beginCall> {};
template<> struct Action<quoted_argument> : WithTextBetweenQuotes<&StyleSheetBuilder::addArgument> {};
template<> struct Action<bare_argument> : WithText<&StyleSheetBuilder::addArgument> {};
template<> struct Action<bare_url> : WithText<&StyleSheetBuilder::addArgument> {};

// clang-format on

} // namespace tamble::client::grammar
