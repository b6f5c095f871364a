#include "fields/FieldMenu.h"
#include "menus/RMenuBase.h"
#include "support/Rows.h"
#include "support/SeenPage.h"
#include "support/TestProgram.h"

#include <QtGui/QClipboard>
#include <QtTest/QSignalSpy>

using namespace tamble::client;

namespace {

QStringList enabledEntries(const RMenuBase &menu)
{
    QStringList texts;
    for (int i = 0; i < menu.count(); ++i) {
        const QQuickItem *row = menu.itemAt(i);
        if (row->isEnabled() && row->property("text").isValid())
            texts.append(row->property("text").toString());
    }
    return texts;
}

void choose(const RMenuBase &menu, const QString &text)
{
    for (int i = 0; i < menu.count(); ++i) {
        if (menu.itemAt(i)->property("text").toString() == text) {
            QMetaObject::invokeMethod(menu.itemAt(i), "clicked");
            return;
        }
    }
    QFAIL(qPrintable(text));
}

} // namespace

/// The context menu of text fields.
class tst_FieldMenu : public QObject
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
    void init()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
        QGuiApplication::clipboard()->setText(QStringLiteral("pasted"));
    }

    void entries_data()
    {
        const auto row = rowsOf([this](const QString &declaration, const QString &texts) {
            const auto editor = m_page.make(declaration);
            openFieldMenu(editor.get());
            const RMenuBase *menu = editor->findChild<RMenuBase *>();
            QVERIFY(menu && menu->isOpened());
            QCOMPARE(enabledEntries(*menu).join(u' '), texts);
        });
        row("empty", "TextInput {}", "Paste");
        row("text", "TextInput { text: 'abc' }", "Paste Select all");
        row("selection", "TextInput { text: 'abc'; Component.onCompleted: selectAll() }",
            "Cut Copy Paste Delete Select all");
        row("typed", "TextInput { Component.onCompleted: insert(0, 'abc') }", "Undo Paste Select all");
        row("read-only", "TextInput { text: 'abc'; readOnly: true; Component.onCompleted: selectAll() }",
            "Copy Select all");
        row("password", "TextInput { text: 'abc'; echoMode: TextInput.Password; Component.onCompleted: selectAll() }",
            "Paste Delete Select all");
        row("field", "RTextField { text: 'abc'; Component.onCompleted: selectAll() }",
            "Cut Copy Paste Delete Select all");
        row("lines", "TextEdit { text: 'abc'; Component.onCompleted: selectAll() }",
            "Cut Copy Paste Delete Select all");
    }
    void entries() { checkRow(); }

    void actions_data()
    {
        const auto row = rowsOf([this](const QString &text, const QString &clipboard) {
            for (const QString &type : {QStringLiteral("TextInput"), QStringLiteral("TextEdit")}) {
                QGuiApplication::clipboard()->setText(QStringLiteral("pasted"));
                const auto editor = m_page.make(
                    type +
                    QStringLiteral(" { text: 'abcdef'; Component.onCompleted: { insert(6, 'g'); select(1, 3) } }"));
                editor->forceActiveFocus();
                openFieldMenu(editor.get(), QPointF(5, 5));
                const QPointer<RMenuBase> menu = editor->findChild<RMenuBase *>();
                QCOMPARE(editor->property("selectedText").toString(), QStringLiteral("bc"));
                choose(*menu, QString::fromLatin1(QTest::currentDataTag()));
                QCOMPARE(editor->property("text").toString(), text);
                QCOMPARE(QGuiApplication::clipboard()->text(), clipboard);
                QVERIFY(editor->hasActiveFocus());
                QVERIFY(!editor->property("persistentSelection").toBool());
                QTRY_VERIFY(!menu);
            }
        });
        row("Undo", "abcdef", "pasted");
        row("Cut", "adefg", "bc");
        row("Copy", "abcdefg", "bc");
        row("Paste", "apasteddefg", "pasted");
        row("Delete", "adefg", "pasted");
    }
    void actions() { checkRow(); }

    void enteredTextIsThePagesToUndo()
    {
        const auto field = m_page.make(QStringLiteral("RTextField {}"));
        field->forceActiveFocus();
        const auto undoIsOffered = [&] {
            openFieldMenu(field.get());
            const RMenuBase *menu = field->findChild<RMenuBase *>();
            const bool isOffered = menu && enabledEntries(*menu).contains(u"Undo");
            delete menu;
            return isOffered;
        };
        QTest::keyClick(&m_page.window, Qt::Key_A);
        QVERIFY(undoIsOffered());
        QTest::keyClick(&m_page.window, Qt::Key_Return);
        QVERIFY(!undoIsOffered());
    }

    void deletingIsAnEdit()
    {
        const auto editor =
            m_page.make(QStringLiteral("TextInput { text: 'abc'; Component.onCompleted: selectAll() }"));
        editor->forceActiveFocus();
        QSignalSpy edits(editor.get(), SIGNAL(textEdited()));
        openFieldMenu(editor.get());
        choose(*editor->findChild<RMenuBase *>(), QStringLiteral("Delete"));
        QCOMPARE(edits.count(), 1);
    }

    void editorsThatGo()
    {
        auto editor = m_page.make(QStringLiteral("TextInput {}"));
        connect(editor.get(), SIGNAL(textChanged()), editor.get(), SLOT(deleteLater()));
        openFieldMenu(editor.get());
        const QPointer<QQuickItem> watched = editor.release();
        choose(*watched->findChild<RMenuBase *>(), QStringLiteral("Paste"));
        QTRY_VERIFY(!watched);
        editor = m_page.make(QStringLiteral("TextInput {}"));
        openFieldMenu(editor.get());
        editor.reset();
        openFieldMenu(nullptr);
        const auto homeless = m_page.make(QStringLiteral("TextInput {}"));
        homeless->setParentItem(nullptr);
        openFieldMenu(homeless.get());
        QTRY_VERIFY(!homeless->findChild<RMenuBase *>());
    }

private:
    SeenPage m_page{QByteArray()};
};

template struct TestClass<tst_FieldMenu>;
#include "tst_FieldMenu.moc"
