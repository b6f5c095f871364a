#include "tst_RFaderBase.h"

#include "TambleClientControlModule.h"
#include "fader/RFaderBase.h"

#include <QtGui/QAccessible>
#include <QtGui/private/qguiapplication_p.h>
#include <QtQml/QJSValue>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickWindow>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <memory>

using namespace tamble::client;

namespace {

/// A fader of 200 pixels of travel for 100 dB in a window that is never shown.
struct Fixture
{
    QQuickWindow window;
    RFaderBase *fader = new RFaderBase(window.contentItem());

    Fixture()
    {
        window.resize(100, 248);
        fader->setSize({56, 248});
        fader->setFrom(-90);
        fader->setValue(-20);
    }

    void send(QEvent::Type type, double y, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        const Qt::MouseButtons buttons = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, {28, y}, {28, y}, button, buttons, modifiers);
        QCoreApplication::sendEvent(&window, &event);
    }
};

/// A page with the module, seen by a screen reader.
struct SeenPage
{
    QQmlEngine engine;
    QQuickWindow window;
    std::unique_ptr<QObject> root;

    explicit SeenPage(const QByteArray &content)
    {
        TambleClientControlModule module;
        module.registerTypes("TambleClient.Control");
        module.initializeEngine(&engine, "TambleClient.Control");
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(true);
        QQmlComponent component(&engine);
        component.setData("import QtQuick\nimport TambleClient.Control 1.0\n"
                          "Item { RThemeSelector { themeComponent: Component { RTheme {} } }\n"
                          "RStyleEngineSetup { engine.defaultStyleSheetSource: 'qrc:/style/tamble.dark.style' }\n" +
                              content + "}",
                          QUrl());
        root.reset(component.create());
        if (root)
            qobject_cast<QQuickItem *>(root.get())->setParentItem(window.contentItem());
        else
            qWarning() << component.errorString();
    }
};

} // namespace

void tst_RFaderBase::fineDrag()
{
    Fixture test;
    test.send(QEvent::MouseButtonPress, 200);
    test.send(QEvent::MouseMove, 190);
    QCOMPARE(test.fader->value(), -15.0);
    test.send(QEvent::MouseMove, 186, Qt::ShiftModifier); // 4 pixels are 2 dB, a tenth of them 0.2
    QCOMPARE(test.fader->value(), -14.8);
    test.send(QEvent::MouseMove, 170, Qt::ShiftModifier);
    QCOMPARE(test.fader->value(), -14.0);
    test.send(QEvent::MouseMove, 168);
    QCOMPARE(test.fader->value(), -13.0);
    const QSignalSpy committed(test.fader, &RFaderBase::valueCommitted);
    test.send(QEvent::MouseButtonRelease, 168);
    QCOMPARE(committed.count(), 1);
}

void tst_RFaderBase::fineDragIgnoresDetents()
{
    Fixture test;
    test.fader->setProperty("detents", QVariant::fromValue(QList<qreal>{-15.0}));
    test.send(QEvent::MouseButtonPress, 200);
    test.send(QEvent::MouseMove, 188);
    QCOMPARE(test.fader->value(), -15.0);
    test.send(QEvent::MouseMove, 184, Qt::ShiftModifier);
    QCOMPARE(test.fader->value(), -14.8);
    test.send(QEvent::MouseButtonRelease, 184, Qt::ShiftModifier);
}

void tst_RFaderBase::accessible()
{
    const SeenPage page("RFader { label: 'Main'; value: -20 }");
    QVERIFY(page.root);
    auto *fader = page.root->findChild<RFaderBase *>();

    QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(fader);
    QVERIFY(seen);
    QCOMPARE(seen->role(), QAccessible::Slider);
    QCOMPARE(seen->text(QAccessible::Name), QStringLiteral("Main"));
    QCOMPARE(seen->text(QAccessible::Description), QStringLiteral("-20.0\u00a0dB"));
    QCOMPARE(seen->valueInterface()->minimumValue().toDouble(), -80.0);
    QCOMPARE(seen->valueInterface()->maximumValue().toDouble(), 10.0);
    fader->setProperty("consistent", false);
    fader->setProperty("confirmed", false);
    fader->setReadOnly(true);
    fader->setValue(-80);
    QCOMPARE(seen->text(QAccessible::Description), QStringLiteral("\u2212\u221e, mixed, not confirmed, read only"));

    const QSignalSpy edited(fader, &RFaderBase::valueEdited);
    seen->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
    QCOMPARE(fader->value(), -80.0);
    fader->setReadOnly(false);
    seen->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
    QCOMPARE(fader->value(), -79.5);
    QCOMPARE(edited.count(), 1);
}

