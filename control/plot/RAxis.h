#pragma once

#include "base/ControlExport.h"

#include <QtCore/QList>
#include <QtQuick/QQuickItem>

namespace tamble::client {

/// Vertical value axis without looks: chooses round tick values for a range and places them over its height.
///
/// The ticks are rebuilt on every change of a number and on every change of the geometry. The tick objects of earlier
/// rebuilds leave the list but live as long as the axis, so that a delegate that still shows one stays valid.
class TAMBLE_CLIENT_CONTROL_EXPORT RAxis : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RAxisTemplate)
    Q_PROPERTY(int tickCount READ tickCount WRITE setTickCount NOTIFY tickCountChanged)
    Q_PROPERTY(int minValue READ minValue WRITE setMinValue NOTIFY minValueChanged)
    Q_PROPERTY(int maxValue READ maxValue WRITE setMaxValue NOTIFY maxValueChanged)
    Q_PROPERTY(QList<QObject *> ticks READ ticks NOTIFY ticksChanged)

public:
    explicit RAxis(QQuickItem *parent = nullptr);

    /// Wanted number of ticks; negative (the default is -1) means one per 10 pixels of height.
    int tickCount() const { return int(m_tickCount); }
    void setTickCount(int tickCount);
    /// Value at the bottom edge; default 0.
    int minValue() const { return int(m_minValue); }
    void setMinValue(int minValue);
    /// Value at the top edge; default 1. Not above `minValue`: no ticks.
    int maxValue() const { return int(m_maxValue); }
    void setMaxValue(int maxValue);
    /// The present ticks as `RAxisItem` objects, lowest value first; the axis owns them.
    QList<QObject *> ticks() const { return m_ticks; }

Q_SIGNALS:
    void tickCountChanged();
    void minValueChanged();
    void maxValueChanged();
    void ticksChanged();

protected:
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    void assign(double &stored, double value, void (RAxis::*changed)());
    void recalculate();

    double m_tickCount = -1.0;
    double m_minValue = 0.0;
    double m_maxValue = 1.0;
    QList<QObject *> m_ticks;
};

} // namespace tamble::client
