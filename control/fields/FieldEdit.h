#pragma once

#include "base/ControlExport.h"
#include "fields/EditedText.h"
#include "fields/FieldGestures.h"
#include "fields/FieldSettings.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QVariant>
#include <QtQml/QQmlParserStatus>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickItem>

#include <memory>

class QValidator;

namespace tamble::client {

class PendingValue;

/// The conversation between a user who types and a device that stores the value of what is typed. The text is the
/// user's until it is entered or taken back; what the device says meanwhile waits, and is never overwritten by
/// accident.
///
/// Without a `value` the text itself counts, as in a plain field.
///
/// Keys: Enter enters the text (Ctrl+Enter where there are lines), and goes on to the dialog when nothing was typed.
/// Esc takes back what was typed. The keys of Undo and Redo are the page's while nothing is typed. The Menu key and
/// Shift+F10 open the context menu, as the right mouse button and a finger that rests for 500 ms do.
class TAMBLE_CLIENT_CONTROL_EXPORT FieldEdit : public tamble::client::FieldSettings, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_NAMED_ELEMENT(RFieldEdit)
    /// The control that the text belongs to, which shows the marks.
    Q_PROPERTY(QQuickItem *field MEMBER m_field NOTIFY fieldChanged REQUIRED FINAL)
    Q_PROPERTY(QQuickItem *editor READ editor WRITE setEditor NOTIFY editorChanged FINAL)
    Q_PROPERTY(QVariant value READ value WRITE setValue NOTIFY valueChanged FINAL)
    Q_PROPERTY(bool edited READ isEdited NOTIFY editedChanged FINAL)
    Q_PROPERTY(bool acceptable READ isAcceptable NOTIFY invalidTextChanged FINAL)
    Q_PROPERTY(QString invalidText READ invalidText NOTIFY invalidTextChanged FINAL)
    Q_PROPERTY(QString errorText READ errorText WRITE setErrorText NOTIFY errorTextChanged FINAL)
    Q_PROPERTY(QString bubbleText READ bubbleText NOTIFY bubbleTextChanged FINAL)
    Q_PROPERTY(bool marked READ isMarked NOTIFY markedChanged FINAL)

public:
    explicit FieldEdit(QObject *parent = nullptr);
    ~FieldEdit() override;

    /// The item that the text is typed into, a TextInput or a TextEdit; null by default.
    QQuickItem *editor() const;
    void setEditor(QQuickItem *editor);
    /// What the device or model says; undefined by default.
    QVariant value() const { return m_value; }
    void setValue(const QVariant &value);
    /// Whether something was typed and neither entered nor taken back.
    bool isEdited() const { return m_isEdited; }
    /// Whether Enter would take the text.
    bool isAcceptable() const { return m_invalidText.isEmpty(); }
    /// Why the text is not acceptable, for people; empty for an acceptable one.
    QString invalidText() const { return m_invalidText; }
    /// A reason that the page or the device found; it counts until the text is edited.
    QString errorText() const { return m_errorText; }
    void setErrorText(const QString &text);
    /// What a bubble at the field tells whoever types; empty for nothing.
    QString bubbleText() const { return m_bubbleText; }
    /// Whether the field shows one of its marks: not entered, not confirmed, mixed, not acceptable.
    bool isMarked() const { return m_isMarked; }

    /// For assistive tools: `given`, and then what the marks say.
    QString description(const QString &given) const;

    /// Enters the text as Enter does; false when it is not acceptable.
    Q_INVOKABLE bool enter();
    /// Enters another text as if it had been typed. Says why not, and changes nothing, when that text is not
    /// acceptable; empty when it was entered.
    Q_INVOKABLE QString enterText(const QString &text);
    /// Takes back what was typed, as Esc does.
    Q_INVOKABLE void cancel();
    /// What the field shows at present.
    QString text() const;
    /// Whether the user may change the value.
    bool canEdit() const;
    /// Whether the field is being destroyed. It loses the focus on the way, which is no wish to enter anything.
    bool isGoing() const;
    /// Shows an edit that was not typed, and tells it; it is over with commit().
    void show(const QVariant &value, bool tells = true);
    /// Ends such an edit; `tells` it first where it was not told before.
    void commit(bool tells = false);
    /// Puts a text in place of a part of what is typed, as a paste does: line breaks become blanks where there is one
    /// line only, and what the validator does not take is refused as a whole.
    void paste(const QString &text, int begin, int end);
    /// Tells whoever types something in the bubble, until the next key.
    void notice(const QString &text);
    /// Tells why `wanted` could not be typed or pasted.
    void noticeRefusal(const QString &wanted);

Q_SIGNALS:
    void fieldChanged();
    void editorChanged();
    void valueChanged();
    void editedChanged();
    void invalidTextChanged();
    void errorTextChanged();
    void bubbleTextChanged();
    void markedChanged();
    /// The text or its line may be shown in another colour.
    void lookChanged();
    /// The user has entered this, or made a step to it.
    void valueEdited(const QVariant &value);
    /// What the user entered, or the last step of a gesture.
    void valueCommitted(const QVariant &value);
    /// What was typed was taken back.
    void canceled();
    /// Enter was pressed on a text that is not acceptable.
    void rejected(const QString &text, const QString &reason);
    /// Another value has come while something was typed; Esc shows it.
    void valueWaits();

protected:
    void classBegin() override {}
    void componentComplete() override;
    bool eventFilter(QObject *editor, QEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    void onTextChanged();
    void onValidatorChanged();
    void keepWithinBytes();
    void judge() override;
    void updateMarks() override;
    void updateBubble();
    QString problemOfEditing() const;
    QString errorInForce() const;
    QString problemOf(const QString &text) const;
    QString tidied(const QString &text) const;
    const QValidator *validator() const;
    QString textOfValue() const;
    void showValue() override;
    void setText(const QString &text);
    void setEdited(bool edited);
    PendingValue &pending();

    QPointer<QQuickItem> m_field;
    std::unique_ptr<EditedText> m_editor;
    FieldGestures m_gestures;
    QPointer<QObject> m_marks; // parts of the field, made when first shown
    QPointer<QObject> m_bubble;
    QVariant m_value;
    QVariant m_shown;     ///< The last edit.
    QString m_plainText;  ///< The text that counts when there is no value.
    QString m_textBefore; ///< The text before the present change.
    QString m_invalidText;
    QString m_errorText;
    QString m_noticeText;
    QString m_bubbleText;
    QPointer<const QValidator> m_watchedValidator;
    PendingValue *m_pending = nullptr; // a child, made at the first edit of a value
    bool m_isComplete = false;         ///< Before, nothing is shown or judged.
    bool m_isEdited = false;
    bool m_valueWaits = false; ///< Whether another value has come while something was typed.
    bool m_isShowing = false;  ///< Whether the text changes because of a value.
    bool m_errorCounts = false;
    bool m_isMarked = false;
};

} // namespace tamble::client
