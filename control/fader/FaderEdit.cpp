#include "fader/FaderEdit.h"

#include "base/PartComponents.h"

#include <QtCore/QVariant>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <QtQml/qqml.h>
#include <QtQuickTemplates2/private/qquickslider_p.h>

#include <utility>

namespace tamble::client {

void FaderEdit::show(double level)
{
    if (!std::exchange(m_isOpen, true)) {
        m_levelBefore = m_fader->value();
        begin(level);
    } else if (m_override) {
        QMetaObject::invokeMethod(m_override, "update", Q_ARG(QVariant, level));
    } else {
        m_fader->setValue(level);
    }
}

void FaderEdit::begin(double level)
{
    QQmlEngine *engine = qmlEngine(m_fader);
    if (!m_override && engine) {
        QQmlComponent &component = PartComponents::of(engine).component(QStringLiteral("Shared/RValueEdit.qml"));
        m_override = component.createWithInitialProperties(
            {{QStringLiteral("target"), QVariant::fromValue<QObject *>(m_fader)}});
        if (m_override)
            m_override->setParent(m_fader);
    }
    if (m_override)
        QMetaObject::invokeMethod(m_override, "begin", Q_ARG(QVariant, level));
    else
        m_fader->setValue(level);
}

void FaderEdit::settle(int settleTime)
{
    m_isOpen = false;
    if (!m_override)
        return;
    m_override->setProperty("settleTime", settleTime);
    QMetaObject::invokeMethod(m_override, "commit");
}

void FaderEdit::takeBack()
{
    m_isOpen = false;
    if (m_override)
        QMetaObject::invokeMethod(m_override, "cancel");
    else
        m_fader->setValue(m_levelBefore);
}

} // namespace tamble::client
