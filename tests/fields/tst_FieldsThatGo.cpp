#include "support/Rows.h"
#include "support/SeenPage.h"
#include "support/TestProgram.h"

#include <QtTest/QSignalSpy>

using namespace tamble::client;

/// Fields that are destroyed while something is typed into them.
class tst_FieldsThatGo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_page.root);
        m_page.window.resize(400, 400);
        m_page.window.show();
        QVERIFY(QTest::qWaitForWindowActive(&m_page.window));
    }

    // They lose the focus on the way, which is no wish to enter the text.
    void enterNothing_data()
    {
        const auto row = rowsOf([this](const QString &declaration, const char *edited) {
            QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
            auto field = m_page.make(declaration);
            QVERIFY(field);
            const QSignalSpy edits(field.get(), edited);
            field->forceActiveFocus(Qt::TabFocusReason);
            QTest::keyClick(&m_page.window, Qt::Key_5);
            field.reset();
            QCOMPARE(edits.count(), 0);
        });
        row("text field", "RTextField { value: 'x' }", SIGNAL(valueEdited(QVariant)));
        row("text area", "RTextArea { value: 'x'; focus: true }", SIGNAL(valueEdited(QVariant)));
        row("number field", "RNumberTextField { value: 1 }", SIGNAL(valueEdited(QVariant)));
        row("spin box", "RSpinBox { label: 'Delay'; value: 1 }", SIGNAL(valueEdited(double)));
        row("combo box", "RComboBox { label: 'Input'; editable: true; model: ['5', '6']; value: '6' }",
            SIGNAL(accepted()));
    }
    void enterNothing() { checkRow(); }

    void cellThatIsEdited()
    {
        auto cell = m_page.make(QStringLiteral("RCellTextField { value: 'x' }"));
        QMetaObject::invokeMethod(cell.get(), "edit");
        QVERIFY(cell->property("editing").toBool());
        const QPointer<QQuickItem> control = cell->property("control").value<QQuickItem *>();
        cell.reset();
        QVERIFY(!control);
    }

private:
    SeenPage m_page{QByteArray()};
};

template struct TestClass<tst_FieldsThatGo>;
#include "tst_FieldsThatGo.moc"
