#pragma once

#include "base/ControlExport.h"
#include "fields/FieldSpeech.h"
#include "fields/NumberSteps.h"

#include <QtCore/QBasicTimer>
#include <QtCore/QPointer>
#include <QtQml/qqmlregistration.h>
#include <QtQuickTemplates2/private/qquickcontrol_p.h>

namespace tamble::client {

/// A number with two buttons; FieldEdit is its conversation with the device, NumberSteps knows its range.
///
/// A held button steps after 500 ms, then every 60 ms, and after 20 such steps by pages while Ctrl is held. Shift and
/// Ctrl count as for the keys.
class TAMBLE_CLIENT_CONTROL_EXPORT RSpinBoxBase : public QQuickControl, public FieldSpeech
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RSpinBoxBase)
    Q_PROPERTY(tamble::client::FieldEdit *edit READ edit WRITE setEdit NOTIFY editChanged REQUIRED FINAL)
    Q_PROPERTY(tamble::client::NumberSteps *steps READ steps WRITE setSteps NOTIFY stepsChanged REQUIRED FINAL)
    /// What the box is called, for people who cannot see it.
    Q_PROPERTY(QString label MEMBER m_label NOTIFY labelChanged FINAL)
    Q_PROPERTY(bool buttonsVisible READ buttonsVisible WRITE setButtonsVisible NOTIFY buttonsVisibleChanged FINAL)
    Q_PROPERTY(qreal buttonWidth READ buttonWidth WRITE setButtonWidth NOTIFY buttonWidthChanged FINAL)
    /// Whether a held button goes on; true by default.
    Q_PROPERTY(bool autoRepeat MEMBER m_autoRepeat NOTIFY autoRepeatChanged FINAL)
    Q_PROPERTY(QString prefix READ prefix WRITE setPrefix NOTIFY prefixChanged FINAL)
    Q_PROPERTY(QString suffix READ suffix WRITE setSuffix NOTIFY suffixChanged FINAL)
    Q_PROPERTY(int pressedButton READ pressedButton NOTIFY pressedButtonChanged FINAL)

public:
    explicit RSpinBoxBase(QQuickItem *parent = nullptr);

    /// The conversation with the device.
    FieldEdit *edit() const { return m_edit; }
    void setEdit(FieldEdit *edit);
    /// The range and the steps.
    NumberSteps *steps() const { return m_steps; }
    void setSteps(NumberSteps *steps);
    /// Whether the buttons show; true by default.
    bool buttonsVisible() const { return m_buttonsVisible; }
    void setButtonsVisible(bool visible);
    /// Width in pixels of one button, "minus" or "plus"; both stand at the end.
    qreal buttonWidth() const { return m_buttonWidth; }
    void setButtonWidth(qreal width);
    /// `prefix` and `suffix`: text before and after the number, which is not part of what is typed; none by default.
    QString prefix() const { return m_prefix; }
    void setPrefix(const QString &prefix);
    QString suffix() const { return m_suffix; }
    void setSuffix(const QString &suffix);
    /// -1 while "minus" is held, 1 for "plus", else 0.
    int pressedButton() const { return m_pressedButton; }

    /// For assistive tools: sets a number as the user does.
    Q_INVOKABLE void requestValue(const QVariant &value);

    QAccessible::Role spokenRole() const override { return QAccessible::SpinBox; }
    QString spokenDescription(const QString &given) const override;
    void addSpokenStates(QAccessible::State &state) const override;

Q_SIGNALS:
    void editChanged();
    void stepsChanged();
    void labelChanged();
    void buttonsVisibleChanged();
    void buttonWidthChanged();
    void autoRepeatChanged();
    void prefixChanged();
    void suffixChanged();
    void pressedButtonChanged();
    /// The user has entered this, or made a step to it.
    void valueEdited(double value);
    /// What the user entered, or the last step of a gesture.
    void valueCommitted(double value);
    /// What was typed was taken back.
    void editCanceled();
    /// Enter was pressed on a text that is not acceptable.
    void rejected(const QString &text, const QString &reason);
    /// A step of a mixed box, in units of `stepSize`: the page moves each device from its own value.
    void stepped(double steps);

protected:
    void componentComplete() override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseUngrabEvent() override;
    void touchEvent(QTouchEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    void accessibilityActiveChanged(bool active) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    int buttonAt(qreal x) const;
    void stepByButton();
    void release();
    void needAffixes();
    void onInvalid();

    QPointer<NumberSteps> m_steps;
    QObject *m_buttons = nullptr; // these are children, made when first shown
    QObject *m_affixes = nullptr;
    QObject *m_invalidLook = nullptr;
    QString m_prefix;
    QString m_suffix;
    QBasicTimer m_repeat;
    qreal m_buttonWidth = 32.0;
    int m_pressedButton = 0;
    int m_repeats = 0;
    bool m_buttonsVisible = true;
    bool m_autoRepeat = true;
};

} // namespace tamble::client
