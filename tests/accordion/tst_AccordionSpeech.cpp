#include "support/Rows.h"
#include "support/SeenPage.h"
#include "support/TestProgram.h"

#include <QtGui/QAccessible>

using namespace tamble::client;
using namespace Qt::StringLiterals;

/// What a screen reader hears of headers and captions.
class tst_AccordionSpeech : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void headings_data()
    {
        const auto row = rowsOf([](const QString &body, const QString &name, const QString &description) {
            SeenPage page("RAccordion { " + body.toUtf8() + "}");
            QVERIFY(page.root);
            auto *item = page.root->findChild<QQuickItem *>(u"seen"_s);
            QVERIFY(item);
            if (auto *header = item->property("header").value<QQuickItem *>())
                item = header;
            QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(item);
            QVERIFY(seen);
            QCOMPARE(seen->role(), QAccessible::Button);
            QCOMPARE(seen->text(QAccessible::Name), name);
            QCOMPARE(seen->text(QAccessible::Description), description);
            QCOMPARE(bool(seen->state().expanded), description == u"expanded"_s);
            if (description.isEmpty())
                return;
            seen->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
            QCOMPARE(seen->text(QAccessible::Description),
                     description == u"expanded"_s ? u"collapsed"_s : u"expanded"_s);
        });
        row("closed", u"RAccordionItem { objectName: 'seen'; title: 'Aux & Mix' }"_s, u"Aux & Mix"_s, u"collapsed"_s);
        row("open", u"RAccordionItem { objectName: 'seen'; title: 'Aux'; expanded: true }"_s, u"Aux"_s, u"expanded"_s);
        row("fixed", u"RAccordionItem { objectName: 'seen'; title: 'Aux'; expandable: false }"_s, u"Aux"_s, {});
        row("caption", u"RAccordionSectionHeader { objectName: 'seen'; title: 'Inputs' }"_s, u"Inputs"_s, {});
        row("collapsed caption",
            u"RAccordionSectionHeader { objectName: 'seen'; title: 'Inputs'; collapsible: true; collapsed: true }"_s,
            u"Inputs"_s, u"collapsed"_s);
    }
    void headings() { checkRow(); }
};

template struct TestClass<tst_AccordionSpeech>;

#include "tst_AccordionSpeech.moc"
