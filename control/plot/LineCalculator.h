#pragma once

#include "base/ControlExport.h"
#include "scale/AxisRange.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtQml/qqmlregistration.h>

namespace tamble::client {

/// Turns values on an axis into the normalised positions that a line plotter draws.
///
/// `positions` holds, in order, 0…1 for each of `values` within `from`…`to` (defaults 0 and 1); the others are left
/// out. `scale` is 0 for linear (default), 1 for logarithmic. A range without extent, or with a bound of 0 or less on a
/// logarithmic scale, has no positions.
class TAMBLE_CLIENT_CONTROL_EXPORT LineCalculator : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RLineCalculator)
    /// `from` and `to`: ends of the axis, at the positions 0 and 1.
    Q_PROPERTY(double from MEMBER m_from NOTIFY fromChanged)
    Q_PROPERTY(double to MEMBER m_to NOTIFY toChanged)
    /// 0 for a linear axis, the default; 1 for a logarithmic one.
    Q_PROPERTY(int scale MEMBER m_scale NOTIFY scaleChanged)
    /// Values on the axis.
    Q_PROPERTY(QList<double> values MEMBER m_values NOTIFY valuesChanged)
    /// Positions, 0 to 1, of the values that lie on the axis, in their order.
    Q_PROPERTY(QList<double> positions READ positions NOTIFY positionsChanged)

public:
    explicit LineCalculator(QObject *parent = nullptr);

    QList<double> positions() const { return m_positions; }

Q_SIGNALS:
    void fromChanged();
    void toChanged();
    void scaleChanged();
    void valuesChanged();
    void positionsChanged();

private:
    void recalculate();

    double m_from = 0.0;
    double m_to = 1.0;
    int m_scale = int(AxisScale::Linear);
    QList<double> m_values;
    QList<double> m_positions;
};

} // namespace tamble::client
