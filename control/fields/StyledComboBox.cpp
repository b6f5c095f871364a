#include "fields/StyledComboBox.h"

#include "style/StyleSetProps.h"

namespace tamble::client {

namespace {

constexpr std::array comboColorSignals = {
    &StyledComboBox::ssBackgroundChanged,
    &StyledComboBox::ssColorChanged,
    &StyledComboBox::ssLineColorChanged,
    &StyledComboBox::ssBorderColorChanged,
    &StyledComboBox::ssBorderColorFocusChanged,
    &StyledComboBox::ssIndicatorBackgroundChanged,
    &StyledComboBox::ssIndicatorBackgroundHoverChanged,
    &StyledComboBox::ssItemColorCurrentChanged,
    &StyledComboBox::ssItemColorHoverChanged,
    &StyledComboBox::ssForegroundItemChanged,
    &StyledComboBox::ssForegroundItemHoverChanged,
    &StyledComboBox::ssForegroundItemSelectedChanged,
    &StyledComboBox::ssBackgroundItemChanged,
    &StyledComboBox::ssBackgroundItemHoverChanged,
    &StyledComboBox::ssBackgroundItemSelectedChanged,
    &StyledComboBox::ssPopupColorChanged,
    &StyledComboBox::ssPopupBorderColorChanged,
};

} // namespace

const std::array<SheetColors::Source, StyledComboBox::nameCount> StyledComboBox::colorSources = {{
    {&StyleSetProps::background},
    {&StyleSetProps::foreground},
    {&StyleSetProps::line},
    {&StyleSetProps::border, "border"},
    {&StyleSetProps::borderColorFocus, "border-color-focus"},
    {&StyleSetProps::indicatorBackground},
    {&StyleSetProps::indicatorBackgroundHover},
    {&StyleSetProps::itemColorCurrent},
    {&StyleSetProps::itemColorHover},
    {&StyleSetProps::foregroundItem},
    {&StyleSetProps::foregroundItemHover},
    {&StyleSetProps::foregroundItemSelected},
    {&StyleSetProps::backgroundItem},
    {&StyleSetProps::backgroundItemHover},
    {&StyleSetProps::backgroundItemSelected},
    {&StyleSetProps::popupColor},
    {&StyleSetProps::popupBorderColor},
}};

StyledComboBox::StyledComboBox(QQuickItem *parent)
    : QQuickComboBox(parent)
    , m_colors(*this, colorSources, [this](std::size_t begin, std::size_t end) {
        for (std::size_t i = begin; i < end; ++i)
            Q_EMIT(this->*comboColorSignals[i])();
    })
{}

} // namespace tamble::client
