#pragma once

#include "base/ControlExport.h"
#include "fields/FieldEdit.h"
#include "fields/FieldRules.h"
#include "fields/StepRule.h"

#include <QtCore/QBasicTimer>
#include <QtCore/QObject>
#include <QtQml/qqmlregistration.h>

class QKeyEvent;
class QWheelEvent;

namespace tamble::client {

/// Makes a field one of numbers: reads and writes them, and moves them by steps.
///
/// Keys: Up and Down step, with Shift by `fineStepSize`; with Ctrl, and by PageUp and PageDown, by `pageStepSize`. The
/// wheel steps while the field has the focus. Ctrl and a double click go back to `defaultValue`.
class TAMBLE_CLIENT_CONTROL_EXPORT NumberSteps : public QObject, public FieldRules
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RNumberSteps)
    Q_PROPERTY(tamble::client::FieldEdit *edit READ edit WRITE setEdit NOTIFY editChanged REQUIRED FINAL)
    Q_PROPERTY(double from READ from WRITE setFrom NOTIFY ruleChanged FINAL)
    Q_PROPERTY(double to READ to WRITE setTo NOTIFY ruleChanged FINAL)
    Q_PROPERTY(double stepSize READ stepSize WRITE setStepSize NOTIFY ruleChanged FINAL)
    Q_PROPERTY(double fineStepSize READ fineStepSize WRITE setFineStepSize NOTIFY ruleChanged FINAL)
    Q_PROPERTY(double pageStepSize READ pageStepSize WRITE setPageStepSize NOTIFY ruleChanged FINAL)
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals NOTIFY ruleChanged FINAL)
    Q_PROPERTY(bool wrap READ wraps WRITE setWraps NOTIFY ruleChanged FINAL)
    Q_PROPERTY(bool canStepUp READ canStepUp NOTIFY boundsReached FINAL)
    Q_PROPERTY(bool canStepDown READ canStepDown NOTIFY boundsReached FINAL)
    /// Whether a typed number goes to the nearest whole number of steps; false by default.
    Q_PROPERTY(bool snapToStep MEMBER m_snapsToStep NOTIFY snapToStepChanged FINAL)
    /// Whether steps are possible at all; true by default.
    Q_PROPERTY(bool stepping MEMBER m_isStepping NOTIFY steppingChanged FINAL)
    /// Whether the wheel steps, and with `wheelNeedsFocus` only while the field has the focus; both are true by
    /// default.
    Q_PROPERTY(bool wheelEnabled MEMBER m_wheelEnabled NOTIFY wheelEnabledChanged FINAL)
    Q_PROPERTY(bool wheelNeedsFocus MEMBER m_wheelNeedsFocus NOTIFY wheelNeedsFocusChanged FINAL)
    /// Whether each step is told at once, or only the last of a gesture; true by default.
    Q_PROPERTY(bool live MEMBER m_isLive NOTIFY liveChanged FINAL)
    /// What the reset goes to; undefined, the default, for no reset.
    Q_PROPERTY(QVariant defaultValue MEMBER m_defaultValue NOTIFY defaultValueChanged FINAL)
    Q_PROPERTY(QString minimumText READ minimumText WRITE setMinimumText NOTIFY minimumTextChanged FINAL)

public:
    explicit NumberSteps(QObject *parent = nullptr);

    /// The conversation of the field with its device.
    FieldEdit *edit() const { return m_edit; }
    void setEdit(FieldEdit *edit);
    /// The range of the numbers, `from` and `to`, in the unit of the value; infinite, the default, for no bound.
    double from() const { return m_rule.from; }
    void setFrom(double from);
    double to() const { return m_rule.to; }
    void setTo(double to);
    /// One step: 1 by default; 0 for 1 % of the range. `fineStepSize` is a tenth of it and `pageStepSize` ten of it,
    /// unless they are set.
    double stepSize() const { return m_rule.normal; }
    void setStepSize(double size);
    double fineStepSize() const { return m_rule.fine; }
    void setFineStepSize(double size);
    double pageStepSize() const { return m_rule.page; }
    void setPageStepSize(double size);
    /// Decimals that are shown, and that steps are rounded to; -1, the default, for those that the steps need.
    int decimals() const { return m_rule.decimals; }
    void setDecimals(int decimals);
    /// Whether a step beyond a bound goes to the other one; false by default.
    bool wraps() const { return m_rule.wraps; }
    void setWraps(bool wraps);
    /// Text for `from` ("−∞"), which can also be typed, as can "-inf"; none by default.
    QString minimumText() const { return m_minimumText; }
    void setMinimumText(const QString &text);
    /// `canStepUp` and `canStepDown`: whether there is a step in that direction.
    bool canStepUp() const { return canStep(1); }
    bool canStepDown() const { return canStep(-1); }

    QString textOf(const QVariant &value) const override;
    QVariant valueOf(const QString &text) const override;
    QString problemOf(const QString &text) const override;

    /// One step up or down (`direction` 1 or -1). It belongs to a gesture that finish() ends.
    void step(StepSize size, int direction);
    /// Ends a gesture of steps, of which the last is now committed.
    void finish();
    /// Goes to `defaultValue`, if there is one.
    Q_INVOKABLE void reset();
    /// Steps by the wheel; false when the page shall have it.
    bool takeWheel(const QWheelEvent &wheel);
    /// Sets a number as the user does, within the bounds.
    void request(double value);

Q_SIGNALS:
    void editChanged();
    void ruleChanged();
    void boundsReached();
    void snapToStepChanged();
    void steppingChanged();
    void wheelEnabledChanged();
    void wheelNeedsFocusChanged();
    void liveChanged();
    void defaultValueChanged();
    void minimumTextChanged();
    /// A step of a mixed field, in units of `stepSize`: the page moves each device from its own value.
    void stepped(double steps);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    template <typename Value>
    void set(Value &member, Value value);
    void onRuleChanged();
    void watch();
    bool onKey(const QKeyEvent &key);
    bool canEdit() const;
    bool canStep(int direction) const;
    double number() const;
    double stepOrigin() const;
    bool readsAsMinimum(const QString &text) const;
    QString numberText(const QVariant &value) const;
    QString rangeMessage() const;
    void show(double value);

    QPointer<FieldEdit> m_edit;
    QPointer<QQuickItem> m_watched;
    StepRule m_rule;
    QVariant m_defaultValue;
    QString m_minimumText;
    QBasicTimer m_gestureEnd;
    int m_wheelTravel = 0; ///< Eighths of a degree that are not a step yet.
    bool m_ownFineStep = false;
    bool m_ownPageStep = false;
    bool m_isGesture = false;
    bool m_snapsToStep = false;
    bool m_isStepping = true;
    bool m_wheelEnabled = true;
    bool m_wheelNeedsFocus = true;
    bool m_isLive = true;
};

} // namespace tamble::client
