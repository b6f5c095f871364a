#pragma once

#include "base/ControlExport.h"
#include "base/SpokenControl.h"

#include <QtQml/qqmlregistration.h>
#include <QtQuick/private/qquicktextinput_p.h>

namespace tamble::client {

/// A bare editor of one line, which speaks for the control that it is a part of, with a hint for an empty one, which is
/// made when it is first shown.
class TAMBLE_CLIENT_CONTROL_EXPORT RTextInputBase : public QQuickTextInput, public SpokenControl
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RTextInputBase)
    Q_PROPERTY(
        QString placeholderText READ placeholderText WRITE setPlaceholderText NOTIFY placeholderTextChanged FINAL)

public:
    explicit RTextInputBase(QQuickItem *parent = nullptr);

    /// Text shown while there is none; none by default.
    QString placeholderText() const { return m_placeholderText; }
    void setPlaceholderText(const QString &text);

    QAccessible::Role spokenRole() const override { return QAccessible::EditableText; }
    QString spokenName() const override;
    QString spokenDescription(const QString &given) const override;

Q_SIGNALS:
    void placeholderTextChanged();

protected:
    void componentComplete() override;

private:
    void updateHint();

    QString m_placeholderText;
    QObject *m_hint = nullptr; // a child, made when first shown
};

} // namespace tamble::client
