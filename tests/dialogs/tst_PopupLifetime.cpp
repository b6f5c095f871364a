#include "TambleClientControlModule.h"
#include "support/QmlText.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <QtGui/QMouseEvent>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickWindow>
#include <QtQuickTemplates2/private/qquickoverlay_p.h>

#include <algorithm>
#include <functional>

using namespace tamble::client;

namespace {

void prepare(QQmlEngine &engine)
{
    TambleClientControlModule module;
    module.registerTypes("TambleClient.Control");
    module.initializeEngine(&engine, "TambleClient.Control");
}

/// A window with a button that has the focus and an owner with one popup.
struct Stage
{
    std::unique_ptr<QQmlEngine> engine = std::make_unique<QQmlEngine>();
    std::unique_ptr<QObject> window;
    QPointer<QQuickItem> owner;

    explicit Stage(const QString &declaration)
    {
        prepare(*engine);
        window = objectFrom(*engine, "import QtQuick\nimport TambleClient.Control 1.0\n"
                                     "RApplicationWindow { id: window; appStyleSheetKey: ''; minimumWidth: 1\n"
                                     "  minimumHeight: 1; width: 800; height: 600; visible: true\n"
                                     "  property alias former: former; property alias page: page\n"
                                     "  RButton { id: former; y: 560; focus: true }\n"
                                     "  Item { id: page; x: 600; y: 400; width: 200; height: 40\n" +
                                         declaration.toUtf8() + "} }");
        if (window)
            owner = item("page")->childItems().value(0);
    }

    QQuickWindow *quickWindow() const { return qobject_cast<QQuickWindow *>(window.get()); }
    QQuickItem *item(const char *name) const { return window->property(name).value<QQuickItem *>(); }
    bool isOpen() const
    {
        QVariant open;
        return owner && QMetaObject::invokeMethod(owner, "isOpen", Q_RETURN_ARG(QVariant, open)) && open.toBool();
    }
    /// What all visible popups cover, in the window.
    QRectF covered() const
    {
        QRectF area;
        const QList<QQuickItem *> popups = QQuickOverlay::overlay(quickWindow())->childItems();
        for (const QQuickItem *popup : popups) {
            if (popup->isVisible() && popup->inherits("QQuickPopupItem"))
                area |= popup->mapRectToScene(QRectF(QPointF(), popup->size()));
        }
        return area;
    }
};

QQuickItem *visibleItem(QQuickItem &around, const char *text)
{
    if (around.isVisible() && around.property("text") == text)
        return &around;
    for (QQuickItem *child : around.childItems()) {
        if (QQuickItem *found = visibleItem(*child, text))
            return found;
    }
    return nullptr;
}

/// A click on what has this text, at a time of its own, in ms; false when there is no such thing.
bool click(QQuickWindow &window, const char *text, quint64 time)
{
    QSignalSpy layout(&window, &QQuickWindow::frameSwapped);
    window.update();
    layout.wait();
    const QQuickItem *item = visibleItem(*window.contentItem(), text);
    if (!item)
        return false;
    const QPointF place = item->mapRectToScene(item->boundingRect()).center();
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, place, window.mapToGlobal(place), Qt::LeftButton,
                          type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
        event.setTimestamp(time);
        QCoreApplication::sendEvent(&window, &event);
    }
    return true;
}

} // namespace

