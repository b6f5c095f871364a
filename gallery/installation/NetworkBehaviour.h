#pragma once

#include <QtCore/QObject>

/// How the network and what hangs on it behave. Probabilities are from 0 to 1.
struct NetworkBehaviour
{
    Q_GADGET
    Q_PROPERTY(int latency MEMBER latency FINAL)
    Q_PROPERTY(int jitter MEMBER jitter FINAL)
    Q_PROPERTY(double loss MEMBER loss FINAL)
    Q_PROPERTY(double refusals MEMBER refusals FINAL)
    Q_PROPERTY(bool clamping MEMBER clamping FINAL)
    Q_PROPERTY(double dropOutsPerMinute MEMBER dropOutsPerMinute FINAL)
    Q_PROPERTY(int dropOutTime MEMBER dropOutTime FINAL)
    Q_PROPERTY(double otherEditsPerMinute MEMBER otherEditsPerMinute FINAL)
    Q_PROPERTY(double readingsPerMinute MEMBER readingsPerMinute FINAL)
    Q_PROPERTY(int timeout MEMBER timeout FINAL)

public:
    /// From a request to its answer, half of it each way, in ms: 0 to 3000.
    int latency = 40;
    /// Up to how many ms a message takes longer each way, so that one overtakes another: 0 to 3000.
    int jitter = 20;
    /// Requests, and answers, that vanish.
    double loss = 0.0;
    /// Requests that a busy device refuses.
    double refusals = 0.0;
    /// Whether every third device clamps instead of refusing.
    bool clamping = false;
    /// How often a device leaves the network, and for how many ms.
    double dropOutsPerMinute = 0.0;
    int dropOutTime = 6000;
    /// How often another client edits a field.
    double otherEditsPerMinute = 0.0;
    /// How often a device measures another temperature.
    double readingsPerMinute = 0.0;
    /// How many ms the client waits for an answer.
    int timeout = 8000;

    bool operator==(const NetworkBehaviour &) const = default;
};

/// The behaviour with each value in its bounds; rates are at most 6000 a minute.
NetworkBehaviour bounded(NetworkBehaviour behaviour);
