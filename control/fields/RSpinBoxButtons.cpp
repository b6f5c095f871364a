// What presses do to the buttons of a spin box.

#include "fields/RSpinBoxBase.h"

#include <QtCore/QTimerEvent>
#include <QtGui/QGuiApplication>
#include <QtGui/QMouseEvent>

#include <utility>

namespace tamble::client {

namespace {

constexpr int repeatDelayMs = 500;
constexpr int repeatIntervalMs = 60;
constexpr int repeatsBeforePages = 20;

} // namespace

int RSpinBoxBase::buttonAt(qreal x) const
{
    const qreal fromEnd = isMirrored() ? x : width() - x;
    if (!m_buttonsVisible || fromEnd < 0.0 || fromEnd >= 2.0 * buttonWidth())
        return 0;
    return fromEnd < buttonWidth() ? 1 : -1;
}

void RSpinBoxBase::mousePressEvent(QMouseEvent *event)
{
    const int button = buttonAt(event->position().x());
    forceActiveFocus(Qt::MouseFocusReason);
    event->accept();
    if (button == 0 || m_pressedButton != 0)
        return;
    m_pressedButton = button;
    m_repeats = 0;
    if (m_autoRepeat)
        m_repeat.start(repeatDelayMs, this);
    updateButtons();
    Q_EMIT pressedButtonChanged();
    stepByButton();
}

void RSpinBoxBase::mouseReleaseEvent(QMouseEvent *)
{
    release();
}

void RSpinBoxBase::mouseUngrabEvent()
{
    release();
}

// Left to the mouse events that are made of touches which nobody takes.
void RSpinBoxBase::touchEvent(QTouchEvent *event)
{
    event->ignore();
}

void RSpinBoxBase::stepByButton()
{
    const Qt::KeyboardModifiers held = QGuiApplication::keyboardModifiers();
    const bool isPage = (held & Qt::ControlModifier) && (m_repeats == 0 || m_repeats > repeatsBeforePages);
    if (m_steps)
        m_steps->step(held & Qt::ShiftModifier ? StepSize::Fine
                      : isPage                 ? StepSize::Page
                                               : StepSize::Normal,
                      m_pressedButton);
}

void RSpinBoxBase::release()
{
    m_repeat.stop();
    if (std::exchange(m_pressedButton, 0) == 0)
        return;
    const QPointer<RSpinBoxBase> guard(this);
    if (m_steps)
        m_steps->finish();
    if (!guard)
        return;
    updateButtons();
    Q_EMIT pressedButtonChanged();
}

void RSpinBoxBase::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_repeat.timerId()) {
        QQuickControl::timerEvent(event);
        return;
    }
    if (!m_autoRepeat) {
        m_repeat.stop();
        return;
    }
    ++m_repeats;
    m_repeat.start(repeatIntervalMs, this);
    stepByButton();
}

} // namespace tamble::client
