#include "style/SheetColors.h"

#include "style/StyleEngine.h"
#include "style/StyleSet.h"
#include "style/UsageCountedStyleSetProps.h"
#include "style/resolution/StylePathPool.h"

#include <QtQml/qqml.h>

#include <utility>

namespace tamble::client {

SheetColors::SheetColors(QObject &control, std::span<const Source> sources, Changed changed)
    : m_control(&control)
    , m_sources(sources)
    , m_changed(std::move(changed))
{}

SheetColors::~SheetColors()
{
    if (m_styleSet)
        m_styleSet->setFollower(nullptr);
}

void SheetColors::setControl(QObject &control)
{
    if (m_styleSet)
        m_styleSet->setFollower(nullptr);
    m_styleSet = nullptr;
    m_control = &control;
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
        m_styleSet = static_cast<StyleSet *>(qmlAttachedPropertiesObject<StyleSet>(m_control));
        m_styleSet->setFollower(const_cast<SheetColors *>(this));
    }
    StyleSetProps &props = *m_styleSet->props();
    // One step only: two colours may stand in for each other.
    const Source *from = &source;
    if (source.key && !props.isSet(QLatin1String(source.key))) {
        if (source.substitute < 0)
            return Qt::transparent;
        from = &m_sources[std::size_t(source.substitute)];
    }
    if (from->group)
        return (propsOfGroup(QLatin1String(from->group)).get()->*from->read)();
    return (props.*from->read)();
}

std::shared_ptr<StyleSetProps> SheetColors::propsOfGroup(const QString &group) const
{
    return StyleEngine::instance()->propsFor(StylePathPool::instance().child(m_styleSet->stylePath(), group, {}, {}));
}

void SheetColors::setColor(std::size_t index, const QColor &color)
{
    if (m_given.empty())
        m_given.resize(m_sources.size());
    if (std::exchange(m_given[index], color) != color)
        m_changed(index, index + 1);
}

void SheetColors::onStyleChanged()
{
    m_changed(0, m_sources.size());
}

} // namespace tamble::client
