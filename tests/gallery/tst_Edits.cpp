#include "FirmwareUpdate.h"
#include "GalleryInstallation.h"
#include "RoutingModel.h"
#include "support/TestProgram.h"

#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <QtTest/QAbstractItemModelTester>

namespace {

struct Show
{
    Show()
        : installation(1, nullptr)
    {
        installation.setStepped(true);
    }

    QVariant really(const FieldPlace &place) { return installation.devices().record(place.device).read(place.field); }
    void request(const QList<FieldRequest> &requests)
    {
        installation.request(requests);
        installation.advance(100);
    }
    void undo()
    {
        installation.history()->undo();
        installation.advance(100);
    }
    QStringList logged()
    {
        QStringList entries;
        for (int row = 0; row < installation.log()->rowCount(); ++row) {
            const QModelIndex index = installation.log()->index(row);
            entries.append(
                QStringLiteral("%1 %2").arg(index.data(EventLog::DeviceRole).toString(), index.data().toString()));
        }
        return entries;
    }

    GalleryInstallation installation;
};

const int mixer = GalleryInstallation::firstMixer();
const FieldPlace mixerGain{mixer, fieldIndex(u"input3Gain", DeviceKind::Mixer)};
const FieldPlace mixerMute{mixer, fieldIndex(u"mute", DeviceKind::Mixer)};
const FieldPlace amplifierMute{4, fieldIndex(u"mute")};
const FieldPlace amplifierDelay{4, fieldIndex(u"output2DelayMs")};

} // namespace

