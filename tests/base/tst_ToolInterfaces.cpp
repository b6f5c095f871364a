#include "support/Rows.h"
#include "support/SeenPage.h"
#include "support/TestProgram.h"

#include <QtGui/QAccessible>
#include <QtQml/QJSValue>

using namespace tamble::client;

/// Assistive tools set the values of faders, parameters and plain handles.
class tst_ToolInterfaces : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void toolsEditValues_data()
    {
        const Rows<QByteArray, QVariant, QStringList, double> row;
        const QByteArray fader =
            "RFader { objectName: 'item'; value: root.device; onValueEdited: v => root.log.push('edited ' "
            "+ v); onValueCommitted: v => root.log.push('committed ' + v);";
        row("fader", fader + "}", QVariant(-12.3), QStringList({"edited -12.3", "committed -12.3"}), -12.3);
        row("fader, too loud", fader + "}", QVariant(99.0), QStringList({"edited 10", "committed 10"}), 10.0);
        row("fader, the same", fader + "}", QVariant(-20.0), {}, -20.0);
        row("fader, no number", fader + "}", QVariant(qQNaN()), {}, -20.0);
        row("fader, read-only", fader + "readOnly: true }", QVariant(-12.0), {}, -20.0);

        const QByteArray panel =
            "RLimiter { width: 280; height: 280; threshold: root.device; onThresholdEdited: v => "
            "root.log.push('edited ' + v); onThresholdCommitted: v => root.log.push('committed ' + v);"
            "Component.onCompleted: root.seen = 'threshold';";
        row("parameter", panel + "}", QVariant(-12.3), QStringList({"edited -12.3", "committed -12.3"}), -12.3);
        row("parameter, too loud", panel + "}", QVariant(99.0), QStringList({"edited 20", "committed 20"}), 20.0);
        row("parameter, read-only", panel + "readOnly: true }", QVariant(-12.0), {}, -20.0);

        const QByteArray handle =
            "RDragHandler { objectName: 'item'; xValue: root.device; yValue: 5; onDragged: (x, y) => "
            "root.log.push('edited ' + x + ' ' + y); onDragFinished: (x, y) => root.log.push('committed "
            "' + x + ' ' + y);";
        row("handle", handle + "}", QVariant(-99.0), QStringList({"edited -60 5", "committed -60 5"}), -60.0);
        row("handle, upright", handle + "xEnabled: false }", QVariant(7.0),
            QStringList({"edited -20 7", "committed -20 7"}), 7.0);
    }

    void toolsEditValues()
    {
        const auto &[content, wanted, log, value] = Rows<QByteArray, QVariant, QStringList, double>::current();
        const SeenPage page(
            "id: root; property real device: -20; property var log: []; property string seen: 'item'\n" + content);
        QVERIFY(page.root);
        auto *item = page.root->findChild<QQuickItem *>(page.root->property("seen").toString());
        QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(item);
        QVERIFY(seen && seen->valueInterface());
        seen->valueInterface()->setCurrentValue(wanted);
        QCOMPARE(page.root->property("log").value<QJSValue>().toVariant().toStringList(), log);
        QCOMPARE(seen->valueInterface()->currentValue().toDouble(), value);
        // The page's binding lives, and what it brings is no edit.
        page.root->setProperty("log", QVariant::fromValue(QStringList()));
        page.root->setProperty("device", -30.0);
        if (!content.contains("xEnabled"))
            QTRY_COMPARE(item->property("value").toDouble(), -30.0);
        QVERIFY(page.root->property("log").toStringList().isEmpty());
    }
};

template struct TestClass<tst_ToolInterfaces>;
#include "tst_ToolInterfaces.moc"
