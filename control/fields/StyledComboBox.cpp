#include "fields/StyledComboBox.h"

#include "style/StyleSet.h"
#include "style/StyleSetProps.h"

#include <QtQml/qqml.h>

#include <utility>

namespace tamble::client {

StyledComboBox::StyledComboBox(QQuickItem *parent)
    : QQuickComboBox(parent)
{}

StyledComboBox::~StyledComboBox()
{
    if (m_styleSet)
        m_styleSet->setFollower(nullptr);
}

struct StyledComboBox::Source
{
    QColor (StyleSetProps::*read)();
    void (StyledComboBox::*changed)();
};

// A signal for each colour: with a common one, a page that binds one to another would have a binding loop.
const StyledComboBox::Source &StyledComboBox::source(int name)
{
    static constexpr std::array<Source, nameCount> sources = {{
        {&StyleSetProps::background, &StyledComboBox::ssBackgroundChanged},
        {&StyleSetProps::foreground, &StyledComboBox::ssColorChanged},
        {&StyleSetProps::line, &StyledComboBox::ssLineColorChanged},
        {&StyleSetProps::border, &StyledComboBox::ssBorderColorChanged},
        {&StyleSetProps::borderColorFocus, &StyledComboBox::ssBorderColorFocusChanged},
        {&StyleSetProps::indicatorBackground, &StyledComboBox::ssIndicatorBackgroundChanged},
        {&StyleSetProps::indicatorBackgroundHover, &StyledComboBox::ssIndicatorBackgroundHoverChanged},
        {&StyleSetProps::itemColorCurrent, &StyledComboBox::ssItemColorCurrentChanged},
        {&StyleSetProps::itemColorHover, &StyledComboBox::ssItemColorHoverChanged},
        {&StyleSetProps::foregroundItem, &StyledComboBox::ssForegroundItemChanged},
        {&StyleSetProps::foregroundItemHover, &StyledComboBox::ssForegroundItemHoverChanged},
        {&StyleSetProps::foregroundItemSelected, &StyledComboBox::ssForegroundItemSelectedChanged},
        {&StyleSetProps::backgroundItem, &StyledComboBox::ssBackgroundItemChanged},
        {&StyleSetProps::backgroundItemHover, &StyledComboBox::ssBackgroundItemHoverChanged},
        {&StyleSetProps::backgroundItemSelected, &StyledComboBox::ssBackgroundItemSelectedChanged},
        {&StyleSetProps::popupColor, &StyledComboBox::ssPopupColorChanged},
        {&StyleSetProps::popupBorderColor, &StyledComboBox::ssPopupBorderColorChanged},
    }};
    return sources.at(std::size_t(name));
}

QColor StyledComboBox::color(Name name)
{
    if (m_colors && m_colors->at(name).isValid())
        return m_colors->at(name);
    if (!m_styleSet) {
        m_styleSet = static_cast<StyleSet *>(qmlAttachedPropertiesObject<StyleSet>(this));
        m_styleSet->setFollower(this);
    }
    StyleSetProps &props = *m_styleSet->props();
    // Not every sheet sets these.
    const bool isMissing = (name == BorderColor && !props.isSet(QStringLiteral("border"))) ||
                           (name == BorderColorFocus && !props.isSet(QStringLiteral("border-color-focus")));
    return isMissing ? QColor(Qt::transparent) : (props.*source(name).read)();
}

void StyledComboBox::setColor(Name name, const QColor &color)
{
    if (!m_colors)
        m_colors = std::make_unique<std::array<QColor, nameCount>>();
    if (std::exchange(m_colors->at(name), color) == color)
        return;
    Q_EMIT(this->*source(name).changed)();
}

void StyledComboBox::onStyleChanged()
{
    for (int name = 0; name < nameCount; ++name)
        Q_EMIT(this->*source(name).changed)();
}

} // namespace tamble::client
