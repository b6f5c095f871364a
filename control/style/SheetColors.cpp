#include "style/SheetColors.h"

#include "style/StyleSet.h"
#include "style/StyleSetProps.h"

#include <QtQml/qqml.h>

#include <utility>

namespace tamble::client {

SheetColors::SheetColors(QObject &control, std::span<const Source> sources, std::function<void()> changed)
    : m_control(control)
    , m_sources(sources)
    , m_changed(std::move(changed))
{}

SheetColors::~SheetColors()
{
    if (m_styleSet)
        m_styleSet->setFollower(nullptr);
}

QColor SheetColors::color(std::size_t index) const
{
    if (!m_given.empty() && m_given[index].isValid())
        return m_given[index];
    return colorOfSheets(m_sources[index]);
}

QColor SheetColors::colorOfSheets(const Source &source) const
{
    if (!m_styleSet) {
        m_styleSet = static_cast<StyleSet *>(qmlAttachedPropertiesObject<StyleSet>(&m_control));
        m_styleSet->setFollower(const_cast<SheetColors *>(this));
    }
    StyleSetProps &props = *m_styleSet->props();
    if (!source.key || props.isSet(QLatin1String(source.key)))
        return (props.*source.read)();
    return source.substitute < 0 ? QColor(Qt::transparent) : (props.*m_sources[std::size_t(source.substitute)].read)();
}

void SheetColors::setColor(std::size_t index, const QColor &color)
{
    if (m_given.empty())
        m_given.resize(m_sources.size());
    if (std::exchange(m_given[index], color) != color)
        m_changed();
}

void SheetColors::onStyleChanged()
{
    m_changed();
}

} // namespace tamble::client
