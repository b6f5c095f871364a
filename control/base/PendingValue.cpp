#include "base/PendingValue.h"

#include "base/PropertyGate.h"

#include <QtCore/QTimerEvent>

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

// Bindings are left alone here: what they depend on may be going as well.
PendingValue::~PendingValue()
{
    if (m_isActive && m_hasSaid && m_gate && m_target != parent())
        m_gate->pass(m_said);
}

void PendingValue::setTarget(QObject *target)
{
    if (m_target == target || m_isActive)
        return;
    m_target = target;
    m_gate.clear();
    Q_EMIT targetChanged();
}

void PendingValue::setName(const QString &name)
{
    if (m_name == name || m_isActive)
        return;
    m_name = name;
    m_gate.clear();
    Q_EMIT nameChanged();
}

void PendingValue::setSettleTime(int ms)
{
    if (std::exchange(m_settleTime, ms) != ms)
        Q_EMIT settleTimeChanged();
}

PropertyGate *PendingValue::gate()
{
    if (!m_gate && m_target)
        m_gate = PropertyGate::of(*m_target, m_name);
    return m_gate;
}

void PendingValue::begin()
{
    if (!m_isOpen && gate())
        show(m_gate->value());
}

void PendingValue::show(const QVariant &value)
{
    if (!gate())
        return;
    const QPointer<PendingValue> guard(this);
    m_settling.stop();
    if (!std::exchange(m_isOpen, true))
        m_valueAtBegin = m_gate->value();
    const bool begins = !std::exchange(m_isActive, true);
    if (begins) {
        m_gate->setEdit(this);
        m_said = m_valueAtBegin;
        m_hasSaid = false;
    }
    m_gate->pass(value);
    if (guard && begins)
        Q_EMIT activeChanged();
}

bool PendingValue::hears(const QVariant &said)
{
    if (!m_isActive)
        return false;
    const QVariant before = std::exchange(m_said, said);
    m_hasSaid = true;
    if (m_isOpen)
        return true;
    if (const QVariant shown = m_gate->value(); said == shown && before != shown)
        end();
    return true;
}

void PendingValue::commit()
{
    if (std::exchange(m_isOpen, false))
        m_settling.start(std::max(0, m_settleTime), this);
}

void PendingValue::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == m_settling.timerId())
        finish();
    else
        QObject::timerEvent(event);
}

void PendingValue::finish()
{
    if (!m_isActive)
        return;
    m_isActive = false; // before the page's binding writes
    const QPointer<PendingValue> guard(this);
    if (m_gate && !m_gate->readBinding() && m_hasSaid)
        m_gate->pass(m_said);
    if (guard)
        end();
}

void PendingValue::end()
{
    m_settling.stop();
    m_isOpen = false;
    m_isActive = false;
    Q_EMIT activeChanged();
}

} // namespace tamble::client
