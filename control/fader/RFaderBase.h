#pragma once

#include "ControlExport.h"
#include "fader/FaderDrag.h"
#include "fader/FaderEdit.h"
#include "fader/FaderItem.h"

#include <QtCore/QBasicTimer>
#include <QtCore/QElapsedTimer>
#include <QtCore/QPointF>

namespace tamble::client {

/// The behaviour of a level fader under mouse, fingers, wheel, keys and assistive tools.
///
/// Nothing moves by accident: a press takes hold of the handle where it is, wherever on the fader it lands, the wheel
/// needs the focus, and no key leads to the loud end. Each finger holds one fader.
class TAMBLE_CLIENT_CONTROL_EXPORT RFaderBase : public tamble::client::FaderItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RFaderBase)
    Q_PROPERTY(QList<qreal> detents MEMBER m_detents NOTIFY detentsChanged FINAL)
    Q_PROPERTY(qreal detentReach MEMBER m_detentReach NOTIFY detentReachChanged FINAL)
    Q_PROPERTY(bool jumpOnTrackPress MEMBER m_jumpOnTrackPress NOTIFY jumpOnTrackPressChanged FINAL)
    Q_PROPERTY(qreal fineFactor MEMBER m_fineFactor NOTIFY fineFactorChanged FINAL)
    Q_PROPERTY(bool wheelNeedsFocus MEMBER m_wheelNeedsFocus NOTIFY wheelNeedsFocusChanged FINAL)
    Q_PROPERTY(int settleTime MEMBER m_settleTime NOTIFY settleTimeChanged FINAL)
    Q_PROPERTY(bool editing READ isEditing NOTIFY editingChanged FINAL)

public:
    explicit RFaderBase(QQuickItem *parent = nullptr);

    /// Whether a gesture has changed the value and is not over yet.
    bool isEditing() const { return m_editing; }

Q_SIGNALS:
    void detentsChanged();
    void detentReachChanged();
    void jumpOnTrackPressChanged();
    void fineFactorChanged();
    void wheelNeedsFocusChanged();
    void settleTimeChanged();
    void editingChanged();
    /// The user has set `value`: at each change while `live`, else at the end of the gesture.
    void valueEdited(double value);
    /// A gesture that changed the value is over.
    void valueCommitted(double value);
    /// Esc has taken a gesture back; valueEdited() was sent with the level of before.
    void editCanceled();
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
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    void accessibilityActiveChanged(bool active) override;

private:
    enum class Hold { None, Mouse, Touch };

    bool canEdit() const;
    void edit(double level);
    void finish();
    void takeBack();
    void reset();
    void step(double delta);
    double stepFor(Qt::KeyboardModifiers modifiers) const;
    double pageStep() const;
    std::optional<double> keyDelta(const QKeyEvent *event) const;
    std::optional<double> keyTarget(const QKeyEvent *event) const;

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
    int m_settleTime = 300;
    bool m_jumpOnTrackPress = false;
    bool m_wheelNeedsFocus = true;
    bool m_editing = false;

    FaderEdit m_edit{this};
    double m_levelBefore = 0.0;
    QBasicTimer m_stepsEnd; // runs since the last step by key or wheel
    int m_wheelRest = 0;    // eighths of a degree short of a step

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