/// What becomes of an open popup when what is around it changes or goes.
class tst_PopupLifetime : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void popups_data()
    {
        // When the owner is hidden or disabled, it
        constexpr bool closes = true;
        constexpr bool stays = false;
        const auto row = rowsOf([](const QString &declaration, bool closesWithOwner) {
            const auto after = [&](const char *what, bool isGone, const std::function<void(Stage &)> &happen) {
                Stage stage(declaration);
                QVERIFY2(stage.owner, what);
                QVERIFY(QTest::qWaitForWindowActive(stage.quickWindow()));
                stage.item("former")->forceActiveFocus();
                QMetaObject::invokeMethod(stage.owner, "openIt");
                QVERIFY2(QTest::qWaitFor([&] { return stage.isOpen(); }), what);
                happen(stage);
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
                QCoreApplication::processEvents();
                if (stage.window)
                    QVERIFY2(QTest::qWaitFor([&] { return stage.covered().isEmpty() == isGone; }), what);
            };
            after("owner hidden", closesWithOwner, [](Stage &stage) { stage.owner->setVisible(false); });
            after("page hidden", closesWithOwner, [](Stage &stage) { stage.item("page")->setVisible(false); });
            after("owner disabled", closesWithOwner, [](Stage &stage) { stage.owner->setEnabled(false); });
            after("owner destroyed", true, [](Stage &stage) { delete stage.owner; });
            after("page destroyed", true, [](Stage &stage) { delete stage.item("page"); });
            after("window destroyed", true, [](Stage &stage) { stage.window.reset(); });
            after("window and engine destroyed", true, [](Stage &stage) {
                stage.window.reset();
                stage.engine.reset();
            });
            after("engine and window destroyed", true, [](Stage &stage) {
                stage.engine.reset();
                stage.window.reset();
            });
            after("window hidden", false, [](Stage &stage) { stage.quickWindow()->hide(); });
            after("Esc", true, [](Stage &stage) {
                QTest::keyClick(stage.quickWindow(), Qt::Key_Escape);
                QTRY_VERIFY(stage.item("former")->hasActiveFocus());
            });
            after("window made small", false, [](Stage &stage) {
                for (const QSize size : {QSize(500, 300), QSize(240, 200)}) {
                    stage.quickWindow()->resize(size);
                    QTRY_COMPARE(stage.quickWindow()->contentItem()->size(), QSizeF(size));
                    QTRY_VERIFY2(QRectF(QPointF(), size).contains(stage.covered()),
                                 qPrintable(QDebug::toString(stage.covered())));
                }
            });
        });
        row("RMenu",
            "RButton { function openIt() { menu.open() } function isOpen() { return menu.opened }\n"
            "  RMenu { id: menu; model: ['Copy', 'Paste', 'Delete'] } }",
            closes);
        row("RPopupMenu",
            "RButton { id: owner; function openIt() { menu.popupAt(owner, Qt.point(4, 4)) }\n"
            "  function isOpen() { return menu.opened } RPopupMenu { id: menu; model: Array(40).fill('Mute') } }",
            closes);
        row("RPopupMenu of the page",
            "RButton { id: owner; function openIt() { menu.popupAt(owner) } function isOpen() { return menu.opened } "
            "}\n"
            "RPopupMenu { id: menu; model: ['Mute'] }",
            closes);
        row("RComboBox",
            "RComboBox { model: 40; function openIt() { open() } function isOpen() { return popup.opened } }", closes);
        row("RInconsistentPopup",
            "RInconsistentButton { consistent: false; function openIt() { clicked() }\n"
            "  function isOpen() { return popup !== null && popup.opened } }",
            closes);
        row("RDialog",
            "RButton { function openIt() { dialog.open() } function isOpen() { return dialog.opened }\n"
            "  RDialog { id: dialog; title: 'Name'; standardButtons: 0x400 | 0x400000\n"
            "    Item { implicitWidth: 600; implicitHeight: 500 } } }",
            stays);
        row("RMessageBox",
            "RButton { function openIt() { box.open() } function isOpen() { return box.opened }\n"
            "  readonly property RMessageBox box: RMessageBox { id: box; text: 'Really?'; detailedText: 'x' } }",
            stays);
    }
    void popups() { checkRow(); }

    // Flyouts stand in the page.
    void flyouts_data()
    {
        const auto row = rowsOf([](const std::function<void(Stage &)> &happen) {
            Stage stage(QStringLiteral("RButton { function openIt() { flyout.open() }\n"
                                       "  function isOpen() { return flyout.shown }\n"
                                       "  RFlyoutWindow { id: flyout; title: 'EQ'; RTextField { text: 'x' } } }"));
            QVERIFY(stage.owner);
            QVERIFY(QTest::qWaitForWindowActive(stage.quickWindow()));
            stage.item("former")->forceActiveFocus();
            QMetaObject::invokeMethod(stage.owner, "openIt");
            QVERIFY(stage.isOpen());
            happen(stage);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QCoreApplication::processEvents();
            if (stage.window)
                QVERIFY(stage.item("former")->hasActiveFocus());
        });
        row("owner destroyed", [](Stage &stage) { delete stage.owner; });
        row("page destroyed", [](Stage &stage) { delete stage.item("page"); });
        row("window and engine destroyed", [](Stage &stage) {
            stage.window.reset();
            stage.engine.reset();
        });
        row("engine and window destroyed", [](Stage &stage) {
            stage.engine.reset();
            stage.window.reset();
        });
    }
    void flyouts() { checkRow(); }

    // Here, where no page imports the templates whose attached objects this takes.
    void whatIsBehindADialogIsDimmed()
    {
        const Stage stage(QStringLiteral("Item { function openIt() { dialog.open() } function isOpen() { return "
                                         "dialog.opened }\n RDialog { id: dialog; anchors.centerIn: parent } }"));
        QVERIFY(stage.owner);
        QMetaObject::invokeMethod(stage.owner, "openIt");
        QTRY_VERIFY(stage.isOpen());
        const QList<QQuickItem *> layers = QQuickOverlay::overlay(stage.quickWindow())->childItems();
        QVERIFY(std::any_of(layers.begin(), layers.end(), [](const QQuickItem *layer) {
            return layer->property("color").value<QColor>().alpha() > 0;
        }));
    }

    // It must not answer the box that comes next, whose button stands at the same place.
    void doubleClickAnswersOneBox()
    {
        Stage stage(QStringLiteral("RButton { function openIt() { first.open(); next.open() }\n"
                                   "  function isOpen() { return next.opened }\n"
                                   "  readonly property list<QtObject> boxes: [RMessageBox { id: first },\n"
                                   "                                           RMessageBox { id: next }] }"));
        QVERIFY(QTest::qWaitForWindowActive(stage.quickWindow()));
        QMetaObject::invokeMethod(stage.owner, "openIt");
        QVERIFY(click(*stage.quickWindow(), "OK", 1000));
        QTRY_VERIFY(stage.isOpen());
        QVERIFY(click(*stage.quickWindow(), "OK", 1200));
        QVERIFY(stage.isOpen());
        QVERIFY(click(*stage.quickWindow(), "OK", 3000));
        QVERIFY(!stage.isOpen());
    }

    // With another program in front, or none, the box has no other window.
    void messageBoxOpenedAsItsWindowGoes_data()
    {
        const auto row = rowsOf([](const char *handler) {
            Stage stage({});
            QVERIFY(QTest::qWaitForWindowActive(stage.quickWindow()));
            const auto box = objectFrom(*stage.engine, QByteArray("import TambleClient.Control 1.0\n"
                                                                  "RMessageBox { text: 'Really?'; ") +
                                                           handler + "}");
            QMetaObject::invokeMethod(box.get(), "open");
            QVERIFY(box->property("opened").toBool());
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("no window.*Really")));
            stage.window.reset();
            QVERIFY(!box->property("opened").toBool());
        });
        row("again, when rejected", "onRejected: open()");
        row("again, when closed", "onClosed: open()");
    }
    void messageBoxOpenedAsItsWindowGoes() { checkRow(); }

    void messageBoxOpenedByAPageThatGoes()
    {
        Stage stage(QStringLiteral("RButton { Component.onDestruction: box.open()\n"
                                   "  readonly property RMessageBox box: RMessageBox { id: box; text: 'Really?' } }"));
        QVERIFY(QTest::qWaitForWindowActive(stage.quickWindow()));
        stage.window.reset();
        QCoreApplication::processEvents();
    }

    void messageBoxWithoutWindow()
    {
        QQmlEngine engine;
        prepare(engine);
        const auto box = objectFrom(engine, "import TambleClient.Control 1.0\n"
                                            "RMessageBox { text: 'Amplifier is hot' }");
        QVERIFY(box);
        QSignalSpy rejected(box.get(), SIGNAL(rejected()));
        QSignalSpy closed(box.get(), SIGNAL(closed()));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("no window.*Amplifier is hot")));
        QMetaObject::invokeMethod(box.get(), "open");
        QCOMPARE(rejected.count(), 1);
        QCOMPARE(closed.count(), 1);
    }

    void messageBoxOfAnEngineThatGoes()
    {
        auto engine = std::make_unique<QQmlEngine>();
        prepare(*engine);
        QQuickWindow window;
        window.resize(400, 300);
        window.show();
        const auto theme = objectFrom(*engine, "import TambleClient.Control 1.0\n"
                                               "RThemeSelector { themeComponent: RTheme {} }");
        const auto box = objectFrom(*engine, "import TambleClient.Control 1.0\nRMessageBox { text: 'Really?' }");
        QVERIFY(box);
        box->setProperty("window", QVariant::fromValue(&window));
        QMetaObject::invokeMethod(box.get(), "open");
        QVERIFY(box->property("opened").toBool());
        engine.reset();
        QVERIFY(!box->property("opened").toBool());
    }
};

template struct TestClass<tst_PopupLifetime>;

#include "tst_PopupLifetime.moc"
