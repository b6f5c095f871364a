#include "support/Rows.h"
#include "support/SeenPage.h"
#include "support/TestProgram.h"

#include <QtGui/QAccessible>

#include <memory>

using namespace tamble::client;

/// What assistive tools see of fields.
class tst_FieldAccessibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_page.root); }

    void seen_data()
    {
        const Rows<QString, int, QString, QString> row;
        row("field", "RTextField { label: 'Name'; value: 'Hall' }", QAccessible::EditableText, "Name", "");
        row("named by its hint", "RTextField { placeholderText: 'Search' }", QAccessible::EditableText, "Search", "");
        row("described by its hint", "RTextField { label: 'Name'; placeholderText: 'Hall' }", QAccessible::EditableText,
            "Name", "Hall");
        row("described by the page",
            "RTextField { label: 'Name'; placeholderText: 'Hall'; Accessible.description: 'As on the door' }",
            QAccessible::EditableText, "Name", "As on the door");
        row("described before the hint",
            "RTextField { Accessible.description: 'As on the door'; label: 'Name'; placeholderText: 'Hall' }",
            QAccessible::EditableText, "Name", "As on the door");
        row("mixed", "RTextField { label: 'Name'; value: 'Hall'; consistent: false; confirmed: false }",
            QAccessible::EditableText, "Name", "mixed, not confirmed");
        row("invalid", "RTextField { label: 'Name'; errorText: 'in use' }", QAccessible::EditableText, "Name",
            "invalid: in use");
        row("named by the page", "RTextField { label: 'Name'; Accessible.name: 'Host' }", QAccessible::EditableText,
            "Host", "");
        row("named by a label", "RTextField { id: host; RLabel { text: '&Host'; buddy: host } }",
            QAccessible::EditableText, "Host", "");
        row("spin box", "RSpinBox { label: 'Delay'; value: 5; suffix: 'ms' }", QAccessible::SpinBox, "Delay", "5 ms");
        row("mixed spin box", "RSpinBox { label: 'Delay'; consistent: false }", QAccessible::SpinBox, "Delay", "mixed");
    }

    void seen()
    {
        const auto &[body, role, name, description] = Rows<QString, int, QString, QString>::current();
        const auto field = m_page.make(body);
        QVERIFY(field);
        QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(field.get());
        QVERIFY(seen);
        QCOMPARE(int(seen->role()), role);
        QCOMPARE(seen->text(QAccessible::Name), name);
        QCOMPARE(seen->text(QAccessible::Description), description);
        QVERIFY(seen->state().focusable);
    }

    void editorOfASpinBoxSpeaksForIt()
    {
        const auto box = m_page.make(QStringLiteral("RSpinBox { label: 'Delay'; value: 5 }"));
        QObject *editor = box->property("edit").value<QObject *>()->property("editor").value<QObject *>();
        QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(editor);
        QCOMPARE(seen->text(QAccessible::Name), QStringLiteral("Delay"));
        QCOMPARE(seen->text(QAccessible::Description), QStringLiteral("5"));
    }

    void spinBoxIsSetByTools()
    {
        const auto box = m_page.make(QStringLiteral("RSpinBox { label: 'Delay'; value: 5; to: 20; stepSize: 2 }"));
        const QSignalSpy edited(box.get(), SIGNAL(valueEdited(double)));
        QAccessibleValueInterface *value = QAccessible::queryAccessibleInterface(box.get())->valueInterface();
        QVERIFY(value);
        QCOMPARE(value->minimumValue().toDouble(), 0.0);
        QCOMPARE(value->maximumValue().toDouble(), 20.0);
        QCOMPARE(value->currentValue().toDouble(), 5.0);
        value->setCurrentValue(7);
        QCOMPARE(box->property("value").toDouble(), 7.0);
        value->setCurrentValue(21);
        value->setCurrentValue(QStringLiteral("loud"));
        QCOMPARE(box->property("value").toDouble(), 7.0);
        QCOMPARE(edited.count(), 1);
    }

private:
    SeenPage m_page{{}};
};

template struct TestClass<tst_FieldAccessibility>;
#include "tst_FieldAccessibility.moc"
