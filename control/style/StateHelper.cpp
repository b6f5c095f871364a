#include "style/StateHelper.h"

#include "style/StyleSet.h"

#include <array>

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

void StateHelper::assign(State state, bool value, void (StateHelper::*notify)())
{
    if (bool(m_states & state) == value)
        return;
    m_states ^= state;
    m_styleSet.setState(stateText(m_states));
    Q_EMIT(this->*notify)();
    Q_EMIT m_styleSet.stateChanged();
}

} // namespace tamble::client
