#include "pointer/PointerWindow.h"
#include "pointer/RMouseDetection.h"
#include "pointer/RMouseEventSpy.h"
#include "support/QmlText.h"
#include "support/Rows.h"
#include "support/SignalLog.h"

#include <QtGui/QPointingDevice>

using namespace tamble::client;

namespace {

/// A detection that fills the box of its window.
struct Watched
{
    PointerWindow window;
    std::unique_ptr<RMouseDetection> detection = std::make_unique<RMouseDetection>(&window.box);

    Watched() { detection->setSize({100, 100}); }
    bool isUnder(const QPoint &point)
    {
        window.moveTo(point);
        return detection->containsMouse();
    }
};

using Change = void (*)(Watched &watched);

QQuickItem *newItem(QQuickItem &parent, const QRectF &place)
{
    auto *item = new QQuickItem(&parent);
    item->setParentItem(&parent);
    item->setPosition(place.topLeft());
    item->setSize(place.size());
    return item;
}

} // namespace

class tst_MouseDetection : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { RMouseEventSpy::instance()->install(); }

    void whereItIs_data()
    {
        const auto row = rowsOf([](Change change, const QPoint &point, bool isInside) {
            Watched watched;
            change(watched);
            QCOMPARE(watched.isUnder(point), isInside);
            if (isInside)
                QVERIFY(!watched.isUnder(PointerWindow::outside));
        });
        const Change asItIs = [](Watched &) {};
        row("first pixel", asItIs, QPoint(50, 50), true);
        row("beside the first pixel", asItIs, QPoint(49, 50), false);
        row("turned: a corner is elsewhere", Change([](Watched &of) { of.window.box.setRotation(45); }), QPoint(53, 53),
            false);
        row("turned: beyond the old edge", Change([](Watched &of) { of.window.box.setRotation(45); }), QPoint(40, 100),
            true);
        row("larger", Change([](Watched &of) { of.window.box.setScale(1.5); }), QPoint(30, 30), true);
        row("nothing is left of it", Change([](Watched &of) { of.window.box.setScale(0); }), PointerWindow::middle,
            false);
        row("cut off by what is around it", Change([](Watched &of) {
                of.window.box.setClip(true);
                of.detection->setX(50);
            }),
            QPoint(170, 100), false);
        row("reaches out of what is around it", Change([](Watched &of) { of.detection->setX(50); }), QPoint(170, 100),
            true);
        row("a child handles hover and buttons", Change([](Watched &of) {
                QQuickItem *child = newItem(*of.detection, {0, 0, 100, 100});
                child->setAcceptHoverEvents(true);
                child->setAcceptedMouseButtons(Qt::AllButtons);
            }),
            PointerWindow::middle, true);
        row("below an item that handles hover", Change([](Watched &of) {
                newItem(*of.window.contentItem(), {0, 0, 200, 200})->setAcceptHoverEvents(true);
            }),
            PointerWindow::middle, true);
        row("hidden around it", Change([](Watched &of) { of.window.box.setVisible(false); }), PointerWindow::middle,
            false);
        row("disabled around it", Change([](Watched &of) { of.window.box.setEnabled(false); }), PointerWindow::middle,
            false);
        row("inactive", Change([](Watched &of) { of.detection->setActive(false); }), PointerWindow::middle, false);
        row("in no window", Change([](Watched &of) { of.window.box.setParentItem(nullptr); }), PointerWindow::middle,
            false);
    }
    void whereItIs() { checkRow(); }

    // Each change takes the item from under a pointer that rests, and the second one brings it back.
    void underRestingPointer_data()
    {
        const auto row = rowsOf([](Change leave, Change enter) {
            Watched watched;
            QVERIFY(watched.isUnder(PointerWindow::middle));
            QSignalSpy exited(watched.detection.get(), &RMouseDetection::exited);
            QSignalSpy entered(watched.detection.get(), &RMouseDetection::entered);
            leave(watched);
            QTRY_COMPARE(exited.count(), 1);
            QVERIFY(!watched.detection->containsMouse());
            enter(watched);
            QTRY_COMPARE(entered.count(), 1);
            QVERIFY(watched.detection->containsMouse());
        });
        row(
            "moved", [](Watched &of) { of.window.box.setX(150); }, [](Watched &of) { of.window.box.setX(50); });
        row(
            "turned",
            [](Watched &of) {
                of.window.box.setTransformOrigin(QQuickItem::TopLeft);
                of.window.box.setRotation(90);
            },
            [](Watched &of) { of.window.box.setRotation(0); });
        row(
            "scaled", [](Watched &of) { of.window.box.setScale(0); }, [](Watched &of) { of.window.box.setScale(2); });
        row(
            "hidden", [](Watched &of) { of.window.box.setVisible(false); },
            [](Watched &of) { of.window.box.setVisible(true); });
        row(
            "disabled", [](Watched &of) { of.window.box.setEnabled(false); },
            [](Watched &of) { of.window.box.setEnabled(true); });
        row(
            "inactive", [](Watched &of) { of.detection->setActive(false); },
            [](Watched &of) { of.detection->setActive(true); });
        row(
            "given to another parent",
            [](Watched &of) {
                of.detection->setParentItem(newItem(*of.window.contentItem(), {150, 150, 0, 0}));
            },
            [](Watched &of) { of.detection->setParentItem(&of.window.box); });
        row(
            "out of the window", [](Watched &of) { of.detection->setParentItem(nullptr); },
            [](Watched &of) { of.detection->setParentItem(&of.window.box); });
        row(
            "the pointer leaves the window",
            [](Watched &of) {
                QEvent leave(QEvent::Leave);
                QCoreApplication::sendEvent(&of.window, &leave);
            },
            [](Watched &of) {
                QEnterEvent enter(PointerWindow::middle, PointerWindow::middle, PointerWindow::middle);
                QCoreApplication::sendEvent(&of.window, &enter);
            });
        row(
            "the window is hidden", [](Watched &of) { of.window.hide(); },
            [](Watched &of) {
                of.window.show();
                of.window.moveTo(PointerWindow::middle + QPoint(1, 0));
            });
    }
    void underRestingPointer() { checkRow(); }

    void signalsOfAVisit()
    {
        Watched watched;
        SignalLog log(watched.detection.get());
        watched.window.moveTo(QPoint(60, 70));
        QCOMPARE(watched.detection->mouseX(), 10.0);
        QCOMPARE(watched.detection->mouseY(), 20.0);
        QCOMPARE(log.take(), QStringList({"mouseXChanged", "mouseYChanged", "entered", "containsMouseChanged"}));
        watched.window.moveTo(QPoint(61, 70));
        QCOMPARE(log.take(), QStringList({"mouseXChanged"}));
        watched.window.moveTo(PointerWindow::outside);
        QCOMPARE(log.take(), QStringList({"exited", "containsMouseChanged"}));
        QCOMPARE(watched.detection->mouseX(), 11.0);
    }

    void neighboursAreLeftFirst()
    {
        Watched watched;
        watched.detection->setWidth(50);
        RMouseDetection before(&watched.window.box), after(&watched.window.box);
        QStringList log;
        for (const auto &[name, neighbour] : {std::pair(QStringLiteral("before"), &before), {"after", &after}}) {
            neighbour->setSize({50, 100});
            connect(neighbour, &RMouseDetection::entered, this, [&log, name = name] { log << name + " in"; });
            connect(neighbour, &RMouseDetection::exited, this, [&log, name = name] { log << name + " out"; });
        }
        after.setX(50);
        watched.window.moveTo(QPoint(60, 60));
        watched.window.moveTo(QPoint(140, 60));
        watched.window.moveTo(QPoint(60, 60));
        QCOMPARE(log, QStringList({"before in", "before out", "after in", "after out", "before in"}));
    }

    void presses_data()
    {
        const auto row = rowsOf([](Change act, const QStringList &expected, bool isPressed) {
            Watched watched;
            watched.window.moveTo(PointerWindow::outside);
            QStringList log;
            RMouseDetection *detection = watched.detection.get();
            QObject::connect(detection, &RMouseDetection::pressedOutside, detection, [&log] { log << "outside"; });
            QObject::connect(detection, &RMouseDetection::pressedInsideChanged, detection,
                             [&log, detection] { log << (detection->pressedInside() ? "pressed" : "released"); });
            act(watched);
            QCOMPARE(log, expected);
            QCOMPARE(detection->pressedInside(), isPressed);
            for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton})
                QTest::mouseRelease(&watched.window, button, {}, PointerWindow::outside);
            QVERIFY(!detection->pressedInside());
        });
        row("inside",
            Change([](Watched &of) { QTest::mousePress(&of.window, Qt::RightButton, {}, PointerWindow::middle); }),
            QStringList{"pressed"}, true);
        row("outside",
            Change([](Watched &of) { QTest::mousePress(&of.window, Qt::LeftButton, {}, PointerWindow::outside); }),
            QStringList{"outside"}, false);
        row("double click",
            Change([](Watched &of) { QTest::mouseDClick(&of.window, Qt::LeftButton, {}, PointerWindow::middle); }),
            QStringList({"pressed", "released", "pressed", "released"}), false);
        row("dragged out and released there", Change([](Watched &of) {
                QTest::mousePress(&of.window, Qt::LeftButton, {}, PointerWindow::middle);
                of.window.moveTo(PointerWindow::outside);
                QVERIFY(of.detection->pressedInside());
                QTest::mouseRelease(&of.window, Qt::LeftButton, {}, PointerWindow::outside);
            }),
            QStringList({"pressed", "released"}), false);
        row("the second of two buttons", Change([](Watched &of) {
                QTest::mousePress(&of.window, Qt::LeftButton, {}, PointerWindow::middle);
                QTest::mousePress(&of.window, Qt::RightButton, {}, PointerWindow::outside);
                QTest::mouseRelease(&of.window, Qt::LeftButton, {}, PointerWindow::outside);
            }),
            QStringList({"pressed", "outside", "released"}), false);
        row("in another window", Change([](Watched &of) {
                PointerWindow other;
                QTest::mousePress(&other, Qt::LeftButton, {}, PointerWindow::middle);
                QTest::mouseRelease(&other, Qt::LeftButton, {}, PointerWindow::middle);
                QVERIFY(!of.detection->containsMouse());
            }),
            QStringList{"outside"}, false);
        row("hidden while pressed", Change([](Watched &of) {
                QTest::mousePress(&of.window, Qt::LeftButton, {}, PointerWindow::middle);
                of.window.box.setVisible(false);
            }),
            QStringList({"pressed", "released"}), false);
        row("inactive", Change([](Watched &of) {
                of.detection->setActive(false);
                QTest::mouseClick(&of.window, Qt::LeftButton, {}, PointerWindow::outside);
                QTest::mouseClick(&of.window, Qt::LeftButton, {}, PointerWindow::middle);
            }),
            QStringList(), false);
    }
    void presses() { checkRow(); }

    void twoWindows()
    {
        Watched first, second;
        QVERIFY(first.isUnder(PointerWindow::middle));
        QVERIFY(second.isUnder(PointerWindow::middle));
        QVERIFY(!first.detection->containsMouse());
        QVERIFY(first.isUnder(PointerWindow::middle));
        QVERIFY(!second.detection->containsMouse());
    }

    void fingers()
    {
        Watched watched;
        const std::unique_ptr<QPointingDevice> device(QTest::createTouchDevice());
        QSignalSpy outsidePresses(watched.detection.get(), &RMouseDetection::pressedOutside);
        QTest::touchEvent(&watched.window, device.get()).press(0, PointerWindow::middle);
        QVERIFY(watched.detection->containsMouse());
        QVERIFY(watched.detection->pressedInside());
        // A second finger does not draw the pointer away.
        QTest::touchEvent(&watched.window, device.get()).stationary(0).press(1, PointerWindow::outside);
        QCOMPARE(outsidePresses.count(), 1);
        QVERIFY(watched.detection->containsMouse());
        QTest::touchEvent(&watched.window, device.get()).stationary(1).release(0, PointerWindow::middle);
        QVERIFY(!watched.detection->containsMouse());
        QTest::touchEvent(&watched.window, device.get()).release(1, PointerWindow::outside);
        QVERIFY(!watched.detection->pressedInside());
        QTest::touchEvent(&watched.window, device.get()).press(2, PointerWindow::middle);
        QVERIFY(watched.detection->containsMouse());
        QTest::touchEvent(&watched.window, device.get()).release(2, PointerWindow::middle);
    }

    void listenersChangeWhatIsUnderThePointer()
    {
        Watched watched;
        RMouseDetection second(&watched.window.box), third(&watched.window.box);
        for (RMouseDetection *detection : {&second, &third})
            detection->setSize({100, 100});
        connect(watched.detection.get(), &RMouseDetection::entered, this, [&] {
            second.setActive(false);
            watched.detection->setActive(false);
        });
        SignalLog log(&second);
        QVERIFY(!watched.isUnder(PointerWindow::middle));
        QCOMPARE(log.take(), QStringList{"activeChanged"});
        QVERIFY(third.containsMouse());
    }

    void deletedByListeners_data()
    {
        using Delete = void (*)(std::unique_ptr<Watched> & watched);
        const auto row = rowsOf([](Delete deleteIt) {
            auto watched = std::make_unique<Watched>();
            Watched other;
            for (const auto signal : {&RMouseDetection::mouseXChanged, &RMouseDetection::exited})
                connect(watched->detection.get(), signal, &other.window, [&] {
                    if (watched && watched->detection)
                        deleteIt(watched);
                });
            QTest::mousePress(&watched->window, Qt::LeftButton, {}, PointerWindow::middle);
            QVERIFY(!watched || !watched->detection);
            QVERIFY(other.isUnder(PointerWindow::middle));
        });
        row("itself", [](std::unique_ptr<Watched> &watched) { watched->detection.reset(); });
        row("its window", [](std::unique_ptr<Watched> &watched) {
            watched->detection.release(); // goes with the window's items
            std::exchange(watched, nullptr).reset();
        });
    }
    void deletedByListeners() { checkRow(); }

    void outlivesItsEngine()
    {
        PointerWindow window;
        std::unique_ptr<QObject> detection;
        {
            QQmlEngine engine;
            qmlRegisterType<RMouseDetection>("PointerTest", 1, 0, "Detection");
            detection = objectFrom(engine, "import PointerTest\nDetection { width: 100; height: 100; "
                                           "onEntered: containsMouse }");
        }
        auto *item = qobject_cast<RMouseDetection *>(detection.get());
        item->setParentItem(&window.box);
        window.moveTo(PointerWindow::middle);
        QVERIFY(item->containsMouse());
    }
};

template struct TestClass<tst_MouseDetection>;
#include "tst_MouseDetection.moc"
