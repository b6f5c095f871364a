#pragma once

#include "base/ControlExport.h"
#include "scale/AxisRange.h"

#include <QtCore/QObject>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace tamble::client {

/// Converts between values on a linear or logarithmic axis and positions of 0…1.
///
/// `from` (default 0) lies at position 0 and `to` (default 1) at 1, with `reverse` the other way round; `scale` is 0
/// for linear (default), 1 for logarithmic. A range without extent, or with a bound of 0 or less on a logarithmic
/// scale, gives position 0 and value `from`, and one log line per such range.
class TAMBLE_CLIENT_CONTROL_EXPORT RScaleHelper : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RScaleHelper)
    /// `from` and `to`: ends of the axis, at the positions 0 and 1.
    Q_PROPERTY(double from MEMBER m_from NOTIFY fromChanged)
    Q_PROPERTY(double to MEMBER m_to NOTIFY toChanged)
    /// 0 for a linear axis, the default; 1 for a logarithmic one.
    Q_PROPERTY(int scale MEMBER m_scale NOTIFY scaleChanged)
    /// Puts `to` at position 0.
    Q_PROPERTY(bool reverse MEMBER m_reverse NOTIFY reverseChanged)

public:
    explicit RScaleHelper(QObject *parent = nullptr);

    /// Position of a value, clamped to 0…1; 0 for NaN.
    Q_INVOKABLE double toPosition(double value);
    /// Value at a position, clamped to the range; `from` for NaN.
    Q_INVOKABLE double toValue(double position);
    /// The multiple of `step` nearest to a value, not clamped; a step of 0 or NaN leaves the value as is.
    Q_INVOKABLE double snap(double value, double step) const;
    /// Step of 1, 2 or 5 times a power of ten whose lines lie at least `minPx` apart on a linear axis of `lengthPx`.
    ///
    /// Without a length the step spans the whole range; distances under 1 pixel count as 1; 0 for an empty range.
    Q_INVOKABLE double niceStep(double lengthPx, double minPx) const;
    /// Whether a value lies within the range, bounds included.
    Q_INVOKABLE bool contains(double value) const;

Q_SIGNALS:
    void fromChanged();
    void toChanged();
    void scaleChanged();
    void reverseChanged();

private:
    AxisRange range() const { return {m_from, m_to, axisScale(m_scale)}; }
    bool checkRange(const char *function);

    double m_from = 0.0;
    double m_to = 1.0;
    int m_scale = int(AxisScale::Linear);
    bool m_reverse = false;
    std::optional<AxisRange> m_reportedRange;
};

} // namespace tamble::client
