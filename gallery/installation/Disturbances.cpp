#include "Disturbances.h"

#include "FieldRules.h"
#include "InstalledDevices.h"

#include <cmath>

Disturbances::Disturbances(EventQueue &queue, InstalledDevices &devices, SimulatedNetwork &network, unsigned seed)
    : m_queue(queue)
    , m_devices(devices)
    , m_network(network)
    , m_random(seed)
{}

void Disturbances::restart()
{
    ++m_course;
    schedule(m_course, m_network.behaviour().otherEditsPerMinute, &Disturbances::editAnything);
    schedule(m_course, m_network.behaviour().readingsPerMinute, &Disturbances::measureAnywhere);
    schedule(m_course, m_network.behaviour().dropOutsPerMinute, &Disturbances::dropOutAnywhere);
}

void Disturbances::edit(int device, int field)
{
    const FieldSpec &spec = deviceFields(m_devices.kind(device)).at(field);
    if (isEditable(spec))
        m_network.editElsewhere(device, field, sampleValue(spec, m_random));
}

void Disturbances::schedule(int course, double perMinute, void (Disturbances::*happen)())
{
    if (perMinute <= 0.0)
        return;
    // Independent events of a given rate have gaps of this kind.
    const double gap = -std::log(1.0 - m_random.unit()) * 60000.0 / perMinute;
    m_queue.after(qint64(gap) + 1, [=, this] {
        if (course != m_course)
            return;
        (this->*happen)();
        schedule(course, perMinute, happen);
    });
}

void Disturbances::editAnything()
{
    const int device = m_random.below(m_devices.count());
    edit(device, m_random.below(int(deviceFields(m_devices.kind(device)).size())));
}

void Disturbances::measureAnywhere()
{
    const double temperature = 30.0 + m_random.below(120) / 10.0;
    m_network.measure(m_random.below(m_devices.count()), temperature);
}

void Disturbances::dropOutAnywhere()
{
    m_network.dropOut(m_random.below(m_devices.count()), m_network.behaviour().dropOutTime);
}
