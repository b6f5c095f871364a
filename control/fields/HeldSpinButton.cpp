#include "fields/HeldSpinButton.h"

#include <utility>

namespace tamble::client {

namespace {

constexpr int repeatDelayMs = 500;
constexpr int repeatIntervalMs = 60;
constexpr int repeatsBeforePages = 20;

} // namespace

void HeldSpinButton::press(int button, bool repeats, QObject &box)
{
    m_button = button;
    m_repeats = 0;
    if (repeats)
        m_repeat.start(repeatDelayMs, &box);
}

bool HeldSpinButton::goOn(bool repeats, QObject &box)
{
    if (!repeats) {
        m_repeat.stop();
        return false;
    }
    ++m_repeats;
    m_repeat.start(repeatIntervalMs, &box);
    return true;
}

StepSize HeldSpinButton::stepSize(Qt::KeyboardModifiers held) const
{
    const bool mayBePage = m_repeats == 0 || m_repeats > repeatsBeforePages;
    if (held & Qt::ShiftModifier)
        return StepSize::Fine;
    return mayBePage && (held & Qt::ControlModifier) ? StepSize::Page : StepSize::Normal;
}

bool HeldSpinButton::release()
{
    m_repeat.stop();
    return std::exchange(m_button, 0) != 0;
}

} // namespace tamble::client
