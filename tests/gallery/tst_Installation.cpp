#include "Disturbances.h"
#include "EventQueue.h"
#include "FieldRules.h"
#include "InstallationClient.h"
#include "InstalledDevices.h"
#include "NetworkSources.h"
#include "SimulatedNetwork.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <QtCore/QSet>

#include <limits>
#include <memory>

namespace {

constexpr double unbounded = std::numeric_limits<double>::infinity();
constexpr double noValue = std::numeric_limits<double>::quiet_NaN();

struct Installation
{
    explicit Installation(const NetworkBehaviour &behaviour = {}, unsigned seed = 7)
        : network(queue, devices, seed)
        , disturbances(queue, devices, network, seed)
        , client(queue, devices, network)
    {
        network.setBehaviour(behaviour);
        disturbances.restart();
    }

    EventQueue queue;
    InstalledDevices devices;
    SimulatedNetwork network;
    Disturbances disturbances;
    InstallationClient client;
};

NetworkBehaviour worst()
{
    NetworkBehaviour behaviour;
    behaviour.latency = 3000;
    behaviour.jitter = 3000;
    behaviour.loss = 0.2;
    behaviour.refusals = 0.2;
    behaviour.clamping = true;
    behaviour.dropOutsPerMinute = 20.0;
    behaviour.otherEditsPerMinute = 600.0;
    behaviour.readingsPerMinute = 100.0;
    return behaviour;
}

const int nameField = fieldIndex(u"name");
const int addressField = fieldIndex(u"ipAddress");
const int gainField = fieldIndex(u"input1Gain");
const int delayMsField = fieldIndex(u"output2DelayMs");
const int delaySamplesField = fieldIndex(u"output2DelaySamples");

} // namespace

