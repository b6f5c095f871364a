#pragma once

#include "RandomSource.h"
#include "SimulatedNetwork.h"

/// What happens by itself, at random times of the rates that the network's behaviour gives: devices that drop out,
/// temperatures, and another client's edits.
class Disturbances
{
public:
    Disturbances(EventQueue &queue, InstalledDevices &devices, SimulatedNetwork &network, unsigned seed);

    /// Begins anew with the present rates.
    void restart();
    /// Another client gives this field any value now. One that the device refuses changes nothing.
    void edit(int device, int field);

private:
    void schedule(int course, double perMinute, void (Disturbances::*happen)());
    void editAnything();
    void measureAnywhere();
    void dropOutAnywhere();

    EventQueue &m_queue;
    InstalledDevices &m_devices;
    SimulatedNetwork &m_network;
    RandomSource m_random;
    int m_course = 0; ///< Events of an earlier one do not happen.
};
