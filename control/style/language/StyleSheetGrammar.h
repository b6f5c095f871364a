#pragma once

#include <tao/pegtl.hpp>

/// The style-sheet language, one rule a line.
///
/// A rule that stands for a token also takes the blanks and comments behind it. No rule refers back to itself and every
/// choice is made by the next token, so that parsing takes linear time and a fixed depth of calls whatever the text.
/// What `must` asks for has an entry in the table of messages; what has an action does something in the table of
/// actions.
namespace tamble::client::grammar {

namespace peg = tao::pegtl;

// clang-format off

// Between tokens. In an address "//" is text, so that only a block comment can stand beside one.
struct blank : peg::one<' ', '\t', '\r', '\n'> {};
struct comment_begin : peg::string<'/', '*'> {};
struct comment_end : peg::string<'*', '/'> {};
struct block_comment : peg::seq<comment_begin, peg::until<comment_end>> {};
struct unclosed_comment : peg::seq<peg::at<comment_begin>, peg::raise<comment_end>> {};
struct line_comment : peg::seq<peg::two<'/'>, peg::star<peg::not_one<'\r', '\n'>>> {};
struct gap : peg::star<peg::sor<peg::plus<blank>, line_comment, block_comment, unclosed_comment>> {};
struct url_gap : peg::star<peg::sor<peg::plus<blank>, block_comment, unclosed_comment>> {};

// Tokens
struct name_rest : peg::ranges<'a', 'z', 'A', 'Z', '0', '9', '_', '_', '-'> {};
struct name : peg::seq<peg::ranges<'a', 'z', 'A', 'Z', '_'>, peg::star<name_rest>> {};
struct at_sign : peg::seq<peg::one<'@'>, gap> {};
struct equals : peg::seq<peg::one<'='>, gap> {};
struct colon : peg::seq<peg::one<':'>, gap> {};
struct semicolon : peg::seq<peg::one<';'>, gap> {};
struct comma : peg::seq<peg::one<','>, gap> {};
struct open_brace : peg::seq<peg::one<'{'>, gap> {};
struct close_brace : peg::seq<peg::one<'}'>, gap> {};
struct close_bracket : peg::seq<peg::one<')'>, gap> {};

// Quoted text, up to the same quote: "…" or '…'
template<char Quote> struct quoted_text : peg::seq<peg::one<Quote>, peg::until<peg::one<Quote>>> {};
struct closing_quote : peg::one<'"', '\''> {};
struct unclosed_quote : peg::seq<peg::at<closing_quote>, peg::raise<closing_quote>> {};
struct quoted : peg::sor<quoted_text<'"'>, quoted_text<'\''>, unclosed_quote> {};
struct quoted_value : quoted {};
struct quoted_argument : quoted {};
struct quoted_font : quoted {};

// Arguments: quoted text, or bare text such as 50%, true or qrc:/a/b.png; this stays in one line, keeps its inner blanks,
// and ends where a comment stands in place of a word
struct bare_stop : peg::one<'"', '\'', '(', ')', ',', '{', '}', '\x7f'> {};
struct bare_character : peg::seq<peg::not_at<bare_stop>, peg::not_range<'\0', ' '>> {};
struct bare_blanks : peg::plus<peg::blank> {};
struct bare_word : peg::seq<peg::not_at<peg::sor<peg::two<'/'>, comment_begin>>, peg::plus<bare_character>> {};
struct bare_text : peg::list<bare_word, bare_blanks> {};
struct url_word : peg::seq<peg::not_at<comment_begin>, peg::plus<bare_character>> {};
struct url_text : peg::list<url_word, bare_blanks> {};
struct bare_argument : bare_text {};
struct bare_url : url_text {};
struct bare_font : url_text {};
struct argument : peg::seq<peg::sor<quoted_argument, bare_argument>, gap> {};
struct arguments : peg::list_must<argument, comma> {};
struct url_argument : peg::seq<peg::sor<quoted_argument, bare_url>, url_gap> {};
struct url_comma : peg::seq<peg::one<','>, url_gap> {};
struct url_arguments : peg::list_must<url_argument, url_comma> {};

// Function calls: rgba(0, 86, 145, 0.5) or url(qrc:/a/b.png)
struct open_bracket : peg::seq<peg::one<'('>, gap> {};
struct open_url_bracket : peg::seq<peg::one<'('>, url_gap> {};
struct before_bracket : peg::seq<gap, peg::at<peg::one<'('>>> {};
struct url_keyword : peg::string<'u', 'r', 'l'> {};
struct url_name : peg::seq<url_keyword, peg::at<before_bracket>> {};
struct call_name : peg::seq<name, peg::at<before_bracket>> {};
struct url_call : peg::seq<url_name, gap, open_url_bracket, peg::opt<url_arguments>, peg::must<close_bracket>> {};
struct call : peg::seq<call_name, gap, open_bracket, peg::opt<arguments>, peg::must<close_bracket>> {};

// Values
struct referenced_name : name {};
struct reference : peg::seq<at_sign, peg::must<referenced_name>, gap> {};
struct colour : peg::seq<peg::one<'#'>, peg::plus<peg::xdigit>> {};
struct digits : peg::plus<peg::digit> {};
struct number : peg::seq<peg::opt<peg::one<'-'>>, digits, peg::opt<peg::one<'.'>, digits>, peg::opt<peg::one<'%'>>> {};
struct word : name {};
struct literal : peg::seq<peg::sor<colour, number, quoted_value, word>, gap> {};
struct value : peg::sor<url_call, call, reference, literal> {};
struct values : peg::list_must<value, comma> {};

// Definitions: @name = value, value;
struct defined_name : name {};
struct definition : peg::seq<at_sign, peg::must<defined_name>, gap, peg::must<equals, values, semicolon>> {};

// Font faces: @font-face { src: url(…); }
struct at_font_face : peg::string<'@', 'f', 'o', 'n', 't', '-', 'f', 'a', 'c', 'e'> {};
struct font_face_word : peg::seq<at_font_face, peg::not_at<name_rest>, gap> {};
struct source_word : peg::seq<peg::string<'s', 'r', 'c'>, peg::not_at<name_rest>, gap> {};
struct url_start : peg::seq<url_keyword, gap, open_url_bracket> {};
struct font_url : peg::seq<peg::sor<quoted_font, bare_font>, url_gap> {};
struct font_source : peg::must<source_word, colon, url_start, font_url, close_bracket> {};
struct font_face_end : close_brace {};
struct font_block : peg::seq<peg::must<open_brace>, font_source, peg::opt<semicolon>, peg::must<font_face_end>> {};
struct font_face : peg::seq<font_face_word, font_block> {};

// Rules: Type.class::state > Type Type, .class { name: value, value; name: value }
struct type_name : name {};
struct class_word : name {};
struct state_word : name {};
struct class_piece : peg::seq<peg::one<'.'>, peg::must<class_word>> {};
struct state_piece : peg::seq<peg::two<':'>, peg::must<state_word>> {};
struct pieces : peg::seq<peg::sor<type_name, class_piece>, peg::star<peg::sor<class_piece, state_piece>>> {};
struct element : peg::seq<pieces, gap> {};
struct child_mark : peg::seq<peg::one<'>'>, gap> {};
struct child : peg::seq<child_mark, peg::must<element>> {};
struct selector : peg::seq<element, peg::star<peg::sor<child, element>>> {};
struct selectors : peg::list_must<selector, comma> {};
struct property_name : name {};
struct declaration : peg::seq<property_name, gap, peg::must<colon, values>, peg::opt<semicolon>> {};
struct block : peg::seq<peg::must<open_brace>, peg::star<declaration>, peg::must<close_brace>> {};
struct rule : peg::seq<selectors, block> {};

struct statement : peg::sor<rule, font_face, definition> {};
struct sheet : peg::seq<gap, peg::star<statement>, peg::must<peg::eof>> {};

// clang-format on

} // namespace tamble::client::grammar
