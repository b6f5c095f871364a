#pragma once

#include "style/StateHelper.h"

#include <span>

namespace tamble::client {

/// Feeds the states of a control natively, where bindings for them would be a good part of what it costs. Makes no
/// state helper before one of them is true.
class FedStates
{
public:
    struct State
    {
        StateHelper::State state;
        bool isOn;
    };

    void feed(QObject &control, std::span<const State> states);

private:
    unsigned m_on = 0; // states
};

} // namespace tamble::client
