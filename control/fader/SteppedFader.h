#pragma once

#include "base/ControlExport.h"
#include "base/PendingValue.h"
#include "fader/FaderItem.h"

#include <QtCore/QBasicTimer>

namespace tamble::client {

/// A fader whose value is edited: the gestures with their signals, and steps by keys, wheel and assistive tools.
///
/// Steps that follow each other within 0.4 s are one gesture.
///
/// Keys: Up and Right, Down and Left step by `stepSize`, with Shift by `fineStepSize`; with Ctrl, and by PageUp and
/// PageDown, by `pageStepSize`. Home leads to `from`, End and Ctrl+0 to `defaultValue`; Esc takes the gesture back.
class TAMBLE_CLIENT_CONTROL_EXPORT SteppedFader : public tamble::client::FaderItem
{
    /// Whether the wheel does nothing unless the fader has the focus.
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(bool wheelNeedsFocus MEMBER m_wheelNeedsFocus NOTIFY wheelNeedsFocusChanged FINAL)
    /// Time in ms after an edit until a bound value counts again.
    Q_PROPERTY(int settleTime MEMBER m_settleTime NOTIFY settleTimeChanged FINAL)
    Q_PROPERTY(bool editing READ isEditing NOTIFY editingChanged FINAL)

public:
    explicit SteppedFader(QQuickItem *parent = nullptr);

    /// Whether a gesture has changed the value and is not over yet.
    bool isEditing() const { return m_editing; }

    /// For assistive tools: a gesture of its own that leads to the level, limited to the range.
    Q_INVOKABLE void requestValue(const QVariant &value);

Q_SIGNALS:
    void wheelNeedsFocusChanged();
    void settleTimeChanged();
    void editingChanged();
    /// The user has set `value`: at each change while `live`, else at the end of the gesture.
    void valueEdited(double value);
    /// A gesture that changed the value is over.
    void valueCommitted(double value);
    /// Esc has taken a gesture back; valueEdited() was sent with the level of before.
    void editCanceled();

protected:
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    void accessibilityActiveChanged(bool active) override;

    /// Whether a pointer holds the handle; steps end no gesture then.
    virtual bool isHeld() const = 0;
    /// Esc: the pointer that holds the handle moves it no more.
    virtual void dropHandle() = 0;

    bool canEdit() const;
    /// Shows `level` as a part of the gesture under way, or begins one.
    void edit(double level);
    void finish();
    /// A gesture of its own that leads to the default level.
    void reset();

private:
    PendingValue &pending();
    void takeBack();
    void settle();
    void step(double delta);
    double stepFor(Qt::KeyboardModifiers modifiers) const;
    double pageStep() const;
    std::optional<double> keyDelta(const QKeyEvent *event) const;
    std::optional<double> keyTarget(const QKeyEvent *event) const;

    int m_settleTime = 300;
    bool m_wheelNeedsFocus = true;
    bool m_editing = false;

    PendingValue *m_pending = nullptr; // a child, made at the first edit
    QBasicTimer m_stepsEnd;            // runs since the last step
    int m_wheelRest = 0;               // eighths of a degree short of a step
};

} // namespace tamble::client
