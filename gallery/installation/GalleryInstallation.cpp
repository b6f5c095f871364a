#include "GalleryInstallation.h"

#include "FieldTable.h"

#include <QtCore/QTimerEvent>
#include <QtQml/QQmlEngine>

namespace {

constexpr int tick = 15;          // ms, while anything is under way
constexpr int longestTick = 1000; // ms; nothing is made up for after a sleep of the machine

GalleryInstallation *theInstallation = nullptr;

} // namespace

GalleryInstallation::GalleryInstallation(unsigned seed, QObject *parent)
    : QObject(parent)
    , m_network(m_queue, m_devices, seed)
    , m_disturbances(m_queue, m_devices, m_network, seed + 1)
    , m_client(m_queue, m_devices, m_network)
    , m_amplifiers(m_client, nullptr)
{
    theInstallation = this;
    for (QObject *model : {static_cast<QObject *>(&m_amplifiers), static_cast<QObject *>(&m_sources)})
        QJSEngine::setObjectOwnership(model, QJSEngine::CppOwnership);
    m_network.setDeviceWatcher([this](int device) { Q_EMIT deviceChanged(device); });
    connect(&m_amplifiers, &AmplifierListModel::requested, this, &GalleryInstallation::request);
}

GalleryInstallation::~GalleryInstallation()
{
    if (theInstallation == this)
        theInstallation = nullptr;
}

GalleryInstallation *GalleryInstallation::create(QQmlEngine *engine, QJSEngine *)
{
    GalleryInstallation *installation = theInstallation ? theInstallation : new GalleryInstallation(1, engine);
    QJSEngine::setObjectOwnership(installation, QJSEngine::CppOwnership);
    return installation;
}

void GalleryInstallation::setBehaviour(const NetworkBehaviour &behaviour)
{
    const NetworkBehaviour before = m_network.behaviour();
    m_network.setBehaviour(behaviour);
    if (m_network.behaviour() == before)
        return;
    m_disturbances.restart();
    updateClock();
    Q_EMIT behaviourChanged();
}

void GalleryInstallation::setStepped(bool stepped)
{
    m_isStepped = stepped;
    updateClock();
}

void GalleryInstallation::advance(int ms)
{
    m_queue.advance(ms);
    updateClock();
}

void GalleryInstallation::editElsewhere(int device, const QString &field)
{
    const int index = fieldIndex(field);
    if (index < 0 || !hasDevice(device))
        return;
    m_disturbances.edit(device, index);
    updateClock();
}

void GalleryInstallation::dropOut(int device, int ms)
{
    if (!hasDevice(device))
        return;
    m_network.dropOut(device, ms);
    updateClock();
}

void GalleryInstallation::request(int device, int field, const QVariant &value)
{
    m_client.request(device, field, value);
    updateClock();
}

void GalleryInstallation::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == m_timer.timerId())
        advance(int(qMin<qint64>(m_sinceTick.restart(), longestTick)));
}

/// Ticks while anything is under way, and rests otherwise.
void GalleryInstallation::updateClock()
{
    const bool ticks = !m_isStepped && !m_queue.isEmpty();
    if (ticks == m_timer.isActive())
        return;
    if (!ticks) {
        m_timer.stop();
        return;
    }
    m_sinceTick.start();
    m_timer.start(tick, Qt::PreciseTimer, this);
}
