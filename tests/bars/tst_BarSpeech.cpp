#include "support/Rows.h"
#include "support/SeenPage.h"
#include "support/TestProgram.h"

#include <QtGui/QAccessible>

using namespace tamble::client;
using namespace Qt::StringLiterals;

/// What a screen reader hears of bars, progress and waiting.
class tst_BarSpeech : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void items_data()
    {
        const auto row =
            rowsOf([](const QString &body, QAccessible::Role role, const QString &name, const QString &description) {
                SeenPage page({});
                const auto item = page.make(body);
                QVERIFY(item);
                QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(item.get());
                QVERIFY(seen);
                QCOMPARE(seen->role(), role);
                QCOMPARE(seen->text(QAccessible::Name), name);
                QCOMPARE(seen->text(QAccessible::Description), description);
            });
        row("bar", u"RAppBar { title: 'Arena' }"_s, QAccessible::ToolBar, u"Arena"_s, QString());
        row("bar without a title", u"RAppBar {}"_s, QAccessible::ToolBar, u"Main bar"_s, QString());
        row("command", u"RAppBarButton { label: 'Undo'; iconKey: 'undo'; badge: '12' }"_s, QAccessible::Button,
            u"Undo"_s, u"12"_s);
        row("page", u"RAppBarNavButton { text: '&Mixer'; iconKey: 'mixer'; iconOnly: true; badge: '1234' }"_s,
            QAccessible::PageTab, u"Mixer"_s, u"1234"_s);
        row("sub-page", u"RAppBarSubNavButton { text: 'Inputs' }"_s, QAccessible::PageTab, u"Inputs"_s, QString());
        row("state", u"RAppBarStateButton { text: 'MUTE ALL'; subText: 'Hall'; flashing: true; consistent: false }"_s,
            QAccessible::Button, u"MUTE ALL"_s, u"Hall, mixed, attention"_s);
        row("progress", u"RProgressBar { label: 'Firmware'; value: 0.459; text: '%p of 100' }"_s,
            QAccessible::ProgressBar, u"Firmware"_s, u"45 %, 45 of 100"_s);
        row("failure", u"RProgressBar { indeterminate: true; failed: true }"_s, QAccessible::ProgressBar, u"progress"_s,
            u"failed"_s);
        row("waiting", u"RLoadingAnimation { text: 'Searching' }"_s, QAccessible::Indicator, u"loading"_s,
            u"Searching"_s);
        row("title", u"RSectionHeader { text: 'Inputs' }"_s, QAccessible::Heading, u"Inputs"_s, QString());
    }
    void items() { checkRow(); }

    void selectedPage()
    {
        SeenPage page({});
        const auto item = page.make(u"RAppBarNavButton { text: 'Mixer'; selected: true }"_s);
        QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(item.get());
        QVERIFY(seen && seen->state().selectable && seen->state().selected);
        item->setProperty("selected", false);
        QVERIFY(!seen->state().selected);
    }

    void pressedTwice()
    {
        SeenPage page({});
        const auto item = page.make(u"RAppBarStateButton { text: 'POWER'; pressTwice: true; selectable: true }"_s);
        QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(item.get());
        QVERIFY(seen && seen->actionInterface());
        seen->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(seen->text(QAccessible::Description), u"press again"_s);
        QVERIFY(!item->property("selected").toBool());
        seen->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QVERIFY(item->property("selected").toBool());
    }
};

template struct TestClass<tst_BarSpeech>;

#include "tst_BarSpeech.moc"
