#pragma once

#include "base/ControlExport.h"
#include "fields/FieldEdit.h"
#include "fields/FieldSpeech.h"

#include <QtQml/qqmlregistration.h>
#include <QtQuickTemplates2/private/qquicktextarea_p.h>

namespace tamble::client {

/// Several lines of text that a device stores; FieldEdit is their conversation with the device.
class TAMBLE_CLIENT_CONTROL_EXPORT RTextAreaBase : public QQuickTextArea, public FieldSpeech
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RTextAreaBase)
    Q_PROPERTY(tamble::client::FieldEdit *edit READ edit WRITE setEdit NOTIFY editChanged REQUIRED FINAL)
    /// What the field is called, for people who cannot see it.
    Q_PROPERTY(QString label MEMBER m_label NOTIFY labelChanged FINAL)
    /// Whether Tab goes to the next control instead of into the text; false by default.
    Q_PROPERTY(bool tabChangesFocus MEMBER m_tabChangesFocus NOTIFY tabChangesFocusChanged FINAL)

public:
    explicit RTextAreaBase(QQuickItem *parent = nullptr);
    ~RTextAreaBase() override;

    /// The conversation with the device.
    FieldEdit *edit() const { return m_edit; }
    void setEdit(FieldEdit *edit);

    QAccessible::Role spokenRole() const override { return QAccessible::EditableText; }
    void addSpokenStates(QAccessible::State &state) const override;

Q_SIGNALS:
    void editChanged();
    void labelChanged();
    void tabChangesFocusChanged();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void componentComplete() override;

private:
    QString spokenHint() const override { return placeholderText(); }

    void updateHint();

    QObject *m_hint = nullptr; // a child, made when first shown
    bool m_tabChangesFocus = false;
};

} // namespace tamble::client
