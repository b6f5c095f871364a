#pragma once

#include "base/ControlExport.h"
#include "scale/AxisRange.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtQml/qqmlparserstatus.h>
#include <QtQml/qqmlregistration.h>

namespace tamble::client {

/// Values and normalised positions of evenly spaced grid lines.
///
/// The lines are the multiples of `step` (default 0.1), counted from `origin`, within `from`…`to` (defaults 0 and 1).
/// With `scale` 1 (logarithmic; default 0, linear) they are 1…9 times each power of ten. `includeEnds` adds the bounds.
/// A step that is not positive, gives more than 1000 lines, or is too small for numbers so large to differ by it yields
/// none and one log line. A component's properties take effect together when it is complete.
class TAMBLE_CLIENT_CONTROL_EXPORT RConstantGridLineCalculator : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_NAMED_ELEMENT(RConstantGridLineCalculator)
    /// `from` and `to`: ends of the axis, at the positions 0 and 1.
    Q_PROPERTY(double from MEMBER m_from NOTIFY fromChanged)
    Q_PROPERTY(double to MEMBER m_to NOTIFY toChanged)
    /// Distance of the lines on a linear axis, above 0.
    Q_PROPERTY(double step MEMBER m_step NOTIFY stepChanged)
    /// Value that the steps are counted from.
    Q_PROPERTY(double origin MEMBER m_origin NOTIFY originChanged)
    /// 0 for a linear axis, the default; 1 for a logarithmic one.
    Q_PROPERTY(int scale MEMBER m_scale NOTIFY scaleChanged)
    /// Adds lines at `from` and `to`.
    Q_PROPERTY(bool includeEnds MEMBER m_includeEnds NOTIFY includeEndsChanged)
    Q_PROPERTY(QList<double> values READ values NOTIFY valuesChanged)
    Q_PROPERTY(QList<double> positions READ positions NOTIFY positionsChanged)

public:
    explicit RConstantGridLineCalculator(QObject *parent = nullptr);

    /// Lowest value first.
    QList<double> values() const { return m_values; }
    /// 0 at `from` to 1 at `to`, in the order of `values`.
    QList<double> positions() const { return m_positions; }

    void classBegin() override;
    void componentComplete() override;

Q_SIGNALS:
    void fromChanged();
    void toChanged();
    void stepChanged();
    void originChanged();
    void scaleChanged();
    void includeEndsChanged();
    void valuesChanged();
    void positionsChanged();

private:
    void recalculate();

    double m_from = 0.0;
    double m_to = 1.0;
    double m_step = 0.1;
    double m_origin = 0.0;
    int m_scale = int(AxisScale::Linear);
    bool m_includeEnds = false;
    bool m_complete = true;
    QList<double> m_values;
    QList<double> m_positions;
};

} // namespace tamble::client
