#include "support/SeenPage.h"
#include "support/TestProgram.h"

#include <QtCore/QObject>
#include <QtGui/QAccessible>
#include <QtQml/QJSValue>
#include <QtTest/QTest>

using namespace tamble::client;

/// Assistive tools set the values of faders, parameters and plain handles.
class tst_ValueRequests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void toolsEditValues_data();
    void toolsEditValues();
};

void tst_ValueRequests::toolsEditValues_data()
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

void tst_ValueRequests::toolsEditValues()
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

template struct TestClass<tst_ValueRequests>;
#include "tst_ValueRequests.moc"
