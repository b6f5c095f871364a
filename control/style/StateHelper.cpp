#include "style/StateHelper.h"

#include "style/StyleSet.h"

#include <array>
#include <bit>
#include <cstddef>

namespace tamble::client {

StateHelper::StateHelper(StyleSet &styleSet)
    : QObject(&styleSet)
    , m_styleSet(styleSet)
{}

QString StateHelper::stateText(unsigned states)
{
    // In style sheets "readonly" is written without a capital.
    constexpr std::array words = {"pressed ",  "hovered ",      "disabled ", "readonly ",
                                  "selected ", "inconsistent ", "focus ",    "active "};
    static std::array<QString, 256> texts; // made on demand: controls change their states often, between few of them
    QString &text = texts.at(states);
    if (text.isEmpty()) {
        for (std::size_t i = 0; i < words.size(); ++i) {
            if (states & (1U << i))
                text += QLatin1String(words.at(i));
        }
    }
    return text;
}

void StateHelper::give(State state, bool on)
{
    m_given |= state;
    assign(state, on);
}

void StateHelper::handBack(State state)
{
    m_given &= ~unsigned(state);
    assign(state, m_fed & state);
}

void StateHelper::feed(State state, bool on)
{
    m_fed = on ? m_fed | state : m_fed & ~unsigned(state);
    if (!(m_given & state))
        assign(state, on);
}

void StateHelper::assign(State state, bool on)
{
    // In the order of the states' bits.
    static constexpr std::array changeSignals = {
        &StateHelper::pressedChanged,  &StateHelper::hoveredChanged,  &StateHelper::disabledChanged,
        &StateHelper::readOnlyChanged, &StateHelper::selectedChanged, &StateHelper::inconsistentChanged,
        &StateHelper::focusChanged,    &StateHelper::activeChanged,
    };
    if (bool(m_states & state) == on)
        return;
    m_states ^= state;
    m_styleSet.setState(stateText(m_states));
    Q_EMIT(this->*changeSignals.at(std::size_t(std::countr_zero(unsigned(state)))))();
    Q_EMIT m_styleSet.stateChanged();
}

} // namespace tamble::client
