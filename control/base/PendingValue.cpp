#include "base/PendingValue.h"

#include "base/PartComponents.h"

#include <QtCore/QTimerEvent>
#include <QtQml/QQmlEngine>
#include <QtQml/qqml.h>

#include <algorithm>
#include <utility>

namespace tamble::client {

PendingValue::PendingValue(QObject *parent)
    : QObject(parent)
{}

PendingValue::PendingValue(QObject *target, const QString &name)
    : QObject(target)
    , m_target(target)
    , m_name(name)
{}

void PendingValue::setTarget(QObject *target)
{
    if (m_target == target || m_isActive)
        return;
    m_target = target;
    forgetBinding();
    Q_EMIT targetChanged();
}

void PendingValue::setName(const QString &name)
{
    if (m_name == name || m_isActive)
        return;
    m_name = name;
    forgetBinding();
    Q_EMIT nameChanged();
}

void PendingValue::forgetBinding()
{
    delete std::exchange(m_binding, nullptr);
}

void PendingValue::setSettleTime(int ms)
{
    if (std::exchange(m_settleTime, ms) != ms)
        Q_EMIT settleTimeChanged();
}

void PendingValue::begin()
{
    if (m_target && !m_isOpen)
        show(m_target->property(m_name.toUtf8().constData()));
}

void PendingValue::show(const QVariant &value)
{
    if (!m_target)
        return;
    m_settling.stop();
    if (!std::exchange(m_isOpen, true))
        m_valueAtBegin = m_target->property(m_name.toUtf8().constData());
    write(value);
    setActive(true);
}

void PendingValue::commit()
{
    if (std::exchange(m_isOpen, false))
        m_settling.start(std::max(0, m_settleTime), this);
}

void PendingValue::cancel()
{
    if (!std::exchange(m_isOpen, false))
        return;
    write(m_valueAtBegin);
    setActive(false);
}

void PendingValue::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_settling.timerId()) {
        QObject::timerEvent(event);
        return;
    }
    m_settling.stop();
    setActive(false);
}

void PendingValue::write(const QVariant &value)
{
    QQmlEngine *engine = m_target ? qmlEngine(m_target) : nullptr;
    if (!m_binding && engine) {
        const QVariantMap properties{{QStringLiteral("target"), QVariant::fromValue(m_target.data())},
                                     {QStringLiteral("property"), m_name}};
        m_binding = PartComponents::of(engine).make(Part::ValueBinding, this, properties);
    }
    if (m_binding)
        m_binding->setProperty("value", value);
    else if (m_target)
        m_target->setProperty(m_name.toUtf8().constData(), value);
}

void PendingValue::setActive(bool active)
{
    if (m_binding)
        m_binding->setProperty("when", active);
    if (std::exchange(m_isActive, active) != active)
        Q_EMIT activeChanged();
}

} // namespace tamble::client
