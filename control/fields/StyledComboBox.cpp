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

QColor StyledComboBox::color(Name name)
{
    constexpr std::array<QColor (StyleSetProps::*)(), nameCount> reads = {
        &StyleSetProps::background,
        &StyleSetProps::foreground,
        &StyleSetProps::line,
        &StyleSetProps::border,
        &StyleSetProps::borderColorFocus,
        &StyleSetProps::indicatorBackground,
        &StyleSetProps::indicatorBackgroundHover,
        &StyleSetProps::itemColorCurrent,
        &StyleSetProps::itemColorHover,
        &StyleSetProps::foregroundItem,
        &StyleSetProps::foregroundItemHover,
        &StyleSetProps::foregroundItemSelected,
        &StyleSetProps::backgroundItem,
        &StyleSetProps::backgroundItemHover,
        &StyleSetProps::backgroundItemSelected,
        &StyleSetProps::popupColor,
        &StyleSetProps::popupBorderColor,
    };
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
    return isMissing ? QColor(Qt::transparent) : (props.*reads.at(name))();
}

void StyledComboBox::setColor(Name name, const QColor &color)
{
    if (!m_colors)
        m_colors = std::make_unique<std::array<QColor, nameCount>>();
    if (std::exchange(m_colors->at(name), color) == color)
        return;
    Q_EMIT ssChanged();
}

void StyledComboBox::onStyleChanged()
{
    Q_EMIT ssChanged();
}

} // namespace tamble::client