class tst_Edits : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void fieldTitles_data()
    {
        QTest::addColumn<QString>("title");
        QTest::newRow("input12DelayMs") << QStringLiteral("Input 12 delay ms");
        QTest::newRow("route1x16") << QStringLiteral("Route 1 x 16");
        QTest::newRow("ipAddress") << QStringLiteral("IP address");
        QTest::newRow("mute") << QStringLiteral("Mute");
    }
    void fieldTitles()
    {
        QFETCH(const QString, title);
        QCOMPARE(fieldTitle(QString::fromLatin1(QTest::currentDataTag())), title);
    }

    void gestureIsOneStep()
    {
        Show show;
        const QVariant before = show.really(mixerGain);
        for (const double gain : {-11.0, -10.0, -9.0})
            show.request({{mixerGain, gain}});
        show.installation.history()->finish();
        show.request({{mixerGain, -8.0}});
        QCOMPARE(show.installation.history()->count(), 2);
        show.undo();
        QCOMPARE(show.really(mixerGain), QVariant(-9.0));
        show.undo();
        QCOMPARE(show.really(mixerGain), before);
        // What comes just after an undone step does not melt into the step before.
        show.installation.history()->redo();
        show.request({{mixerGain, -7.0}});
        QCOMPARE(show.installation.history()->count(), 2);
    }

    void gestureThatLeadsBackIsNoStep()
    {
        Show show;
        const QVariant before = show.really(mixerGain);
        show.request({{mixerGain, -3.0}});
        show.request({{mixerGain, before}});
        QCOMPARE(show.installation.history()->count(), 0);
        show.request({{mixerGain, before}});
        QCOMPARE(show.installation.history()->count(), 0);
    }

    void severalDevicesAreOneStep()
    {
        Show show;
        show.request({{mixerMute, true}, {amplifierMute, true}});
        QVERIFY(show.really(amplifierMute).toBool());
        QCOMPARE(show.installation.history()->undoText(), QStringLiteral("2 devices: Mute"));
        show.undo();
        QVERIFY(!show.really(amplifierMute).toBool() && !show.really(mixerMute).toBool());
    }

    void refusedValueIsUndoneToWhatTheDeviceHas()
    {
        Show show;
        const QVariant before = show.really(mixerGain);
        show.request({{mixerGain, 99.0}});
        show.installation.history()->finish();
        show.request({{mixerGain, -1.0}});
        show.undo();
        QCOMPARE(show.really(mixerGain), before);
        QVERIFY(show.logged().contains(QStringLiteral("FOH mixer Hats gain: The value must be from -80 to 18")));
    }

    void objectsKeepTheirOwnStates()
    {
        Show show;
        QQmlEngine engine;
        QQmlComponent component(&engine);
        component.setData(
            "import QtQml\nQtObject { id: owner; property var kept: [1]; property string shown: kept.join()\n"
            "function reveal(state: var) { owner.kept = state } }",
            {});
        std::unique_ptr<QObject> owner(component.create());
        EditHistory &history = *show.installation.history();
        history.keep(owner.get(), QVariantList{1}, QVariantList{2}, QStringLiteral("Two"), QString());
        QCOMPARE(owner->property("shown").toString(), QStringLiteral("2"));
        history.keep(owner.get(), QVariantList{2}, QVariantList{1}, QStringLiteral("One"), QString());
        QCOMPARE(history.count(), 0);
        history.keep(owner.get(), QVariantList{1}, QVariantList{3}, QStringLiteral("Three"), QString());
        owner.reset();
        history.undo();
        QCOMPARE(history.count(), 0);
    }

    void undoingTellsWhereItWasDone()
    {
        Show show;
        EditHistory &history = *show.installation.history();
        QSignalSpy concerned(&history, &EditHistory::concerned);
        history.setProperty("place", "levels");
        show.request({{mixerGain, -6.0}});
        history.setProperty("place", "devices");
        show.request({{amplifierMute, true}});
        QCOMPARE(concerned.count(), 0);
        show.undo();
        show.undo();
        history.redo();
        QCOMPARE(concerned, QList<QVariantList>({{"devices"}, {"levels"}, {"levels"}}));
    }

    void logTellsWhoDidWhat()
    {
        Show show;
        show.request({{amplifierDelay, 7.0}});
        show.undo();
        show.installation.editElsewhere(mixer, QStringLiteral("input1DelayMs"));
        show.installation.advance(1000);
        show.installation.dropOut(2, 1000);
        show.installation.advance(2000);
        QCOMPARE(show.logged(), QStringList({"Amplifier 3 is back on the network", "Amplifier 3 has left the network",
                                             "FOH mixer Kick delay samples changed by another client",
                                             " Undone: Amplifier 5: Way 2 delay ms", " Amplifier 5: Way 2 delay ms"}));
    }

    void presets()
    {
        Show show;
        PresetListModel &presets = *show.installation.presets();
        const QAbstractItemModelTester tester(&presets);
        show.request({{mixerGain, -30.0}});
        presets.store(QStringLiteral("Quiet"));
        presets.recall(0);
        show.installation.advance(100);
        QCOMPARE(show.really(mixerGain), QVariant(-12.0));
        presets.recall(4);
        show.installation.advance(100);
        QCOMPARE(show.really(mixerGain), QVariant(-30.0));
        presets.remove(4);
        presets.remove(99);
        QCOMPARE(presets.rowCount(), 4);
        show.undo();
        QCOMPARE(show.really(mixerGain), QVariant(-12.0));
    }

    void routing()
    {
        Show show;
        QQmlEngine engine;
        QQmlComponent component(&engine);
        qmlRegisterType<RoutingModel>("Routing", 1, 0, "RoutingModel");
        component.setData("import Routing\nRoutingModel {}", {});
        const std::unique_ptr<QObject> object(component.create());
        auto &model = static_cast<RoutingModel &>(*object);
        const QAbstractItemModelTester tester(&model);
        QVERIFY(model.index(0, 0).data(RoutingModel::RoutedRole).toBool());
        const QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
        model.route(2, 15, true);
        QCOMPARE(changes.first().at(0).toModelIndex(), model.index(2, 15));
        QVERIFY(!model.index(2, 15).data(RoutingModel::ConfirmedRole).toBool());
        QCOMPARE(show.installation.history()->undoText(), QStringLiteral("Monitor 1 to Record R"));
        model.route(16, 0, true);
        model.route(-1, 0, true);
        QCOMPARE(show.installation.history()->count(), 1);
        show.installation.request(
            {{{GalleryInstallation::matrix(), fieldIndex(u"output16Name", DeviceKind::Matrix)}, "Stream"}});
        QCOMPARE(model.outputs().last(), QStringLiteral("Stream"));
        // What has failed is not shown as if it were so.
        show.installation.dropOut(GalleryInstallation::matrix(), 1000);
        show.installation.advance(100);
        model.route(3, 15, true);
        QVERIFY(!model.index(3, 15).data(RoutingModel::RoutedRole).toBool());
        QVERIFY(!model.index(3, 15).data(RoutingModel::RefusalRole).toString().isEmpty());
    }

    void firmware()
    {
        Show show;
        QQmlEngine engine;
        QQmlComponent component(&engine);
        qmlRegisterType<FirmwareUpdate>("Firmware", 1, 0, "FirmwareUpdate");
        component.setData("import Firmware\nFirmwareUpdate {}", {});
        const std::unique_ptr<QObject> object(component.create());
        auto &update = static_cast<FirmwareUpdate &>(*object);
        update.start(99);
        QVERIFY(!update.isRunning());
        update.start(1);
        show.installation.advance(15'000);
        QVERIFY(update.progress() > 0.4 && update.progress() < 0.6);
        show.installation.advance(16'000);
        QVERIFY(!update.isRunning() && !update.isFailed());
        QVERIFY(!show.installation.client().isOnline(1));
        show.installation.advance(10'000);
        update.start(1);
        show.installation.dropOut(1, 1000);
        show.installation.advance(2000);
        QVERIFY(update.isFailed());
    }
};

template struct TestClass<tst_Edits>;
#include "tst_Edits.moc"
