#include "DeviceField.h"
#include "FieldTable.h"
#include "GalleryInstallation.h"
#include "support/TestProgram.h"

#include <QtTest/QAbstractItemModelTester>

namespace {

struct FieldPage
{
    explicit FieldPage(const QVariantList &devices, const QString &name = QStringLiteral("name"))
        : installation(1, nullptr)
    {
        installation.setStepped(true);
        NetworkBehaviour orderly;
        orderly.jitter = 0;
        installation.setBehaviour(orderly);
        selection.classBegin();
        field.classBegin();
        selection.setDevices(devices);
        field.setTarget(&selection);
        field.setField(name);
    }

    GalleryInstallation installation;
    DeviceSelection selection;
    DeviceField field;
};

} // namespace

class tst_DeviceField : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void oneDevice()
    {
        FieldPage page({4});
        QCOMPARE(page.field.value(), QVariant("Amplifier 5"));
        const QSignalSpy errors(&page.field, &DeviceField::errorTextChanged);
        const QSignalSpy shown(&page.field, &DeviceField::shownChanged);
        page.field.request(QStringLiteral("Hall"));
        QCOMPARE(page.field.value(), QVariant("Amplifier 5"));
        QCOMPARE(page.field.shown(), QVariant("Hall"));
        QVERIFY(!page.field.isConfirmed());
        page.installation.advance(100);
        QCOMPARE(page.field.value(), QVariant("Hall"));
        QVERIFY(page.field.isConfirmed());
        QCOMPARE(shown.size(), 1);
        page.field.request(QString());
        page.installation.advance(100);
        QCOMPARE(page.field.errorText(), QStringLiteral("The text is too short"));
        page.field.dismiss();
        QCOMPARE(page.field.shown(), QVariant("Hall"));
        QCOMPARE(errors.size(), 2);
    }

    void severalDevices()
    {
        FieldPage page({0, 1, 2}, QStringLiteral("ipAddress"));
        QVERIFY(!page.field.isConsistent());
        page.field.request(QStringLiteral("192.168.10.77"));
        QVERIFY(page.field.isConsistent());
        page.installation.advance(100);
        QCOMPARE(page.field.errorText(), QStringLiteral("2 of 3 devices: The address is in use"));
        QCOMPARE(page.field.actualText(), QStringLiteral("192.168.10.77, 192.168.10.12, 192.168.10.13"));
        page.field.dismiss();
        QVERIFY(!page.field.isConsistent());
        page.selection.setDevices({2});
        QVERIFY(page.field.isConsistent());
        QCOMPARE(page.field.value(), QVariant(page.field.actualText()));
    }

    void shiftKeepsTheDifferences()
    {
        FieldPage page({0, 6, 7}, QStringLiteral("input4Gain"));
        page.selection.request(QStringLiteral("input4Gain"), 1.0);
        page.installation.advance(100);
        page.installation.request({{{6, fieldIndex(u"input4Gain")}, 17.5}});
        page.installation.advance(100);
        page.field.shift(1.5);
        page.installation.advance(100);
        QCOMPARE(page.field.actualText(), QStringLiteral("2.5, 18, 2.5"));
        QVERIFY(page.field.errorText().isEmpty());
    }

    void oddSelections()
    {
        FieldPage page({-1, 99, 7, 7, "x", 1e9});
        QCOMPARE(page.selection.places(QStringLiteral("name")), (QList<FieldPlace>{{7, 0}}));
        page.selection.setDevices({});
        QVERIFY(!page.selection.isOnline());
        QVERIFY(!page.field.shown().isValid());
        page.field.request(QStringLiteral("nobody"));
        page.field.editElsewhere();
        page.selection.setDevices({7});
        page.selection.request(QStringLiteral("no such field"), 1);
        page.field.setField(QStringLiteral("no such field"));
        QVERIFY(!page.field.value().isValid());
        page.installation.editElsewhere(-1, QStringLiteral("name"));
        page.installation.editElsewhere(1, QStringLiteral("no such field"));
        page.installation.dropOut(27, 10);
        auto selection = std::make_unique<DeviceSelection>();
        page.field.setTarget(selection.get());
        selection.reset();
        QVERIFY(!page.field.target());
    }

    void selectionChangesInAHandler()
    {
        FieldPage page({0, 1, 2});
        connect(&page.field, &DeviceField::confirmedChanged, &page.field, [&] { page.selection.setDevices({9}); });
        page.field.request(QStringLiteral("Hall"));
        page.installation.advance(100);
        for (const int device : {0, 1, 2})
            QCOMPARE(page.installation.devices().record(device).read(fieldIndex(u"name")), QVariant("Hall"));
        QCOMPARE(page.field.value(), QVariant("Amplifier 10"));
    }

    void deviceGoesOffline()
    {
        FieldPage page({0, 1});
        QVERIFY(page.selection.isOnline());
        page.installation.dropOut(1, 1000);
        page.installation.advance(500);
        QVERIFY(!page.selection.isOnline());
        page.field.request(QStringLiteral("Hall"));
        page.installation.advance(100);
        QCOMPARE(page.field.errorText(), QStringLiteral("Amplifier 2: The device is not online"));
        page.installation.advance(1000);
        QVERIFY(page.selection.isOnline());
    }

    void listOfAmplifiers()
    {
        FieldPage page({3});
        DeviceListModel &model = *page.installation.amplifiers();
        const QAbstractItemModelTester tester(&model);
        const int nameRole = model.roleNames().key("name");
        const QModelIndex row = model.index(3);
        QCOMPARE(row.data(nameRole), QVariant("Amplifier 4"));
        QCOMPARE(row.data(model.roleNames().key("device")), QVariant(3));
        QVERIFY(!row.data(nameRole + 1000).isValid());
        const QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
        QVERIFY(model.setData(row, QStringLiteral("Hall"), nameRole));
        QCOMPARE(page.field.shown(), QVariant("Hall"));
        page.installation.advance(100);
        QCOMPARE(page.field.value(), QVariant("Hall"));
        QCOMPARE(changes.first().at(0).toModelIndex(), row);
        QVERIFY(changes.first().at(2).value<QList<int>>().contains(nameRole));
        QVERIFY(!model.setData(row, 1, model.roleNames().key("online")));
    }

    void listOfSources()
    {
        GalleryInstallation installation(1, nullptr);
        const SourceListModel &model = *installation.sources();
        QCOMPARE(model.rowCount(), 201);
        const int idRole = model.roleNames().key("sourceId");
        QCOMPARE(model.index(0).data(idRole), QVariant(0));
        QCOMPARE(model.index(1).data(idRole), QVariant(101));
        QCOMPARE(model.index(200).data(), QVariant("Paging station 4"));
        QVERIFY(!model.index(201).isValid());
    }

    void clockRunsWhileSomethingIsUnderWay()
    {
        GalleryInstallation installation(1, nullptr);
        NetworkBehaviour behaviour;
        behaviour.timeout = 100;
        installation.setBehaviour(behaviour);
        installation.request({{{0, fieldIndex(u"name")}, QStringLiteral("Hall")}});
        QTRY_VERIFY(installation.client().isConfirmed(0, fieldIndex(u"name")));
        QCOMPARE(installation.client().said(0, fieldIndex(u"name")), QVariant("Hall"));
    }
};

template struct TestClass<tst_DeviceField>;
#include "tst_DeviceField.moc"
