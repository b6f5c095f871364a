#pragma once

#include "base/ControlExport.h"
#include "bodeplot/handles/FilterHandles.h"

#include <QtCore/QObject>
#include <QtCore/QPointF>
#include <QtQml/qqmlregistration.h>

namespace tamble::client {

/// One draggable handle of a curve.
///
/// `point` is normalised to the curve's size: x from 0 (left) to 1 (right), y from 0 (top) to 1 (bottom); a handle
/// outside that square is not shown. `frequency` (Hz) and `gain` (dB) are what the filter has there. `hasGain` and
/// `hasQuality` tell whether its response depends on them at all, `dragsQuality` whether a gesture can change the Q.
class TAMBLE_CLIENT_CONTROL_EXPORT RBodeplotPointModel : public QObject
{
    /// Place of the handle, normalised to the curve's size.
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(QPointF point MEMBER m_point NOTIFY pointChanged)
    /// Position among the handles of the curve.
    Q_PROPERTY(int index MEMBER m_index NOTIFY indexChanged)
    /// Q of the filter.
    Q_PROPERTY(qreal quality MEMBER m_quality NOTIFY qualityChanged)
    /// The filter's label.
    Q_PROPERTY(QString label MEMBER m_label NOTIFY labelChanged)
    /// Whether the filter's device reports an error.
    Q_PROPERTY(bool errorFlag MEMBER m_errorFlag NOTIFY errorFlagChanged)
    /// Whether the handle is the selected one.
    Q_PROPERTY(bool selected MEMBER m_selected NOTIFY selectedChanged)
    /// False while the filter is bypassed.
    Q_PROPERTY(bool visiblePoint MEMBER m_visiblePoint NOTIFY visiblePointChanged)
    /// Frequency of the filter in Hz.
    Q_PROPERTY(qreal frequency READ frequency NOTIFY frequencyChanged)
    /// Gain of the filter in dB.
    Q_PROPERTY(qreal gain READ gain NOTIFY gainChanged)
    /// Whether the response depends on a gain.
    Q_PROPERTY(bool hasGain READ hasGain NOTIFY moveModeChanged)
    /// Whether the response depends on a Q.
    Q_PROPERTY(bool hasQuality MEMBER m_hasQuality NOTIFY hasQualityChanged)
    /// Whether a gesture can change the Q.
    Q_PROPERTY(bool dragsQuality MEMBER m_dragsQuality NOTIFY dragsQualityChanged)

public:
    using MoveMode = HandleMotion;

    explicit RBodeplotPointModel(QObject *parent = nullptr);

    MoveMode moveMode() const { return m_moveMode; }
    qreal frequency() const { return m_frequency; }
    qreal gain() const { return m_gain; }
    bool hasGain() const { return m_moveMode != MoveMode::Horizontal; }

    /// Takes over what differs, with one notification for each property.
    void update(const FilterHandle &handle, int index, bool selected);
    void setSelected(bool selected);
    void setPoint(const QPointF &point);

Q_SIGNALS:
    void pointChanged();
    void indexChanged();
    void qualityChanged();
    void labelChanged();
    void errorFlagChanged();
    void selectedChanged();
    void visiblePointChanged();
    void frequencyChanged();
    void gainChanged();
    void moveModeChanged();
    void hasQualityChanged();
    void dragsQualityChanged();

private:
    template <typename Value>
    void assign(Value &member, const Value &value, void (RBodeplotPointModel::*changed)());

    QPointF m_point;
    int m_index = 0;
    qreal m_quality = 1.0;
    QString m_label;
    bool m_errorFlag = false;
    bool m_selected = false;
    bool m_visiblePoint = true;
    qreal m_frequency = 0.0;
    qreal m_gain = 0.0;
    MoveMode m_moveMode = MoveMode::Both;
    bool m_hasQuality = false;
    bool m_dragsQuality = false;
};

} // namespace tamble::client
