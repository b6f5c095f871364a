#pragma once

#include "ControlExport.h"

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

namespace tamble::client {

/// The eight interaction states of a control, composed to the text that style sheets match.
///
/// Each property is false by default. `stateTextChanged` precedes the notification of the property itself, so that
/// whoever reacts to the property finds the style already switched.
class TAMBLE_CLIENT_CONTROL_EXPORT StateHelper : public QObject
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(bool hovered READ hovered WRITE setHovered NOTIFY hoveredChanged)
    Q_PROPERTY(bool selected READ selected WRITE setSelected NOTIFY selectedChanged)
    Q_PROPERTY(bool disabled READ disabled WRITE setDisabled NOTIFY disabledChanged)
    Q_PROPERTY(bool readOnly READ readOnly WRITE setReadOnly NOTIFY readOnlyChanged)
    Q_PROPERTY(bool inconsistent READ inconsistent WRITE setInconsistent NOTIFY inconsistentChanged)
    Q_PROPERTY(bool focus READ focus WRITE setFocus NOTIFY focusChanged)
    Q_PROPERTY(bool pressed READ pressed WRITE setPressed NOTIFY pressedChanged)
    Q_PROPERTY(bool active READ active WRITE setActive NOTIFY activeChanged)

public:
    explicit StateHelper(QObject *parent = nullptr);

    bool hovered() const { return m_hovered; }
    void setHovered(bool hovered);
    bool selected() const { return m_selected; }
    void setSelected(bool selected);
    bool disabled() const { return m_disabled; }
    void setDisabled(bool disabled);
    bool readOnly() const { return m_readOnly; }
    void setReadOnly(bool readOnly);
    bool inconsistent() const { return m_inconsistent; }
    void setInconsistent(bool inconsistent);
    bool focus() const { return m_focus; }
    void setFocus(bool focus);
    bool pressed() const { return m_pressed; }
    void setPressed(bool pressed);
    bool active() const { return m_active; }
    void setActive(bool active);

    /// The words of the true states in a fixed order, each followed by one blank.
    QString stateText() const;

Q_SIGNALS:
    void hoveredChanged();
    void selectedChanged();
    void disabledChanged();
    void readOnlyChanged();
    void inconsistentChanged();
    void focusChanged();
    void pressedChanged();
    void activeChanged();
    void stateTextChanged(const QString &text);

private:
    void assign(bool &state, bool value, void (StateHelper::*notify)());

    bool m_hovered = false;
    bool m_selected = false;
    bool m_disabled = false;
    bool m_readOnly = false;
    bool m_inconsistent = false;
    bool m_focus = false;
    bool m_pressed = false;
    bool m_active = false;
};

} // namespace tamble::client
