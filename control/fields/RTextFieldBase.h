#pragma once

#include "base/ControlExport.h"
#include "fields/FieldEdit.h"
#include "fields/FieldSpeech.h"

#include <QtQml/qqmlregistration.h>
#include <QtQuickTemplates2/private/qquicktextfield_p.h>

namespace tamble::client {

/// One line of text that a device stores; FieldEdit is its conversation with the device. What few fields show is made
/// when it is first needed.
class TAMBLE_CLIENT_CONTROL_EXPORT RTextFieldBase : public QQuickTextField, public FieldSpeech
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RTextFieldBase)
    Q_PROPERTY(tamble::client::FieldEdit *edit READ edit WRITE setEdit NOTIFY editChanged REQUIRED FINAL)
    /// What the field is called, for people who cannot see it.
    Q_PROPERTY(QString label MEMBER m_label NOTIFY labelChanged FINAL)
    Q_PROPERTY(bool clearable READ isClearable WRITE setClearable NOTIFY clearableChanged FINAL)
    Q_PROPERTY(bool revealable READ isRevealable WRITE setRevealable NOTIFY revealableChanged FINAL)
    Q_PROPERTY(QString iconKey READ iconKey WRITE setIconKey NOTIFY iconKeyChanged FINAL)

public:
    explicit RTextFieldBase(QQuickItem *parent = nullptr);

    /// The conversation with the device, whose properties the field has as its own.
    FieldEdit *edit() const { return m_edit; }
    void setEdit(FieldEdit *edit);
    /// Whether a button takes the whole text away; false by default.
    bool isClearable() const { return m_isClearable; }
    void setClearable(bool clearable);
    /// Whether a button shows what is typed where the echo hides it; false by default.
    bool isRevealable() const { return m_isRevealable; }
    void setRevealable(bool revealable);
    /// Picture in front of the text; none by default.
    QString iconKey() const { return m_iconKey; }
    void setIconKey(const QString &key);

    /// Shows the text, or hides it again as the page's `echoMode` did.
    Q_INVOKABLE void reveal(bool shown);
    /// Pastes from the clipboard, in place of the selection.
    Q_INVOKABLE void paste();
    /// Takes the whole text away, as typing does.
    Q_INVOKABLE void clearByUser();

    QAccessible::Role spokenRole() const override { return QAccessible::EditableText; }
    void addSpokenStates(QAccessible::State &state) const override;

Q_SIGNALS:
    void editChanged();
    void labelChanged();
    void clearableChanged();
    void revealableChanged();
    void iconKeyChanged();
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
    void componentComplete() override;

private:
    QString spokenHint() const override { return placeholderText(); }
    void updateHint();
    void needButtons();

    QObject *m_hint = nullptr; // these are children, made when first shown
    QObject *m_buttons = nullptr;
    QObject *m_icon = nullptr;
    QString m_iconKey;
    bool m_isClearable = false;
    bool m_isRevealable = false;
    EchoMode m_hidingEcho = Password; ///< What hid a text that is shown at present.
};

} // namespace tamble::client
