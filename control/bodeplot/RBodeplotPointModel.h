#pragma once

#include "ControlExport.h"

#include <QtCore/QObject>
#include <QtCore/QPointF>
#include <QtQml/qqmlregistration.h>

namespace tamble::client {

/// One draggable handle of a curve.
///
/// `point` is normalised to the curve's size: x from 0 (left) to 1 (right), y from 0 (top) to 1 (bottom); a handle
/// outside that square is not shown.
class TAMBLE_CLIENT_CONTROL_EXPORT RBodeplotPointModel : public QObject
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(QPointF point MEMBER m_point NOTIFY pointChanged)
    Q_PROPERTY(int index MEMBER m_index NOTIFY indexChanged)
    Q_PROPERTY(qreal quality MEMBER m_quality NOTIFY qualityChanged)
    Q_PROPERTY(QString label MEMBER m_label NOTIFY labelChanged)
    Q_PROPERTY(bool errorFlag MEMBER m_errorFlag NOTIFY errorFlagChanged)
    Q_PROPERTY(bool selected MEMBER m_selected NOTIFY selectedChanged)
    Q_PROPERTY(bool visiblePoint MEMBER m_visiblePoint NOTIFY visiblePointChanged)

public:
    /// Which way a drag moves the handle.
    enum class MoveMode {
        Horizontal = 0, ///< frequency only
        Vertical = 1,   ///< gain only
        Both = 2,
    };

    explicit RBodeplotPointModel(QObject *parent = nullptr);

    MoveMode moveMode() const { return m_moveMode; }
    void setMoveMode(MoveMode mode) { m_moveMode = mode; }

Q_SIGNALS:
    void pointChanged();
    void indexChanged();
    void qualityChanged();
    void labelChanged();
    void errorFlagChanged();
    void selectedChanged();
    void visiblePointChanged();

private:
    QPointF m_point;
    int m_index = 0;
    qreal m_quality = 1.0;
    QString m_label;
    bool m_errorFlag = false;
    bool m_selected = false;
    bool m_visiblePoint = true;
    MoveMode m_moveMode = MoveMode::Both;
};

} // namespace tamble::client
