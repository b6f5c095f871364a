#include "dialogs/DialogColors.h"

#include "style/StyleSetProps.h"

#include <QtQuick/QQuickItem>

#include <algorithm>
#include <utility>

namespace tamble::client {

namespace {

constexpr std::array<SheetColors::Source, 2> frameSources = {{
    {&StyleSetProps::background},
    {&StyleSetProps::border, "border"},
}};
// Not every sheet has a colour of its own for the title.
constexpr std::array<SheetColors::Source, 3> headerSources = {{
    {&StyleSetProps::background},
    {&StyleSetProps::foreground, "foreground", 2},
    {&StyleSetProps::foreground, nullptr, -1, "RText"},
}};

} // namespace

DialogColors::DialogColors(SheetColors::Changed changed)
    : m_changed(std::move(changed))
{}

QColor DialogColors::color(Name name) const
{
    if (m_given[name].isValid())
        return m_given[name];
    const bool isHeader = name >= HeaderBackground;
    const auto &colors = isHeader ? m_header : m_frame;
    return colors ? colors->color(isHeader ? name - HeaderBackground : name) : QColor(Qt::transparent);
}

void DialogColors::setColor(Name name, const QColor &color)
{
    if (std::exchange(m_given[name], color) != color)
        m_changed(name, name + 1);
}

void DialogColors::follow(QQuickItem &frame, QQuickItem &header)
{
    const auto follow = [this](QQuickItem &item, std::span<const SheetColors::Source> sources, std::size_t first) {
        const auto tell = [this, first](std::size_t begin, std::size_t end) {
            // What stands in for the last one is not among them.
            constexpr std::size_t last = nameCount - 1;
            m_changed(std::min(first + begin, last), std::min(first + end, last + 1));
        };
        return std::make_unique<SheetColors>(item, sources, tell);
    };
    m_frame = follow(frame, frameSources, Background);
    m_header = follow(header, headerSources, HeaderBackground);
    m_changed(0, nameCount);
}

void DialogColors::letGo()
{
    m_frame.reset();
    m_header.reset();
}

} // namespace tamble::client
