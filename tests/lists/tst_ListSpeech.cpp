#include "support/Rows.h"
#include "support/SeenPage.h"
#include "support/TestProgram.h"

#include <QtGui/QAccessible>

using namespace tamble::client;
using namespace Qt::StringLiterals;

/// What a screen reader hears of a list.
class tst_ListSpeech : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void rows_data()
    {
        const auto row = rowsOf([](const QString &body, int index, const QString &name, bool isSelected) {
            SeenPage page{{}};
            const auto list = page.make(u"RListView { width: 200; height: 200; label: 'Devices'; "
                                        "selectionMode: RListView.Multiple; selectedIndexes: [1]; "_s +
                                        body + u"}"_s);
            QVERIFY(list);
            QMetaObject::invokeMethod(list.get(), "forceLayout");
            QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(list.get());
            QVERIFY(seen);
            QCOMPARE(seen->role(), QAccessible::List);
            QCOMPARE(seen->text(QAccessible::Name), u"Devices"_s);
            QVERIFY(seen->state().multiSelectable);
            QAccessibleInterface *item = seen->child(index);
            QVERIFY(item);
            QCOMPARE(item->role(), QAccessible::ListItem);
            QCOMPARE(item->text(QAccessible::Name), name);
            QVERIFY(item->state().selectable);
            QCOMPARE(bool(item->state().selected), isSelected);

            item->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
            QCOMPARE(bool(item->state().selected), !isSelected);
        });
        const QString texts = u"model: ['Left', 'Right']"_s;
        row("not selected", texts, 0, u"Left"_s, false);
        row("selected", texts, 1, u"Right"_s, true);
    }
    void rows() { checkRow(); }

    void rowOfThePage()
    {
        SeenPage page{{}};
        const auto list = page.make(
            u"RListView { width: 200; height: 200; label: 'Devices'; model: 2; selectedIndexes: [0]\n"
            "delegate: Item { width: 99; height: 32; Accessible.role: Accessible.ListItem; Accessible.name: 'x' } }"_s);
        QVERIFY(list);
        QMetaObject::invokeMethod(list.get(), "forceLayout");
        QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(list.get());
        QVERIFY(seen && seen->childCount() >= 2);
        QVERIFY(seen->child(0)->state().selected);
        QVERIFY(!seen->child(1)->state().selected);
    }
};

template struct TestClass<tst_ListSpeech>;

#include "tst_ListSpeech.moc"
