#include "meter/MeterAnnouncer.h"

#include "meter/RMeterBase.h"

#include <QtCore/QCoreApplication>
#include <QtQuick/private/qquickaccessibleattached_p.h>

namespace tamble::client {

MeterAnnouncer::MeterAnnouncer(RMeterBase &meter)
    : m_meter(meter)
{
    QAccessible::installActivationObserver(this);
    attach(QAccessible::isActive());
}

MeterAnnouncer::~MeterAnnouncer()
{
    QAccessible::removeActivationObserver(this);
}

void MeterAnnouncer::setUnit(const QString &unit)
{
    m_unit = unit;
    announceLevel();
}

void MeterAnnouncer::announceLevel()
{
    if (m_attached)
        m_attached->setDescription(QStringLiteral("%1 %2").arg(m_meter.getCurrentValue(), 0, 'f', 1).arg(m_unit));
}

void MeterAnnouncer::accessibilityActiveChanged(bool active)
{
    attach(active);
}

void MeterAnnouncer::attach(bool active)
{
    m_attached = active ? qobject_cast<QQuickAccessibleAttached *>(
                              qmlAttachedPropertiesObject<QQuickAccessibleAttached>(&m_meter, true))
                        : nullptr;
    if (!m_attached)
        return;
    if (m_attached->role() == QAccessible::NoRole)
        m_attached->setRole(QAccessible::ProgressBar);
    if (!m_attached->wasNameExplicitlySet())
        m_attached->setNameImplicitly(QCoreApplication::translate("RMeter", "Level"));
    announceLevel();
}

} // namespace tamble::client
