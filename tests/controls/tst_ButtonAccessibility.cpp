#include "base/Mnemonic.h"
#include "support/Rows.h"
#include "support/SeenPage.h"
#include "support/TestProgram.h"

#include <QtGui/QAccessible>
#include <QtQuick/private/qquickaccessibleattached_p.h>

#include <memory>

using namespace tamble::client;

namespace {

QString statesOf(const QAccessibleInterface &seen)
{
    const QAccessible::State state = seen.state();
    QStringList names;
    const auto add = [&names](bool isSet, const char *name) {
        if (isSet)
            names.append(QLatin1String(name));
    };
    add(state.focusable, "focusable");
    add(state.checkable, "checkable");
    add(state.checked, "checked");
    add(state.checkStateMixed, "mixed");
    add(state.selectable && state.selected, "chosen");
    add(state.disabled, "disabled");
    add(state.pressed, "pressed");
    return names.join(u' ');
}

} // namespace

/// What assistive tools see of buttons, and keys as no test in QML can send them.
class tst_ButtonAccessibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_page.root); }

    void init()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
        listen(true);
    }

    void mnemonics_data()
    {
        const auto row =
            rowsOf([](const QString &text, const QString &shown) { QCOMPARE(withoutMnemonic(text), shown); });
        row("none", "Mute", "Mute");
        row("digit", "Scene &2", "Scene 2");
        row("both", "&R&&D", "R&D");
        row("empty", "", "");
    }
    void mnemonics() { checkRow(); }

    void seen_data()
    {
        const Rows<QString, QString, QString, QString> row;
        row("selected", "RButton { text: 'Mute'; selected: true; down: true }", "Mute",
            "focusable checkable checked pressed", "");
        row("mixed", "RButton { text: 'Mute'; selected: true; consistent: false; enabled: false }", "Mute",
            "focusable checkable mixed disabled", "mixed");
        row("named by the page",
            "RButton { text: '1'; Accessible.name: 'Mute 1'; "
            "Accessible.description: 'of the left side' ; consistent: false }",
            "Mute 1", "focusable mixed", "of the left side");
        row("device's text", "RButton { converter: RValueConverter { value: '&R&D' } }", "&R&D", "focusable", "");
        row("icon", "RButtonIcon { label: 'Mute'; iconItem.key: 'mute'; activeFocusOnTab: false }", "Mute", "", "");
        row("switch", "RButtonSwitch { label: 'Power'; selectable: true; selected: true }", "Power",
            "focusable checkable checked", "");
        row("named by a label", "RButtonSwitch { id: power; RLabel { text: '&Power'; buddy: power } }", "Power",
            "focusable", "");
        row("tab", "RTabButton { text: 'Inputs'; selected: true; modified: true; badge: '3' }", "Inputs",
            "focusable checkable checked chosen", "modified, 3");
        row("asking", "RInconsistentButton { text: 'Mute'; consistent: false }", "Mute", "focusable mixed", "mixed");
        row("asking switch", "RInconsistentButtonSwitch { label: 'Power'; consistent: false }", "Power",
            "focusable mixed", "mixed");
    }

    void seen()
    {
        const auto &[body, name, states, description] = Rows<QString, QString, QString, QString>::current();
        for (const bool listening : {false, true}) {
            listen(listening);
            const auto button = make(body);
            QVERIFY(button);
            QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(button.get());
            QVERIFY(seen);
            QCOMPARE(seen->role(), seen->state().selectable ? QAccessible::PageTab : QAccessible::Button);
            QCOMPARE(seen->text(QAccessible::Name), name);
            QCOMPARE(statesOf(*seen), states);
            QCOMPARE(seen->text(QAccessible::Description), description);
            QCOMPARE(seen->rect().size(), QSize(int(button->width()), int(button->height())));
            QCOMPARE(seen->parent(), QAccessible::queryAccessibleInterface(&m_window));
        }
    }

    void nothingIsMadeUnasked()
    {
        static int interfaces = 0;
        listen(false);
        QAccessible::installFactory([](const QString &className, QObject *) -> QAccessibleInterface * {
            interfaces += className.endsWith(QStringLiteral("RButtonBase"));
            return nullptr;
        });
        const auto button = make(QStringLiteral("RButton { text: 'Mute'; selected: true; consistent: false }"));
        m_window.show();
        for (const char *property : {"visible", "enabled", "selected", "consistent", "selectable", "down"}) {
            button->setProperty(property, !button->property(property).toBool());
            button->setProperty(property, !button->property(property).toBool());
        }
        button->setProperty("text", QStringLiteral("Muted"));
        QCOMPARE(interfaces, 0);
    }

    void nothingIsMadePerButton()
    {
        for (const bool listening : {false, true}) {
            listen(listening);
            const auto button = make(QStringLiteral("RButton { text: 'Mute'; selectable: true; consistent: false }"));
            QVERIFY(QAccessible::queryAccessibleInterface(button.get()));
            QVERIFY(!qmlAttachedPropertiesObject<QQuickAccessibleAttached>(button.get(), false));
            const auto hidden = make(QStringLiteral("RButton { text: 'Mute'; Accessible.ignored: true }"));
            QCOMPARE(QAccessible::queryAccessibleInterface(&m_window)->childCount(), listening ? 1 : 0);
        }
    }

    void followsChanges()
    {
        const auto button = make(QStringLiteral("RButton { text: 'Mute'; selectable: true }"));
        QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(button.get());
        button->setProperty("selected", true);
        button->setProperty("text", QStringLiteral("&Muted"));
        button->setProperty("down", true);
        QVERIFY(seen->state().checked);
        QCOMPARE(seen->text(QAccessible::Name), QStringLiteral("Muted"));
        button->setProperty("consistent", false);
        QVERIFY(!seen->state().checked);
        QCOMPARE(seen->text(QAccessible::Description), QStringLiteral("mixed"));
    }

    void tellsChanges_data()
    {
        const Rows<QVariant, QList<int>> row;
        row("selected", true, {QAccessible::StateChanged});
        row("selectable", true, {QAccessible::StateChanged});
        row("consistent", false, {QAccessible::StateChanged, QAccessible::DescriptionChanged});
        row("text", QStringLiteral("Muted"), {QAccessible::NameChanged});
        row("literalText", true, {QAccessible::NameChanged});
    }

    void tellsChanges()
    {
        const auto &[value, events] = Rows<QVariant, QList<int>>::current();
        static QList<int> told;
        static QObject *teller = nullptr;
        for (const bool listening : {false, true}) {
            listen(listening);
            const auto button = make(QStringLiteral("RButton { text: '&Mute' }"));
            teller = button.get();
            told.clear();
            QAccessible::installUpdateHandler([](QAccessibleEvent *event) {
                if (event->object() == teller)
                    told.append(event->type());
            });
            button->setProperty(QTest::currentDataTag(), value);
            QAccessible::installUpdateHandler(nullptr);
            QCOMPARE(told, listening ? events : QList<int>());
        }
    }

    void askedWhileItGoes()
    {
        auto button = make(QStringLiteral("RButton { text: 'Mute'; consistent: false }"));
        static QAccessibleInterface *seen = nullptr;
        static QStringList answers;
        seen = QAccessible::queryAccessibleInterface(button.get());
        QAccessible::installUpdateHandler([](QAccessibleEvent *event) {
            if (event->type() == QAccessible::ObjectHide)
                answers.append(statesOf(*seen) + seen->text(QAccessible::Name) + seen->text(QAccessible::Description));
        });
        button.reset();
        QAccessible::installUpdateHandler(nullptr);
        QCOMPARE(answers.join(u'|'), QString());
    }

    void pressAction()
    {
        const auto button = make(QStringLiteral("RButton { text: 'Mute' }"));
        const QSignalSpy clicked(button.get(), SIGNAL(clicked()));
        QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(button.get());
        seen->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(clicked.count(), 1);
        button->setEnabled(false);
        seen->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(clicked.count(), 1);
    }

    void heldKeys_data()
    {
        const Rows<Qt::Key, Qt::KeyboardModifier, int> row;
        row("Space", Qt::Key_Space, Qt::NoModifier, 0);
        row("Enter", Qt::Key_Enter, Qt::NoModifier, 0);
        row("mnemonic", Qt::Key_M, Qt::AltModifier, 1);
    }

    void heldKeys()
    {
        const auto &[key, modifier, clicksWhileHeld] = Rows<Qt::Key, Qt::KeyboardModifier, int>::current();
        const auto button = make(QStringLiteral("RButtonIconLabel { text: '&Mute'; selectable: true }"));
        const QSignalSpy clicked(button.get(), SIGNAL(clicked()));
        const QSignalSpy edited(button.get(), SIGNAL(selectionEdited(bool)));
        QVERIFY(focus(*button));
        // As the window system sends them: a repetition is a release and a press.
        const auto send = [&](bool press, bool repeated) {
            QTest::simulateEvent(&m_window, press, key, modifier, QString(), repeated);
        };
        send(true, false);
        for (int i = 0; i < 2; ++i) {
            send(false, true);
            send(true, true);
        }
        QCOMPARE(clicked.count(), clicksWhileHeld);
        send(false, false);
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(edited.count(), 1);
    }

    void escapeTakesBackSpace()
    {
        const auto button = make(QStringLiteral("RButtonIconLabel { text: '&Mute'; selectable: true }"));
        const auto page = make(QStringLiteral("Item { id: page; property int escapes: 0\n"
                                              "Shortcut { sequence: 'Esc'; onActivated: page.escapes += 1 } }"));
        const QSignalSpy clicked(button.get(), SIGNAL(clicked()));
        const QSignalSpy edited(button.get(), SIGNAL(selectionEdited(bool)));
        const QSignalSpy canceled(button.get(), SIGNAL(canceled()));
        QVERIFY(focus(*button));
        const auto send = [&](bool press, Qt::Key key, bool repeated = false) {
            QTest::simulateEvent(&m_window, press, key, Qt::NoModifier, QString(), repeated);
        };
        send(true, Qt::Key_Space);
        QVERIFY(button->property("pressed").toBool());
        QTest::keyClick(&m_window, Qt::Key_Escape);
        QVERIFY(!button->property("pressed").toBool());
        send(false, Qt::Key_Space, true);
        send(true, Qt::Key_Space, true);
        send(false, Qt::Key_Space);
        QCOMPARE(clicked.count() + edited.count(), 0);
        QCOMPARE(canceled.count(), 1);
        QCOMPARE(page->property("escapes").toInt(), 0);
        QTest::keyClick(&m_window, Qt::Key_Escape);
        QCOMPARE(page->property("escapes").toInt(), 1);
    }

    void repetitionsPassedOffAsKeys()
    {
        const auto button = make(QStringLiteral("RButton { text: 'Mute' }"));
        const QSignalSpy clicked(button.get(), SIGNAL(clicked()));
        button->forceActiveFocus();
        const auto send = [this](QEvent::Type type, quint64 time) {
            QKeyEvent event(type, Qt::Key_Space, Qt::NoModifier);
            event.setTimestamp(time);
            QCoreApplication::sendEvent(&m_window, &event);
        };
        send(QEvent::KeyPress, 1000);
        for (const quint64 time : {1660ull, 1700ull, 1740ull}) {
            send(QEvent::KeyRelease, time);
            send(QEvent::KeyPress, time);
        }
        send(QEvent::KeyRelease, 1750);
        QCOMPARE(clicked.count(), 1);
    }

    void missingNameIsReportedOnce()
    {
        QTest::ignoreMessage(QtWarningMsg, "WARN: RButtonIcon has no accessible name");
        const auto first = make(QStringLiteral("RButtonIcon { iconItem.key: 'mute' }"));
        const auto second = make(QStringLiteral("RButtonIcon { iconItem.key: 'solo' }"));
        QVERIFY(first && second);
    }

private:
    /// As when a screen reader comes or goes.
    static void listen(bool listening)
    {
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(listening);
    }

    bool focus(QQuickItem &item)
    {
        m_window.show();
        m_window.requestActivate();
        item.forceActiveFocus();
        return QTest::qWaitForWindowActive(&m_window);
    }

    std::unique_ptr<QQuickItem> make(const QString &body) { return m_page.make(body); }

    SeenPage m_page{{}};
    QQuickWindow &m_window = m_page.window;
};

template struct TestClass<tst_ButtonAccessibility>;
#include "tst_ButtonAccessibility.moc"
