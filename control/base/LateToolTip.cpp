#include "base/LateToolTip.h"

#include "base/PartComponents.h"

#include <QtQml/QQmlEngine>
#include <QtQml/qqml.h>
#include <QtQuick/QQuickItem>

namespace tamble::client {

LateToolTip::LateToolTip(QQuickItem &owner)
    : QObject(&owner)
    , m_owner(owner)
{}

void LateToolTip::show(const QString &text)
{
    constexpr int wait = 700; // ms
    m_text = text;
    if (m_popup && m_popup->property("visible").toBool())
        m_popup->setProperty("text", m_text);
    else if (!m_wait.isActive())
        m_wait.start(wait, this);
}

void LateToolTip::hide()
{
    m_wait.stop();
    if (m_popup)
        m_popup->setProperty("visible", false);
}

void LateToolTip::timerEvent(QTimerEvent *)
{
    m_wait.stop();
    if (!m_popup)
        make();
    if (!m_popup)
        return;
    m_popup->setProperty("text", m_text);
    m_popup->setProperty("visible", true);
}

void LateToolTip::make()
{
    QQmlEngine *engine = qmlEngine(&m_owner);
    const QVariantMap properties{{QStringLiteral("parent"), QVariant::fromValue(&m_owner)},
                                 {QStringLiteral("delay"), 0}};
    m_popup = engine ? PartComponents::of(engine).make(Part::ToolTip, this, properties) : nullptr;
}

} // namespace tamble::client
