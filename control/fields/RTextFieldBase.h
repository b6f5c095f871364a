#pragma once

#include "base/ControlExport.h"

#include <QtCore/QPointer>
#include <QtCore/QVariant>
#include <QtQml/qqmlregistration.h>
#include <QtQuickTemplates2/private/qquicktextfield_p.h>

class QValidator;

namespace tamble::client {

class PendingValue;
class RValueConverter;

/// One line of text that a device stores. What is typed is the user's until it is entered; what the device says
/// meanwhile waits, and is never overwritten by accident.
///
/// A field without a `value` is a plain one, whose `text` itself counts.
///
/// Keys: Enter enters the text, and goes on to the dialog when nothing was typed. Esc takes back what was typed.
class TAMBLE_CLIENT_CONTROL_EXPORT RTextFieldBase : public QQuickTextField
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RTextFieldBase)
    Q_PROPERTY(QVariant value READ value WRITE setValue NOTIFY valueChanged FINAL)
    Q_PROPERTY(bool edited READ isEdited NOTIFY editedChanged FINAL)
    Q_PROPERTY(bool editing READ isEdited NOTIFY editedChanged FINAL)
    Q_PROPERTY(bool acceptable READ isAcceptable NOTIFY invalidTextChanged FINAL)
    Q_PROPERTY(QString invalidText READ invalidText NOTIFY invalidTextChanged FINAL)
    Q_PROPERTY(QString errorText READ errorText WRITE setErrorText NOTIFY errorTextChanged FINAL)
    Q_PROPERTY(bool required READ isRequired WRITE setRequired NOTIFY requiredChanged FINAL)
    Q_PROPERTY(int maximumBytes READ maximumBytes WRITE setMaximumBytes NOTIFY maximumBytesChanged FINAL)
    /// Whether entering takes outer blanks away and lets the validator tidy the text; true by default.
    Q_PROPERTY(bool trim MEMBER m_trim NOTIFY trimChanged FINAL)
    /// Whether an acceptable text is entered when the focus goes elsewhere; else it waits for Enter or Esc. True by
    /// default.
    Q_PROPERTY(bool commitOnFocusLoss MEMBER m_commitOnFocusLoss NOTIFY commitOnFocusLossChanged FINAL)
    /// False while the page waits for the device to acknowledge; true by default.
    Q_PROPERTY(bool confirmed MEMBER m_confirmed NOTIFY confirmedChanged FINAL)
    Q_PROPERTY(bool consistent READ isConsistent WRITE setConsistent NOTIFY consistentChanged FINAL)
    /// How long, in ms, an entered text is shown before the bound value counts again; 300 by default.
    Q_PROPERTY(int settleTime MEMBER m_settleTime NOTIFY settleTimeChanged FINAL)
    Q_PROPERTY(
        tamble::client::RValueConverter *converter READ converter WRITE setConverter NOTIFY converterChanged FINAL)

public:
    explicit RTextFieldBase(QQuickItem *parent = nullptr);

    /// What the device or model says; undefined by default.
    QVariant value() const { return m_value; }
    void setValue(const QVariant &value);
    /// `edited` and `editing`: whether something was typed and neither entered nor taken back.
    bool isEdited() const { return m_isEdited; }
    /// Whether Enter would take the text.
    bool isAcceptable() const { return m_invalidText.isEmpty(); }
    /// Why the text is not acceptable, for people; empty for an acceptable one.
    QString invalidText() const { return m_invalidText; }
    /// A reason that the page or the device found; it counts until the text is edited.
    QString errorText() const { return m_errorText; }
    void setErrorText(const QString &text);
    /// Whether the text must not be empty; false by default.
    bool isRequired() const { return m_isRequired; }
    void setRequired(bool required);
    /// Most bytes of UTF-8 that can be typed or pasted, at whole characters; 0, the default, for no limit.
    int maximumBytes() const { return m_maximumBytes; }
    void setMaximumBytes(int bytes);
    /// False while several devices differ ("mixed"): the field is empty then, and what is entered goes to all. True by
    /// default.
    bool isConsistent() const { return m_isConsistent; }
    void setConsistent(bool consistent);
    /// Turns values into texts and back; null, the default, for values that are texts.
    RValueConverter *converter() const { return m_converter; }
    void setConverter(RValueConverter *converter);

    /// Enters the text as Enter does; false when it is not acceptable.
    Q_INVOKABLE bool enter();
    /// Enters another text as if it had been typed. Says why not, and changes nothing, when it is not acceptable; empty
    /// when it was entered.
    Q_INVOKABLE QString enterText(const QString &text);
    /// Takes back what was typed, as Esc does.
    Q_INVOKABLE void cancel();

Q_SIGNALS:
    void valueChanged();
    void editedChanged();
    void invalidTextChanged();
    void errorTextChanged();
    void requiredChanged();
    void maximumBytesChanged();
    void trimChanged();
    void commitOnFocusLossChanged();
    void confirmedChanged();
    void consistentChanged();
    void settleTimeChanged();
    void converterChanged();
    /// `valueEdited` and `valueCommitted`, together: the user has entered this.
    void valueEdited(const QVariant &value);
    void valueCommitted(const QVariant &value);
    /// What was typed was taken back.
    void editCanceled();
    /// Enter was pressed on a text that is not acceptable.
    void rejected(const QString &text, const QString &reason);
    /// Another value has come while something was typed; Esc shows it.
    void valueWaits();

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void componentComplete() override;

private:
    void onTextChanged();
    void onTextEdited();
    void onValidatorChanged();
    void keepWithinBytes();
    void judge();
    QString problemOf(const QString &text) const;
    QString tidied(const QString &text) const;
    QString textOfValue() const;
    void showValue();
    void setEdited(bool edited);
    PendingValue &pending();

    QVariant m_value;
    QString m_plainText; ///< The text that counts when there is no value.
    QString m_invalidText;
    QString m_errorText;
    QPointer<RValueConverter> m_converter;
    QPointer<QValidator> m_watchedValidator;
    PendingValue *m_pending = nullptr; // a child, made at the first edit of a value
    QString m_textBefore;              ///< The text before the present change.
    int m_maximumBytes = 0;
    int m_settleTime = 300;
    bool m_isEdited = false;
    bool m_errorCounts = false;
    bool m_isRequired = false;
    bool m_trim = true;
    bool m_commitOnFocusLoss = true;
    bool m_confirmed = true;
    bool m_isConsistent = true;
    bool m_focusedByPress = false;
};

} // namespace tamble::client
