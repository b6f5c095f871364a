#include "controls/RControlBackground.h"

#include <QtQml/QQmlContext>
#include <QtQml/QQmlEngine>
#include <QtQml/QQmlInfo>
#include <QtQml/qqml.h>

namespace tamble::client {

RControlBackground::RControlBackground(QQuickItem *parent)
    : QQuickRectangle(parent)
{}

void RControlBackground::setLineVisible(bool visible)
{
    if (m_lineVisible == visible)
        return;
    m_lineVisible = visible;
    if (visible)
        line();
    Q_EMIT lineVisibleChanged();
}

QQuickRectangle *RControlBackground::line()
{
    if (!m_line)
        m_line = qobject_cast<QQuickRectangle *>(makePart(Part::ControlLine));
    return m_line;
}

void RControlBackground::setFocusVisible(bool visible)
{
    if (m_focusVisible == visible)
        return;
    m_focusVisible = visible;
    if (visible && !m_focusFrame)
        m_focusFrame = makePart(Part::FocusFrame);
    if (m_focusFrame)
        m_focusFrame->setVisible(visible);
    Q_EMIT focusVisibleChanged();
}

QQuickItem *RControlBackground::makePart(Part part)
{
    QQmlEngine *engine = qmlEngine(this);
    const QVariantMap properties{{QStringLiteral("parent"), QVariant::fromValue<QQuickItem *>(this)}};
    return engine ? qobject_cast<QQuickItem *>(PartComponents::of(engine).make(part, this, properties)) : nullptr;
}

} // namespace tamble::client
