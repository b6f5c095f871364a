#pragma once

#include "style/language/PropertySpec.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

/// One element of a selector: a type name, ".class" and "::state" words, in written order.
using SelectorElement = std::vector<std::string>;

struct Selector
{
    std::vector<SelectorElement> elements; // outermost first
    std::vector<bool> isChild;             // for each element but the first: direct child of the one before
};

struct Declaration
{
    std::string name;
    std::string value; // one of a kind in its case
    tamble::client::SourcePosition position;
};

struct Rule
{
    std::vector<Selector> selectors;
    std::vector<Declaration> declarations;
};

/// A style sheet as text and as what the text says.
struct SheetCase
{
    std::string text;
    std::vector<Rule> rules;
};

struct PathElement
{
    std::string typeName;
    std::vector<std::string> classes;
    std::vector<std::string> states;
};

/// Two sheets and paths to resolve with them.
struct CascadeCase
{
    SheetCase defaultSheet;
    SheetCase userSheet;
    std::vector<std::vector<PathElement>> paths; // outermost element first
};

/// Words, joins, blanks and sizes are chosen by the bytes, few enough of each that rules meet.
CascadeCase cascadeCase(std::span<const std::uint8_t> bytes);
