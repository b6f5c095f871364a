#pragma once

#include "base/ControlExport.h"
#include "fader/FaderDrag.h"
#include "fader/SteppedFader.h"

#include <QtCore/QBasicTimer>
#include <QtCore/QElapsedTimer>
#include <QtCore/QPointF>

namespace tamble::client {

/// The behaviour of a level fader: its handle is held by the mouse or a finger, or moved in steps.
///
/// Nothing moves by accident: a press takes hold of the handle where it is, wherever on the fader it lands, the wheel
/// needs the focus, and no key leads to the loud end. Each finger holds one fader.
class TAMBLE_CLIENT_CONTROL_EXPORT RFaderBase : public tamble::client::SteppedFader
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RFaderBase)
    /// Levels in dB at which a drag halts; Shift passes over them.
    Q_PROPERTY(QList<qreal> detents MEMBER m_detents NOTIFY detentsChanged FINAL)
    /// Travel in pixels around a detent within which it holds the handle.
    Q_PROPERTY(qreal detentReach MEMBER m_detentReach NOTIFY detentReachChanged FINAL)
    /// Whether a press beside the handle brings it to the pointer; else it takes hold of it where it is.
    Q_PROPERTY(bool jumpOnTrackPress MEMBER m_jumpOnTrackPress NOTIFY jumpOnTrackPressChanged FINAL)
    /// Share of the pointer's way that a drag with Shift moves; not above 0 counts as 0.1.
    Q_PROPERTY(qreal fineFactor MEMBER m_fineFactor NOTIFY fineFactorChanged FINAL)

public:
    explicit RFaderBase(QQuickItem *parent = nullptr);
    ~RFaderBase() override;

Q_SIGNALS:
    void detentsChanged();
    void detentReachChanged();
    void jumpOnTrackPressChanged();
    void fineFactorChanged();
    /// A right click, or a finger resting for half a second.
    void contextMenuRequested(const QPointF &position);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseUngrabEvent() override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    bool childMouseEventFilter(QQuickItem *child, QEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    bool isHeld() const override { return m_hold != Hold::None; }
    void dropHandle() override;

private:
    enum class Hold { None, Mouse, Touch };

    double along(const QPointF &point) const;
    bool isOnHandle(const QPointF &point) const;
    void takeHold(Hold hold, const QPointF &point);
    void jumpTo(const QPointF &point);
    void drag(const QPointF &point, bool fine);
    void letGo();
    bool wantsContextMenu() const;

    void touched(QTouchEvent *event);
    bool isOwnMove(const QEventPoint &point) const;
    void touchPressed(const QEventPoint &point);
    void touchMoved(const QEventPoint &point, bool fine);
    void touchReleased(const QEventPoint &point);
    bool isSecondTap(const QPointF &point);

    QList<qreal> m_detents;
    qreal m_detentReach = 4.0;
    qreal m_fineFactor = 0.1;
    bool m_jumpOnTrackPress = false;

    Hold m_hold = Hold::None;
    FaderDrag m_drag;
    bool m_moved = false;
    int m_touchId = -1;
    bool m_touchDecided = false; // whether a finger's movement is known to be meant for the fader
    QPointF m_pressPoint;
    QQuickItem *m_touchArea; // a child
    QBasicTimer m_longPress;
    QElapsedTimer m_sinceTap;
    QPointF m_tapPoint;
};

} // namespace tamble::client
