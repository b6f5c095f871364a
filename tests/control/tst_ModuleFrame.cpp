#include "ControlImageProvider.h"
#include "TambleClientControlModule.h"
#include "pointer/RMouseEventSpy.h"
#include "support/AllocationCount.h"
#include "support/QmlText.h"
#include "support/TestProgram.h"

#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QResource>
#include <QtGui/QFontInfo>
#include <QtGui/QPointingDevice>
#include <QtQml/QQmlContext>

#include <memory>

using namespace tamble::client;

namespace {

constexpr const char *Uri = "TambleClient.Control";

void useOneEngine()
{
    QQmlEngine engine;
    TambleClientControlModule module;
    module.registerTypes(Uri);
    module.initializeEngine(&engine, Uri);
    const auto object =
        objectFrom(engine, "import QtQuick\nimport TambleClient.Control 1.0\n"
                           "Item { RMeterBase {} RLimiterCalculator { id: c } property RTheme themeObject: RTheme {}\n"
                           "property point position: RMouseEventSpy.position; property var values: c.values }");
    QVERIFY(object);
}

} // namespace

class tst_ModuleFrame : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { TambleClientControlModule().registerTypes(Uri); }

    void engineInitialisation()
    {
        QQmlEngine engine;
        const QStringList pathsBefore = engine.importPathList();
        TambleClientControlModule module;
        for (int round = 0; round < 2; ++round) { // a repetition changes nothing
            module.registerTypes(Uri);
            module.initializeEngine(&engine, "ignored");

            // The engine searches the path that was added last first.
            const QStringList added = {"qrc:/asset/style/", "qrc:/asset/icons/", "qrc:/asset/fonts/", "qrc:/qml/",
                                       "qrc:/"};
            QStringList found = engine.importPathList().mid(0, added.size());
            for (QString &path : found)
                path = path.endsWith(u'/') ? path : path + u'/';
            QCOMPARE(found, added);
            QCOMPARE(engine.importPathList().mid(added.size()), pathsBefore);

            QVERIFY(dynamic_cast<ControlImageProvider *>(engine.imageProvider(QStringLiteral("tamble"))));
        }
    }

    void typesUnderSeveralUris()
    {
        QQmlEngine engine;
        TambleClientControlModule module;
        for (const char *uri : {Uri, "Another.Uri", "Another.Uri"})
            module.registerTypes(uri);
        module.initializeEngine(&engine, Uri);
        const auto object = objectFrom(
            engine, "import QtQml\nimport Another.Uri 1.0 as Another\nimport TambleClient.Control 1.0 as Own\n"
                    "QtObject { property QtObject meter: Another.RMeterBase {}\n"
                    "property bool shared: Another.RMouseEventSpy === Own.RMouseEventSpy }");
        QVERIFY(object);
        QVERIFY(object->property("shared").toBool());
    }

    void touchPointsOfEveryPointingDevice()
    {
        TambleClientControlModule module;
        const auto touchPointsOfNewEngine = [&module] {
            QQmlEngine engine;
            module.initializeEngine(&engine, Uri);
            return engine.rootContext()->contextProperty(QStringLiteral("maximumTouchPoints"));
        };

        const QVariant before = touchPointsOfNewEngine();
        QCOMPARE(before.typeId(), int(QMetaType::Int));
        const std::unique_ptr<QPointingDevice> touchScreen(QTest::createTouchDevice());
        QVERIFY(touchScreen->maximumPoints() > before.toInt());
        QCOMPARE(touchPointsOfNewEngine().toInt(), touchScreen->maximumPoints());
    }

    void enginesShareTheSpy()
    {
        TambleClientControlModule module;
        QQmlEngine engines[2];
        QObject *spies[2] = {};
        for (int i = 0; i < 2; ++i) {
            module.initializeEngine(&engines[i], Uri);
            const auto object = objectFrom(
                engines[i],
                "import QtQml\nimport TambleClient.Control 1.0\nQtObject { property QtObject spy: RMouseEventSpy }");
            QVERIFY(object);
            spies[i] = object->property("spy").value<QObject *>();
        }
        QCOMPARE(spies[0], RMouseEventSpy::instance());
        QCOMPARE(spies[1], RMouseEventSpy::instance());
        QCOMPARE(RMouseEventSpy::instance()->parent(), nullptr);
        QVERIFY(engines[0].imageProvider(QStringLiteral("tamble")) !=
                engines[1].imageProvider(QStringLiteral("tamble")));
    }

    void metaTypesAreKnown()
    {
        for (const char *name : {"QMouseEvent*", "QHash<QUuid,QPointF>", "QHash<QUuid,QRectF>"})
            QVERIFY2(QMetaType::fromName(name).isValid(), name);
    }

    void noQmldirWithinReach()
    {
        // It would make the engine load the plugin on top of a host's own registration.
        QVERIFY(!QFile::exists(QStringLiteral(":/TambleClient")));
        QVERIFY(!QFile::exists(QStringLiteral(":/qt/qml/TambleClient")));
        QVERIFY(QFile::exists(QStringLiteral(":/qml/RTheme/RTheme.qml")));
    }

    void resourcesAreCompressedWithZlib()
    {
        QStringList others;
        for (const char *folder : {":/asset", ":/icons", ":/qml", ":/shaders", ":/style", ":/tamble-module"}) {
            QDirIterator files(QString::fromLatin1(folder), QDir::Files, QDirIterator::Subdirectories);
            while (files.hasNext()) {
                if (QResource(files.next()).compressionAlgorithm() == QResource::ZstdCompression)
                    others << files.filePath();
            }
        }
        QCOMPARE(others, QStringList());
        QCOMPARE(QResource(QStringLiteral(":/style/tamble.light.style")).compressionAlgorithm(),
                 QResource::ZlibCompression);
    }

    void interfaceFontIsSubstituted()
    {
        QFont font(QStringLiteral("Brack Office Sans"));
        QCOMPARE(QFontInfo(font).family(), QStringLiteral("Roboto"));
        font.setBold(true);
        QVERIFY(QFontInfo(font).bold());
    }

    void enginesComeAndGo()
    {
        // Qt's own caches grow for some three hundred engines, and then come and go in steps of 40 KB.
        constexpr int warmUp = 400;
        constexpr int rounds = 200;
        for (int i = 0; i < warmUp; ++i)
            useOneEngine();
        const size_t before = allocatedBytes();
        for (int i = 0; i < rounds; ++i)
            useOneEngine();
        const size_t after = allocatedBytes();
        // An engine that left a type, a provider or its rules behind would cost hundreds of bytes each time.
        const double growthPerEngine = (double(after) - double(before)) / rounds;
        QVERIFY2(growthPerEngine < 250, qPrintable(QStringLiteral("%1 bytes per engine").arg(growthPerEngine)));
    }
};

template struct TestClass<tst_ModuleFrame>;
#include "tst_ModuleFrame.moc"
