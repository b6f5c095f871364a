#include "support/Rows.h"
#include "support/SeenPage.h"
#include "support/TestProgram.h"

#include <QtGui/QAccessible>

using namespace tamble::client;
using namespace Qt::StringLiterals;

/// What a screen reader hears of a table.
class tst_CellSpeech : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cells_data()
    {
        const auto row =
            rowsOf([](const QString &body, QAccessible::Role role, const QString &name, const QString &description) {
                SeenPage page("RCellContainer { objectName: 'table'; title: 'Channels'; RCellText { text: 'first' } " +
                              body.toUtf8() + "}");
                QVERIFY(page.root);
                QAccessibleInterface *table =
                    QAccessible::queryAccessibleInterface(page.root->findChild<QQuickItem *>(u"table"_s));
                QVERIFY(table);
                QCOMPARE(table->role(), QAccessible::Table);
                QCOMPARE(table->text(QAccessible::Name), u"Channels"_s);
                auto *item = page.root->findChild<QQuickItem *>(u"cell"_s);
                QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(item);
                QVERIFY(seen);
                QCOMPARE(seen->role(), role);
                QCOMPARE(seen->text(QAccessible::Name), name);
                QCOMPARE(seen->text(QAccessible::Description), description);
            });
        row("text", u"RCellText { objectName: 'cell'; row: 1; column: 2; text: '-6 dB' }"_s, QAccessible::Cell,
            u"-6 dB"_s, u"row 2, column 3"_s);
        row("named text, mixed",
            u"RCellText { objectName: 'cell'; row: 1; label: 'Gain'; text: '-6'; consistent: false }"_s,
            QAccessible::Cell, u"Gain"_s, u"row 2, column 1, -6, mixed"_s);
        row("the button of a cell has the focus",
            u"RCellButton { row: 1; label: 'Input 1 to output 2'; Component.onCompleted: control.objectName = 'cell' }"_s,
            QAccessible::Button, u"Input 1 to output 2"_s, QString());
        row("field", u"RCellTextField { row: 1; label: 'Name'; Component.onCompleted: control.objectName = 'cell' }"_s,
            QAccessible::EditableText, u"Name"_s, QString());
    }
    void cells() { checkRow(); }
};

template struct TestClass<tst_CellSpeech>;

#include "tst_CellSpeech.moc"
