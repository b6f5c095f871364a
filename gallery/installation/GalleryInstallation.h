#pragma once

#include "DeviceListModel.h"
#include "Disturbances.h"
#include "EditHistory.h"
#include "EventLog.h"
#include "InstallationClient.h"
#include "InstalledDevices.h"
#include "PresetListModel.h"
#include "RequestStep.h"
#include "SourceListModel.h"
#include "StageModel.h"

#include <QtCore/QBasicTimer>
#include <QtCore/QElapsedTimer>
#include <QtQml/qqml.h>

class QJSEngine;
class QQmlEngine;

/// As `networkBehaviour` in QML.
struct NetworkBehaviourType
{
    Q_GADGET
    QML_FOREIGN(NetworkBehaviour)
    QML_VALUE_TYPE(networkBehaviour)
};

/// As `EditHistory` in QML.
struct EditHistoryType
{
    Q_GADGET
    QML_FOREIGN(EditHistory)
    QML_NAMED_ELEMENT(EditHistory)
};

/// The installation that the pages configure: 24 amplifiers, two mixers and a matrix on a network that behaves as the
/// page wants.
///
/// QML sees the object that exists when it first asks, or gets one of its own.
class GalleryInstallation : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// The amplifiers (`amplifiers`), and all devices, as the client sees them.
    Q_PROPERTY(DeviceListModel *amplifiers READ amplifiers CONSTANT FINAL)
    Q_PROPERTY(DeviceListModel *allDevices READ allDevices CONSTANT FINAL)
    /// What channels can be given, a `SourceListModel`.
    Q_PROPERTY(QAbstractItemModel *sources READ sources CONSTANT FINAL)
    /// What has happened.
    Q_PROPERTY(EventLog *log READ log CONSTANT FINAL)
    /// Settings of the first mixer that can be recalled.
    Q_PROPERTY(PresetListModel *presets READ presets CONSTANT FINAL)
    /// The plan of all devices and loudspeakers.
    Q_PROPERTY(StageModel *stage READ stage CONSTANT FINAL)
    /// Everything that was edited.
    Q_PROPERTY(EditHistory *history READ history CONSTANT FINAL)
    /// Number of the first mixer and of the matrix.
    Q_PROPERTY(int firstMixer READ firstMixer CONSTANT FINAL)
    Q_PROPERTY(int matrix READ matrix CONSTANT FINAL)
    /// How the network behaves; may be changed at any time, also by its parts.
    Q_PROPERTY(NetworkBehaviour behaviour READ behaviour WRITE setBehaviour NOTIFY behaviourChanged FINAL)

public:
    /// All that happens by chance is repeated by the same seed. Without a default argument: QML would prefer a default
    /// constructor to `create`.
    GalleryInstallation(unsigned seed, QObject *parent);
    ~GalleryInstallation() override;

    static GalleryInstallation *create(QQmlEngine *engine, QJSEngine *);

    DeviceListModel *amplifiers() { return &m_amplifiers; }
    DeviceListModel *allDevices() { return &m_allDevices; }
    SourceListModel *sources() { return &m_sources; }
    EventLog *log() { return &m_log; }
    PresetListModel *presets() { return &m_presets; }
    StageModel *stage() { return &m_stage; }
    EditHistory *history() { return &m_history; }
    static int firstMixer() { return amplifierCount; }
    static int matrix() { return amplifierCount + mixerCount; }
    const NetworkBehaviour &behaviour() const { return m_network.behaviour(); }
    void setBehaviour(const NetworkBehaviour &behaviour);

    /// Takes the clock away, for pictures and tests: only `advance` moves it.
    void setStepped(bool stepped);
    /// Lets `ms` pass at once.
    Q_INVOKABLE void advance(int ms);
    /// Lets another client edit a field; nothing for devices and fields that are not there.
    Q_INVOKABLE void editElsewhere(int device, const QString &field);
    /// Takes a device off the network for `ms`.
    Q_INVOKABLE void dropOut(int device, int ms);

    const InstallationClient &client() const { return m_client; }
    /// What the devices really have.
    const InstalledDevices &devices() const { return m_devices; }
    /// Asks devices to take values, as one step that can be undone. `text` tells it to people; an empty one is made of
    /// the devices and the field.
    void request(const QList<FieldRequest> &requests, const QString &text = {});
    /// The same as a part of a step that is done, undone or redone.
    void send(const FieldRequest &request);
    void dismiss(FieldPlace place) { m_client.dismiss(place.device, place.field); }
    /// Lets something happen in `ms`.
    void after(int ms, const EventQueue::Event &event);

Q_SIGNALS:
    void behaviourChanged();
    /// A device really has something else.
    void deviceChanged(int device);

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    bool hasDevice(int device) const { return device >= 0 && device < m_devices.count(); }
    QString titleOf(const QList<FieldRequest> &requests) const;
    void updateClock();

    EventQueue m_queue;
    InstalledDevices m_devices;
    SimulatedNetwork m_network;
    Disturbances m_disturbances;
    InstallationClient m_client;
    DeviceListModel m_amplifiers;
    DeviceListModel m_allDevices;
    SourceListModel m_sources;
    EventLog m_log;
    PresetListModel m_presets;
    EditHistory m_history;
    StageModel m_stage;
    QBasicTimer m_timer;
    QElapsedTimer m_sinceTick;
    int m_interval = 0; ///< ms, of the timer
    bool m_isStepped = false;
};
