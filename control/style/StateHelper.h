#pragma once

#include "base/ControlExport.h"

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

namespace tamble::client {

class StyleSet;

/// The eight interaction states of a control, which write the state text of its style set. All are false by default.
///
/// Buttons and items on a workspace feed theirs themselves. What a page sets stays whatever they feed, until it sets
/// `undefined`. When a state changes, the style set has changed before the state's own notification is sent.
class TAMBLE_CLIENT_CONTROL_EXPORT StateHelper : public QObject
{
    /// Each sets the word of its name in the state text: `hovered`, `selected`, `disabled`, `readOnly`, `inconsistent`,
    /// `focus`, `pressed`, `active`.
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(bool hovered READ hovered WRITE setHovered RESET resetHovered NOTIFY hoveredChanged FINAL)
    Q_PROPERTY(bool selected READ selected WRITE setSelected RESET resetSelected NOTIFY selectedChanged FINAL)
    Q_PROPERTY(bool disabled READ disabled WRITE setDisabled RESET resetDisabled NOTIFY disabledChanged FINAL)
    Q_PROPERTY(bool readOnly READ readOnly WRITE setReadOnly RESET resetReadOnly NOTIFY readOnlyChanged FINAL)
    Q_PROPERTY(bool inconsistent READ inconsistent WRITE setInconsistent RESET resetInconsistent NOTIFY
                   inconsistentChanged FINAL)
    Q_PROPERTY(bool focus READ focus WRITE setFocus RESET resetFocus NOTIFY focusChanged FINAL)
    Q_PROPERTY(bool pressed READ pressed WRITE setPressed RESET resetPressed NOTIFY pressedChanged FINAL)
    Q_PROPERTY(bool active READ active WRITE setActive RESET resetActive NOTIFY activeChanged FINAL)

public:
    /// Bits, in the order of the words in the state text.
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

    explicit StateHelper(StyleSet &styleSet);

    bool hovered() const { return m_states & Hovered; }
    void setHovered(bool on) { give(Hovered, on); }
    void resetHovered() { handBack(Hovered); }
    bool selected() const { return m_states & Selected; }
    void setSelected(bool on) { give(Selected, on); }
    void resetSelected() { handBack(Selected); }
    bool disabled() const { return m_states & Disabled; }
    void setDisabled(bool on) { give(Disabled, on); }
    void resetDisabled() { handBack(Disabled); }
    bool readOnly() const { return m_states & ReadOnly; }
    void setReadOnly(bool on) { give(ReadOnly, on); }
    void resetReadOnly() { handBack(ReadOnly); }
    bool inconsistent() const { return m_states & Inconsistent; }
    void setInconsistent(bool on) { give(Inconsistent, on); }
    void resetInconsistent() { handBack(Inconsistent); }
    bool focus() const { return m_states & Focus; }
    void setFocus(bool on) { give(Focus, on); }
    void resetFocus() { handBack(Focus); }
    bool pressed() const { return m_states & Pressed; }
    void setPressed(bool on) { give(Pressed, on); }
    void resetPressed() { handBack(Pressed); }
    bool active() const { return m_states & Active; }
    void setActive(bool on) { give(Active, on); }
    void resetActive() { handBack(Active); }

    /// What the control itself says of a state, which counts as long as no page has set it.
    void feed(State state, bool on);

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
    static QString stateText(unsigned states);
    void give(State state, bool on);
    void handBack(State state);
    void assign(State state, bool on);

    StyleSet &m_styleSet; // the parent
    unsigned m_states = 0;
    unsigned m_given = 0; // by the page
    unsigned m_fed = 0;
};

} // namespace tamble::client
