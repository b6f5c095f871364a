#include "CascadeCase.h"

#include <array>
#include <cstddef>

namespace {

constexpr std::array types{"A", "B", "C", "D"};
constexpr std::array classes{"x", "y", "z"};
constexpr std::array states{"s", "t"};
constexpr std::array names{"k", "l", "m"};
constexpr std::array gaps{" ", " ", "\n", "\n", "\n", "\r\n", "\n   ", " /* A { k: no } */ ", " // .x { k: no }\n"};

class Choices
{
public:
    explicit Choices(std::span<const std::uint8_t> bytes)
        : m_bytes(bytes)
    {}

    /// 0 to count - 1; 0 behind the end of the bytes.
    std::size_t below(std::size_t count)
    {
        if (m_bytes.empty())
            return 0;
        const std::size_t choice = m_bytes.front() % count;
        m_bytes = m_bytes.subspan(1);
        return choice;
    }

    template <std::size_t Size>
    std::string oneOf(const std::array<const char *, Size> &words)
    {
        return words.at(below(Size));
    }

private:
    std::span<const std::uint8_t> m_bytes;
};

class SheetWriter
{
public:
    SheetWriter(Choices &choices, char valuePrefix)
        : m_choices(choices)
        , m_valuePrefix(valuePrefix)
    {}

    SheetCase write()
    {
        const std::size_t ruleCount = m_choices.below(14);
        for (std::size_t i = 0; i < ruleCount; ++i)
            writeRule();
        return std::move(m_sheet);
    }

private:
    void writeRule()
    {
        Rule &rule = m_sheet.rules.emplace_back();
        const std::size_t selectorCount = 1 + m_choices.below(4) / 3 + m_choices.below(8) / 7;
        for (std::size_t i = 0; i < selectorCount; ++i) {
            if (i > 0)
                m_sheet.text += ',';
            rule.selectors.push_back(selector());
            writeSelector(rule.selectors.back());
        }
        m_sheet.text += '{';
        const std::size_t declarationCount = 1 + m_choices.below(3);
        for (std::size_t i = 0; i < declarationCount; ++i)
            writeDeclaration(rule.declarations.emplace_back());
        m_sheet.text += '}' + m_choices.oneOf(gaps);
    }

    /// A new one or, so that rules meet, one of an earlier rule.
    Selector selector()
    {
        if (!m_selectors.empty() && m_choices.below(3) == 0)
            return m_selectors[m_choices.below(m_selectors.size())];
        Selector selector;
        const std::size_t elementCount = 1 + m_choices.below(3);
        for (std::size_t i = 0; i < elementCount; ++i) {
            if (i > 0)
                selector.isChild.push_back(m_choices.below(3) == 0);
            selector.elements.push_back(element());
        }
        m_selectors.push_back(selector);
        return selector;
    }

    void writeSelector(const Selector &selector)
    {
        for (std::size_t i = 0; i < selector.elements.size(); ++i) {
            if (i > 0)
                m_sheet.text += selector.isChild[i - 1] ? " > " : m_choices.oneOf(gaps);
            for (const std::string &piece : selector.elements[i])
                m_sheet.text += piece;
        }
    }

    SelectorElement element()
    {
        SelectorElement pieces;
        pieces.push_back(m_choices.below(4) == 0 ? '.' + m_choices.oneOf(classes) : m_choices.oneOf(types));
        for (std::size_t more = m_choices.below(6) / 2; more > 0; --more)
            pieces.push_back(m_choices.below(2) == 0 ? '.' + m_choices.oneOf(classes) : "::" + m_choices.oneOf(states));
        return pieces;
    }

    void writeDeclaration(Declaration &declaration)
    {
        m_sheet.text += m_choices.oneOf(gaps);
        declaration.name = m_choices.oneOf(names);
        declaration.value = m_valuePrefix + std::to_string(++m_declarationCount);
        declaration.position = endOfText();
        m_sheet.text += declaration.name + ':' + declaration.value + ';';
    }

    tamble::client::SourcePosition endOfText() const
    {
        tamble::client::SourcePosition position{1, 1};
        for (const char character : m_sheet.text) {
            ++position.column;
            if (character == '\n')
                position = {position.line + 1, 1};
        }
        return position;
    }

    Choices &m_choices;
    char m_valuePrefix;
    int m_declarationCount = 0;
    std::vector<Selector> m_selectors;
    SheetCase m_sheet;
};

template <std::size_t Size>
std::vector<std::string> words(Choices &choices, const std::array<const char *, Size> &from)
{
    std::vector<std::string> result;
    for (std::size_t count = choices.below(4); count > 0; --count)
        result.push_back(choices.oneOf(from));
    return result;
}

std::vector<PathElement> path(Choices &choices)
{
    std::vector<PathElement> result(1 + choices.below(5));
    for (PathElement &element : result) {
        element.typeName = choices.below(6) == 0 ? "Unknown" : choices.oneOf(types);
        element.classes = words(choices, classes);
        element.states = words(choices, states);
    }
    return result;
}

} // namespace

CascadeCase cascadeCase(std::span<const std::uint8_t> bytes)
{
    Choices choices(bytes);
    CascadeCase result;
    result.defaultSheet = SheetWriter(choices, 'd').write();
    result.userSheet = SheetWriter(choices, 'u').write();
    result.paths.resize(1 + choices.below(6));
    for (std::vector<PathElement> &one : result.paths)
        one = path(choices);
    return result;
}
