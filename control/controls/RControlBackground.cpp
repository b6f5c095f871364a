#include "controls/RControlBackground.h"

#include "base/ControlLog.h"
#include "base/PartComponents.h"

#include <QtQml/QQmlComponent>
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
        m_line = qobject_cast<QQuickRectangle *>(makePart("Shared/RControlLine.qml"));
    return m_line;
}

void RControlBackground::setFocusVisible(bool visible)
{
    if (m_focusVisible == visible)
        return;
    m_focusVisible = visible;
    if (visible && !m_focusFrame)
        m_focusFrame = makePart("Shared/RFocusRectangle.qml");
    if (m_focusFrame)
        m_focusFrame->setVisible(visible);
    Q_EMIT focusVisibleChanged();
}

QQuickItem *RControlBackground::makePart(const char *file)
{
    QQmlEngine *engine = qmlEngine(this);
    if (!engine)
        return nullptr;
    QQmlComponent &component = PartComponents::of(engine).component(QString::fromLatin1(file));
    auto *part = qobject_cast<QQuickItem *>(component.beginCreate(engine->rootContext()));
    if (!part) {
        qCWarning(controlLog).noquote() << component.errorString();
        return nullptr;
    }
    part->setParent(this);
    part->setParentItem(this);
    component.completeCreate();
    return part;
}

} // namespace tamble::client