class tst_Installation : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void eventsHappenAtTheirTimes()
    {
        EventQueue queue;
        QStringList seen;
        const auto note = [&](const char *what) {
            return [&, what] { seen.append(QStringLiteral("%1 %2").arg(QLatin1String(what)).arg(queue.now())); };
        };
        queue.after(30, note("late"));
        queue.after(10, note("first"));
        queue.after(10, note("second"));
        queue.after(-5, [&] { queue.after(20, note("added")); });
        queue.advance(25);
        QCOMPARE(seen, QStringList({"first 10", "second 10", "added 20"}));
        QCOMPARE(queue.now(), 25);
        queue.advance(5);
        QCOMPARE(seen.last(), QStringLiteral("late 30"));
        QVERIFY(queue.isEmpty());
        queue.after(1, [&] { queue.advance(100); });
        queue.advance(2);
        QCOMPARE(queue.now(), 131);
    }

    void devicesBeginConsistent()
    {
        const InstalledDevices devices;
        QCOMPARE(devices.count(), 27);
        QSet<QString> addresses;
        for (int device = 0; device < devices.count(); ++device) {
            const DeviceRecord &record = devices.record(device);
            addresses.insert(record.read(addressField).toString());
            const QList<FieldSpec> &fields = deviceFields(record.kind());
            for (int field = 0; field < int(fields.size()); ++field) {
                const FieldSpec &spec = fields.at(field);
                if (spec.storedAs >= 0)
                    QCOMPARE(record.read(field).toDouble() * 48.0, record.read(spec.storedAs).toDouble());
                QCOMPARE(record.read(field).metaType(), emptyValue(spec).metaType());
                if (isEditable(spec) && spec.storedAs < 0)
                    QVERIFY2(judgedValue(spec, record.read(field), false).reason.isEmpty(), qPrintable(spec.name));
            }
        }
        QCOMPARE(addresses.size(), 27);
        QCOMPARE(networkSources().size(), 200);
    }

    void judging_data()
    {
        // kept: invalid when refused; clamped: by device 0
        const auto row =
            rowsOf([](const char *field, const QVariant &value, const QVariant &kept, const QVariant &clamped) {
                const int index = fieldIndex(QString::fromLatin1(field));
                for (const bool clamps : {false, true}) {
                    const QVariant &expected = clamps ? clamped : kept;
                    InstalledDevices devices;
                    devices.setClamping(clamps);
                    const DeviceRecord before = devices.record(0);
                    const DeviceAnswer answer = devices.ask(0, index, value);
                    QCOMPARE(answer.reason.isEmpty(), expected.isValid());
                    QCOMPARE(devices.record(0).read(index), expected.isValid() ? expected : before.read(index));
                }
            });
        const QVariant refused;
        row("name", "name", "Hall", "Hall", "Hall");
        row("empty name", "name", "", refused, refused);
        row("long name", "name", QString(30, u'x'), refused, QString(24, u'x'));
        row("line break in a name", "name", "a\nb", refused, refused);
        row("line break in notes", "notes", "a\nb", "a\nb", "a\nb");
        row("address", "ipAddress", "10.0.0.7", "10.0.0.7", "10.0.0.7");
        row("address of three numbers", "ipAddress", "10.0.7", refused, refused);
        row("leading zero", "ipAddress", "10.0.0.07", refused, refused);
        row("address of many devices", "ipAddress", "224.0.0.1", refused, refused);
        row("mask", "subnetMask", "255.255.252.0", "255.255.252.0", "255.255.252.0");
        row("mask with a hole", "subnetMask", "255.0.255.0", refused, refused);
        row("gateway", "gateway", "192.168.10.254", "192.168.10.254", "192.168.10.254");
        row("gateway elsewhere", "gateway", "192.168.11.1", refused, refused);
        row("PIN", "pin", "0815", "0815", "0815");
        row("short PIN", "pin", "081", refused, refused);
        row("gain between steps", "input1Gain", -3.14, -3.1, -3.0);
        row("gain too high", "input1Gain", 24.0, refused, 18.0);
        row("no gain", "input1Gain", -unbounded, -unbounded, -unbounded);
        row("gain as a text", "input1Gain", "-6", -6.0, -6.0);
        row("gain that is no number", "input1Gain", noValue, refused, refused);
        row("samples", "output2DelaySamples", 96000, 96000, 96000);
        row("too many samples", "output2DelaySamples", 1e9, refused, 96000);
        row("ms between samples", "output2DelayMs", 1.01, 1.0, 1.0);
        row("unknown source", "input1Source", 9876, 9876, 9876);
        row("no source", "input1Source", "main", refused, refused);
        row("reading", "temperature", 20.0, refused, refused);
    }
    void judging() { checkRow(); }

    void addressesAreUnique()
    {
        InstalledDevices devices;
        const QVariant taken = devices.record(1).read(addressField);
        QCOMPARE(devices.ask(0, addressField, taken).reason, QStringLiteral("The address is in use"));
        QVERIFY(devices.ask(1, addressField, taken).reason.isEmpty());
        devices.ask(0, fieldIndex(u"dhcp"), true);
        QCOMPARE(devices.ask(0, addressField, "192.168.10.99").reason, QStringLiteral("The address comes from DHCP"));
    }

    void requestIsAcknowledged()
    {
        Installation installation;
        const QSignalSpy changes(&installation.client, &InstallationClient::fieldChanged);
        installation.client.request(2, nameField, QStringLiteral("Hall"));
        QCOMPARE(installation.client.shown(2, nameField), QVariant("Hall"));
        QCOMPARE(installation.client.said(2, nameField), QVariant("Amplifier 3"));
        QVERIFY(!installation.client.isConfirmed(2, nameField));
        installation.queue.advance(100);
        QCOMPARE(installation.client.said(2, nameField), QVariant("Hall"));
        QVERIFY(installation.client.isConfirmed(2, nameField));
        QVERIFY(changes.size() <= 3);
        QVERIFY(installation.client.error(2, nameField).isEmpty());
    }

    // A fader that is dragged sends faster than messages take to overtake each other.
    void lastRequestCounts()
    {
        for (unsigned seed = 0; seed < 20; ++seed) {
            Installation installation({}, seed);
            for (const double gain : {-4.0, -3.0, -2.0, -1.0})
                installation.client.request(0, gainField, gain);
            installation.client.request(0, delayMsField, 5.0);
            installation.client.request(0, delaySamplesField, 480);
            installation.queue.advance(200);
            QCOMPARE(installation.devices.record(0).read(gainField), QVariant(-1.0));
            QCOMPARE(installation.devices.record(0).read(delaySamplesField), QVariant(480));
            QVERIFY(installation.client.isConfirmed(0, gainField));
        }
    }

    void refusedValueStaysWithItsReason()
    {
        Installation installation;
        installation.client.request(0, addressField, QStringLiteral("192.168.10.12"));
        installation.queue.advance(100);
        QCOMPARE(installation.client.error(0, addressField), QStringLiteral("The address is in use"));
        QCOMPARE(installation.client.shown(0, addressField), QVariant("192.168.10.12"));
        QVERIFY(installation.client.isConfirmed(0, addressField));
        installation.client.dismiss(0, addressField);
        QCOMPARE(installation.client.shown(0, addressField), QVariant("192.168.10.11"));
        QVERIFY(installation.client.error(0, addressField).isEmpty());
    }

    void clampingDeviceAnswersAnotherValue()
    {
        NetworkBehaviour behaviour;
        behaviour.clamping = true;
        Installation installation(behaviour);
        installation.client.request(3, gainField, 99.0);
        installation.client.request(4, gainField, 99.0);
        installation.queue.advance(100);
        QCOMPARE(installation.client.shown(3, gainField), QVariant(18.0));
        QVERIFY(installation.client.error(3, gainField).isEmpty());
        QCOMPARE(installation.client.error(4, gainField), QStringLiteral("The value must be from -80 to 18"));
        // The same again: nothing changes at the device, and yet the field shows what it has.
        installation.client.request(3, gainField, 99.0);
        installation.queue.advance(100);
        QCOMPARE(installation.client.shown(3, gainField), QVariant(18.0));
    }

    void lostMessagesTimeOut()
    {
        NetworkBehaviour behaviour;
        behaviour.loss = 1.0;
        Installation installation(behaviour);
        installation.client.request(0, nameField, QStringLiteral("Hall"));
        installation.queue.advance(behaviour.timeout - 1);
        QVERIFY(!installation.client.isConfirmed(0, nameField));
        installation.queue.advance(1);
        QVERIFY(installation.client.isConfirmed(0, nameField));
        QCOMPARE(installation.client.error(0, nameField), QStringLiteral("The device does not answer"));
        QCOMPARE(installation.client.shown(0, nameField), QVariant("Hall"));
    }

    void lateAnswerIsBetterThanNone()
    {
        NetworkBehaviour behaviour;
        behaviour.latency = 3000;
        behaviour.timeout = 1000;
        Installation installation(behaviour);
        installation.client.request(0, nameField, QStringLiteral("Hall"));
        installation.queue.advance(2000);
        QVERIFY(!installation.client.error(0, nameField).isEmpty());
        installation.queue.advance(2000);
        QVERIFY(installation.client.error(0, nameField).isEmpty());
        QCOMPARE(installation.client.said(0, nameField), QVariant("Hall"));
    }

    void deviceLeavesAndComesBack()
    {
        Installation installation;
        const QSignalSpy presence(&installation.client, &InstallationClient::onlineChanged);
        installation.network.dropOut(5, 1000);
        installation.queue.advance(500);
        QVERIFY(!installation.client.isOnline(5));
        installation.client.request(5, nameField, QStringLiteral("Hall"));
        QCOMPARE(installation.client.error(5, nameField), QStringLiteral("The device is not online"));
        QCOMPARE(installation.client.said(5, nameField), QVariant("Amplifier 6"));
        installation.disturbances.edit(5, gainField);
        installation.queue.advance(1000);
        QVERIFY(installation.client.isOnline(5));
        QCOMPARE(presence.size(), 2);
        QCOMPARE(installation.devices.record(5), InstalledDevices().record(5));
    }

    void editElsewhereArrives()
    {
        Installation installation;
        installation.disturbances.edit(1, delayMsField);
        const QVariant samples = installation.devices.record(1).read(delaySamplesField);
        QVERIFY(installation.client.said(1, delaySamplesField) != samples);
        installation.queue.advance(100);
        QCOMPARE(installation.client.said(1, delaySamplesField), samples);
        QCOMPARE(installation.client.said(1, delayMsField), installation.devices.record(1).read(delayMsField));
    }

    // Whatever the network does, once it is quiet the client's picture is right and nothing waits.
    void worstNetworkEndsInTheTruth()
    {
        Installation installation(worst());
        RandomSource user(3);
        for (int i = 0; i < 600; ++i) {
            const int device = user.below(installation.devices.count());
            const QList<FieldSpec> &fields = deviceFields(installation.devices.kind(device));
            const int field = user.below(int(fields.size()));
            installation.client.request(device, field, sampleValue(fields.at(field), user));
            installation.queue.advance(100);
        }
        installation.network.setBehaviour({});
        installation.disturbances.restart();
        installation.queue.advance(60'000);
        QVERIFY(installation.queue.isEmpty());
        int failures = 0;
        for (int device = 0; device < installation.devices.count(); ++device) {
            QVERIFY(installation.client.isOnline(device));
            for (int field = 0; field < int(deviceFields(installation.devices.kind(device)).size()); ++field) {
                QVERIFY(installation.client.isConfirmed(device, field));
                QCOMPARE(installation.client.said(device, field), installation.devices.record(device).read(field));
                failures += installation.client.error(device, field).isEmpty() ? 0 : 1;
            }
        }
        QVERIFY(failures > 20);
    }

    void seedRepeatsEverything()
    {
        const auto outcome = [](unsigned seed) {
            Installation installation(worst(), seed);
            for (int i = 0; i < 100; ++i) {
                installation.client.request(i % 24, nameField, QStringLiteral("Name %1").arg(i));
                installation.queue.advance(100);
            }
            QList<FieldChange> all;
            for (int device = 0; device < 24; ++device)
                all += installation.devices.record(device).all();
            return all;
        };
        QCOMPARE(outcome(1), outcome(1));
        QVERIFY(outcome(1) != outcome(2));
    }

    void behaviourIsKeptInBounds()
    {
        NetworkBehaviour behaviour;
        behaviour.latency = -1;
        behaviour.jitter = 1'000'000'000;
        behaviour.loss = noValue;
        behaviour.otherEditsPerMinute = unbounded;
        const NetworkBehaviour kept = bounded(behaviour);
        QCOMPARE(kept.latency, 0);
        QCOMPARE(kept.jitter, 3000);
        QCOMPARE(kept.loss, 0.0);
        QCOMPARE(kept.otherEditsPerMinute, 6000.0);
        QCOMPARE(bounded({}), NetworkBehaviour());
    }
};

template struct TestClass<tst_Installation>;
#include "tst_Installation.moc"
