#pragma once

#include "base/ControlExport.h"

#include <QtCore/QString>
#include <QtGui/QAccessible>

class QQuickAccessibleAttached;

namespace tamble::client {

class RMeterBase;

/// Tells assistive tools of a meter: its role, its name and its level with the unit. While no such tool runs it costs
/// nothing; a role or name that the page has given stays.
class TAMBLE_CLIENT_CONTROL_EXPORT MeterAnnouncer : private QAccessible::ActivationObserver
{
public:
    explicit MeterAnnouncer(RMeterBase &meter);
    ~MeterAnnouncer() override;
    Q_DISABLE_COPY_MOVE(MeterAnnouncer)

    void setUnit(const QString &unit);
    void announceLevel();

private:
    void accessibilityActiveChanged(bool active) override;
    void attach(bool active);

    RMeterBase &m_meter;
    QString m_unit;
    QQuickAccessibleAttached *m_attached = nullptr; // belongs to the meter; null while no tool runs
};

} // namespace tamble::client