void tst_RFaderBase::toolsEditValues_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QVariant>("wanted");
    QTest::addColumn<QStringList>("log");
    QTest::addColumn<double>("value");

    const QByteArray fader =
        "RFader { objectName: 'item'; value: root.device; onValueEdited: v => root.log.push('edited ' "
        "+ v); onValueCommitted: v => root.log.push('committed ' + v);";
    QTest::newRow("fader") << fader + "}" << QVariant(-12.3) << QStringList({"edited -12.3", "committed -12.3"})
                           << -12.3;
    QTest::newRow("fader, too loud") << fader + "}" << QVariant(99.0) << QStringList({"edited 10", "committed 10"})
                                     << 10.0;
    QTest::newRow("fader, the same") << fader + "}" << QVariant(-20.0) << QStringList() << -20.0;
    QTest::newRow("fader, no number") << fader + "}" << QVariant(qQNaN()) << QStringList() << -20.0;
    QTest::newRow("fader, read-only") << fader + "readOnly: true }" << QVariant(-12.0) << QStringList() << -20.0;

    const QByteArray panel = "RLimiter { width: 280; height: 280; threshold: root.device; onThresholdEdited: v => "
                             "root.log.push('edited ' + v); onThresholdCommitted: v => root.log.push('committed ' + v);"
                             "Component.onCompleted: root.seen = 'threshold';";
    QTest::newRow("parameter") << panel + "}" << QVariant(-12.3) << QStringList({"edited -12.3", "committed -12.3"})
                               << -12.3;
    QTest::newRow("parameter, too loud") << panel + "}" << QVariant(99.0) << QStringList({"edited 20", "committed 20"})
                                         << 20.0;
    QTest::newRow("parameter, read-only") << panel + "readOnly: true }" << QVariant(-12.0) << QStringList() << -20.0;

    const QByteArray handle =
        "RDragHandler { objectName: 'item'; xValue: root.device; yValue: 5; onDragged: (x, y) => "
        "root.log.push('edited ' + x + ' ' + y); onDragFinished: (x, y) => root.log.push('committed "
        "' + x + ' ' + y);";
    QTest::newRow("handle") << handle + "}" << QVariant(-99.0) << QStringList({"edited -60 5", "committed -60 5"})
                            << -60.0;
    QTest::newRow("handle, upright") << handle + "xEnabled: false }" << QVariant(7.0)
                                     << QStringList({"edited -20 7", "committed -20 7"}) << 7.0;
}

void tst_RFaderBase::toolsEditValues()
{
    QFETCH(QByteArray, content);
    QFETCH(QVariant, wanted);
    QFETCH(double, value);
    const SeenPage page("id: root; property real device: -20; property var log: []; property string seen: 'item'\n" +
                        content);
    QVERIFY(page.root);
    auto *item = page.root->findChild<QQuickItem *>(page.root->property("seen").toString());
    QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(item);
    QVERIFY(seen && seen->valueInterface());
    seen->valueInterface()->setCurrentValue(wanted);
    QTEST(page.root->property("log").value<QJSValue>().toVariant().toStringList(), "log");
    QCOMPARE(seen->valueInterface()->currentValue().toDouble(), value);
    // The page's binding lives, and what it brings is no edit.
    page.root->setProperty("log", QVariant::fromValue(QStringList()));
    page.root->setProperty("device", -30.0);
    if (!content.contains("xEnabled"))
        QTRY_COMPARE(item->property("value").toDouble(), -30.0);
    QVERIFY(page.root->property("log").toStringList().isEmpty());
}
