#pragma once

#include "fields/StepRule.h"

#include <QtCore/QBasicTimer>
#include <QtCore/QTimerEvent>
#include <QtCore/Qt>

namespace tamble::client {

/// The button of a spin box that is held, if any: when it steps, and how far.
///
/// It steps when it is pressed, again after 500 ms, and then every 60 ms. Shift and Ctrl count as for the keys, but
/// repeated steps go by pages only after 20 others.
class HeldSpinButton
{
public:
    /// -1 for "minus", 1 for "plus", 0 while none is held.
    int button() const { return m_button; }
    /// Takes hold of a button. If that `repeats`, `box` gets a timer event when the next step is due.
    void press(int button, bool repeats, QObject &box);
    /// Whether the event tells of the next step.
    bool isMine(const QTimerEvent &event) const { return event.timerId() == m_repeat.timerId(); }
    /// That step is due. False for a button that no longer `repeats`.
    bool goOn(bool repeats, QObject &box);
    /// How far the present step goes while these keys are held.
    StepSize stepSize(Qt::KeyboardModifiers held) const;
    /// Lets go; false when no button was held.
    bool release();

private:
    QBasicTimer m_repeat;
    int m_button = 0;
    int m_repeats = 0;
};

} // namespace tamble::client
