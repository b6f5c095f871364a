#pragma once

#include "base/ControlExport.h"

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

namespace tamble::client {

class StyleSet;

/// The eight interaction states of a control, which write the state text of its style set. All are false by default.
///
/// When a state changes, the style set has changed before the state's own notification is sent.
class TAMBLE_CLIENT_CONTROL_EXPORT StateHelper : public QObject
{
    /// Each sets the word of its name in the state text: `hovered`, `selected`, `disabled`, `readOnly`, `inconsistent`,
    /// `focus`, `pressed`, `active`.
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
    explicit StateHelper(StyleSet &styleSet);

    bool hovered() const { return m_states & Hovered; }
    void setHovered(bool hovered) { assign(Hovered, hovered, &StateHelper::hoveredChanged); }
    bool selected() const { return m_states & Selected; }
    void setSelected(bool selected) { assign(Selected, selected, &StateHelper::selectedChanged); }
    bool disabled() const { return m_states & Disabled; }
    void setDisabled(bool disabled) { assign(Disabled, disabled, &StateHelper::disabledChanged); }
    bool readOnly() const { return m_states & ReadOnly; }
    void setReadOnly(bool readOnly) { assign(ReadOnly, readOnly, &StateHelper::readOnlyChanged); }
    bool inconsistent() const { return m_states & Inconsistent; }
    void setInconsistent(bool inconsistent) { assign(Inconsistent, inconsistent, &StateHelper::inconsistentChanged); }
    bool focus() const { return m_states & Focus; }
    void setFocus(bool focus) { assign(Focus, focus, &StateHelper::focusChanged); }
    bool pressed() const { return m_states & Pressed; }
    void setPressed(bool pressed) { assign(Pressed, pressed, &StateHelper::pressedChanged); }
    bool active() const { return m_states & Active; }
    void setActive(bool active) { assign(Active, active, &StateHelper::activeChanged); }

Q_SIGNALS:
    void hoveredChanged();
    void selectedChanged();
    void disabledChanged();
    void readOnlyChanged();
    void inconsistentChanged();
    void focusChanged();
    void pressedChanged();
    void activeChanged();

private:
    // In the order of the words in the state text.
    enum State : unsigned {
        Pressed = 1,
        Hovered = 2,
        Disabled = 4,
        ReadOnly = 8,
        Selected = 16,
        Inconsistent = 32,
        Focus = 64,
        Active = 128,
    };

    static QString stateText(unsigned states);
    void assign(State state, bool value, void (StateHelper::*notify)());

    StyleSet &m_styleSet; // the parent
    unsigned m_states = 0;
};

} // namespace tamble::client
