#include "TambleClientControlModule.h"
#include "support/AllocationCount.h"
#include "support/QmlText.h"
#include "support/TestProgram.h"

#include <QtCore/QCoreApplication>

using namespace tamble::client;

/// Views that come and go leave nothing behind. Around them stands what a client shows all the time, 3 MB of controls:
/// Qt's engine itself keeps some 40 bytes of a round for what bindings have made, its own plain items included.
class tst_ViewHeap : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void forthAndBack()
    {
        QQmlEngine engine;
        TambleClientControlModule module;
        module.registerTypes("TambleClient.Control");
        module.initializeEngine(&engine, "TambleClient.Control");
        const auto page = objectFrom(engine, R"(
            import QtQuick
            import TambleClient.Control 1.0
            Item {
                property alias container: container
                RThemeSelector { themeComponent: Component { RTheme {} } }
                RStyleEngineSetup { engine.defaultStyleSheetSource: 'qrc:/style/tamble.dark.style' }
                RViewContainer {
                    id: container
                    width: 400
                    height: 300
                    asynchronous: false
                    views: [{ key: 'first', component: first }, { key: 'second', component: second },
                            { key: 'kept', component: second, keepAlive: true }]
                }
                Repeater { model: 200; RButton { text: 'Mute' } }
                Component { id: first; Column { Repeater { model: 8; RButton { text: 'Mute' } } } }
                Component { id: second; Row { RTextField { value: 'Name' } RFader { value: -6 } } }
            })");
        QVERIFY(page);
        auto *container = page->property("container").value<QObject *>();

        constexpr int rounds = 1000;
        std::size_t afterFirstTenth = 0;
        for (int round = 0; round <= rounds; ++round) {
            for (const QString &key : {QStringLiteral("second"), QStringLiteral("kept"), QStringLiteral("first")})
                QMetaObject::invokeMethod(container, "show", Q_ARG(QString, key));
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QCoreApplication::processEvents();
            // Later versions of Qt leave for the next time what a collection has not come to.
            if (round % (rounds / 10) == 0)
                engine.collectGarbage();
            if (round == rounds / 10)
                afterFirstTenth = allocatedBytes();
        }
        QCOMPARE(container->property("currentKey").toString(), QStringLiteral("first"));
        const std::size_t atTheEnd = allocatedBytes();
        QVERIFY2(atTheEnd < afterFirstTenth + afterFirstTenth / 100,
                 qPrintable(QStringLiteral("from %1 to %2 bytes").arg(afterFirstTenth).arg(atTheEnd)));
    }
};

template struct TestClass<tst_ViewHeap>;

#include "tst_ViewHeap.moc"
