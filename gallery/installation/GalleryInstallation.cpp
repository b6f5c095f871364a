#include "GalleryInstallation.h"

#include "FieldTable.h"

#include <QtCore/QTimerEvent>
#include <QtQml/QQmlEngine>

#include <algorithm>

namespace {

constexpr int tick = 15;          // ms, while anything is about to happen
constexpr int restingTick = 100;  // ms, while the next event is far
constexpr int longestTick = 1000; // ms; nothing is made up for after a sleep of the machine

GalleryInstallation *theInstallation = nullptr;

} // namespace

GalleryInstallation::GalleryInstallation(unsigned seed, QObject *parent)
    : QObject(parent)
    , m_network(m_queue, m_devices, seed)
    , m_disturbances(m_queue, m_devices, m_network, seed + 1)
    , m_client(m_queue, m_devices, m_network)
    , m_amplifiers(m_client, amplifierCount, nullptr)
    , m_allDevices(m_client, m_client.deviceCount(), nullptr)
    , m_log(m_client, nullptr)
    , m_presets(*this, nullptr)
    , m_history(nullptr)
    , m_stage(m_client, m_history, nullptr)
{
    theInstallation = this;
    for (QObject *member : std::initializer_list<QObject *>{&m_amplifiers, &m_allDevices, &m_sources, &m_log,
                                                            &m_presets, &m_history, &m_stage})
        QJSEngine::setObjectOwnership(member, QJSEngine::CppOwnership);
    m_network.setDeviceWatcher([this](int device) { Q_EMIT deviceChanged(device); });
    for (const DeviceListModel *model : {&m_amplifiers, &m_allDevices}) {
        connect(model, &DeviceListModel::requested, this, [this](int device, int field, const QVariant &value) {
            request({{{device, field}, value}});
        });
    }
    connect(&m_history, &EditHistory::happened, &m_log,
            [this](const QString &text) { m_log.add(-1, QStringLiteral("action"), text); });
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
    m_log.setClock(stepped ? QDateTime({2026, 6, 20}, {20, 0}) : QDateTime());
    updateClock();
}

void GalleryInstallation::advance(int ms)
{
    m_queue.advance(ms);
    updateClock();
}

void GalleryInstallation::editElsewhere(int device, const QString &field)
{
    const int index = hasDevice(device) ? fieldIndex(field, m_client.kind(device)) : -1;
    if (index < 0)
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

void GalleryInstallation::request(const QList<FieldRequest> &requests, const QString &text)
{
    QList<RequestStep::Edit> edits;
    for (const FieldRequest &request : requests) {
        const bool failed = !m_client.error(request.place).isEmpty();
        edits.append({request, failed ? m_client.said(request.place) : m_client.shown(request.place)});
    }
    // A request that is only repeated is nothing to undo.
    if (std::all_of(edits.begin(), edits.end(), [](const auto &edit) { return edit.request.value == edit.before; })) {
        for (const FieldRequest &request : requests)
            send(request);
    } else {
        m_history.take(new RequestStep(*this, edits, text.isEmpty() ? titleOf(requests) : text));
    }
}

void GalleryInstallation::send(const FieldRequest &request)
{
    m_client.request(request.place.device, request.place.field, request.value);
    updateClock();
}

void GalleryInstallation::after(int ms, const EventQueue::Event &event)
{
    m_queue.after(ms, event);
    updateClock();
}

void GalleryInstallation::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == m_timer.timerId())
        advance(int(qMin<qint64>(m_sinceTick.restart(), longestTick)));
}

QString GalleryInstallation::titleOf(const QList<FieldRequest> &requests) const
{
    const auto [device, field] = requests.constFirst().place;
    // Several devices have names of their own for a channel.
    const QString title = requests.size() == 1 ? m_client.title(device, field)
                                               : fieldTitle(deviceFields(m_client.kind(device)).at(field).name);
    const QString devices =
        requests.size() == 1 ? m_client.name(device) : tr("%n devices", nullptr, int(requests.size()));
    return QStringLiteral("%1: %2").arg(devices, title);
}

/// Ticks while anything is under way, and rests otherwise.
void GalleryInstallation::updateClock()
{
    if (m_isStepped || m_queue.isEmpty()) {
        m_timer.stop();
        return;
    }
    if (!m_timer.isActive())
        m_sinceTick.start();
    const int interval = int(std::clamp<qint64>(m_queue.untilNext(), tick, restingTick));
    if (!m_timer.isActive() || interval != m_interval)
        m_timer.start(m_interval = interval, Qt::PreciseTimer, this);
}
