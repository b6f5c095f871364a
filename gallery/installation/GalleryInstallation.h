#pragma once

#include "AmplifierDevices.h"
#include "AmplifierListModel.h"
#include "Disturbances.h"
#include "InstallationClient.h"
#include "SourceListModel.h"

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

/// The installation that the pages configure: 24 amplifiers on a network that behaves as the page wants.
///
/// QML sees the object that exists when it first asks, or gets one of its own.
class GalleryInstallation : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// The amplifiers as the client sees them, an `AmplifierListModel`.
    Q_PROPERTY(QAbstractItemModel *amplifiers READ amplifiers CONSTANT)
    /// What channels can be given, a `SourceListModel`.
    Q_PROPERTY(QAbstractItemModel *sources READ sources CONSTANT)
    /// How the network behaves; may be changed at any time, also by its parts.
    Q_PROPERTY(NetworkBehaviour behaviour READ behaviour WRITE setBehaviour NOTIFY behaviourChanged)

public:
    /// All that happens by chance is repeated by the same seed. Without a default argument: QML would prefer a default
    /// constructor to `create`.
    GalleryInstallation(unsigned seed, QObject *parent);
    ~GalleryInstallation() override;

    static GalleryInstallation *create(QQmlEngine *engine, QJSEngine *);

    AmplifierListModel *amplifiers() { return &m_amplifiers; }
    SourceListModel *sources() { return &m_sources; }
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
    const AmplifierDevices &devices() const { return m_devices; }
    void request(int device, int field, const QVariant &value);
    void dismiss(int device, int field) { m_client.dismiss(device, field); }

Q_SIGNALS:
    void behaviourChanged();
    /// A device really has something else.
    void deviceChanged(int device);

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    bool hasDevice(int device) const { return device >= 0 && device < m_devices.count(); }
    void updateClock();

    EventQueue m_queue;
    AmplifierDevices m_devices;
    SimulatedNetwork m_network;
    Disturbances m_disturbances;
    InstallationClient m_client;
    AmplifierListModel m_amplifiers;
    SourceListModel m_sources;
    QBasicTimer m_timer;
    QElapsedTimer m_sinceTick;
    bool m_isStepped = false;
};
