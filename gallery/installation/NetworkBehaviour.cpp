#include "NetworkBehaviour.h"

#include <algorithm>

namespace {

constexpr int longestDelay = 3000;     // ms, each of the parts
constexpr int longestTime = 600'000;   // ms
constexpr double highestRate = 6000.0; // per minute

/// Turns what is not a number into the least.
double within(double least, double value, double most)
{
    return value > least ? std::min(value, most) : least;
}

} // namespace

NetworkBehaviour bounded(NetworkBehaviour behaviour)
{
    for (int *delay : {&behaviour.latency, &behaviour.jitter})
        *delay = std::clamp(*delay, 0, longestDelay);
    for (int *time : {&behaviour.dropOutTime, &behaviour.timeout})
        *time = std::clamp(*time, 0, longestTime);
    for (double *probability : {&behaviour.loss, &behaviour.refusals})
        *probability = within(0.0, *probability, 1.0);
    for (double *rate : {&behaviour.dropOutsPerMinute, &behaviour.otherEditsPerMinute, &behaviour.readingsPerMinute})
        *rate = within(0.0, *rate, highestRate);
    return behaviour;
}
