#include "pointer/RMouseEventSpy.h"
#include "support/TestProgram.h"

#include <QtCore/QAbstractEventDispatcher>
#include <QtCore/QTimerEvent>
#include <QtGui/QGuiApplication>
#include <QtGui/QMouseEvent>
#include <QtGui/QWindow>

#include <memory>

using namespace tamble::client;

namespace {

/// A spy with a clock that the test moves, and a window that counts what gets through.
struct Observed
{
    struct Window : QWindow
    {
        bool event(QEvent *event) override
        {
            received += event->isInputEvent() ? 1 : 0;
            return QWindow::event(event);
        }
        int received = 0;
    };

    Observed() { QCoreApplication::instance()->installEventFilter(&spy); }

    void mouse(QEvent::Type type, const QPointF &position, Qt::MouseButton button = Qt::NoButton,
               Qt::MouseButtons buttons = Qt::NoButton, QObject *receiver = nullptr)
    {
        QMouseEvent event(type, position, position, button, buttons, Qt::NoModifier);
        QCoreApplication::sendEvent(receiver ? receiver : &window, &event);
    }

    qint64 now = 1000;
    RMouseEventSpy spy{[this] { return now; }};
    Window window;
};

QList<QAbstractEventDispatcher::TimerInfo> timersOf(RMouseEventSpy &spy)
{
    return QAbstractEventDispatcher::instance()->registeredTimers(&spy);
}

} // namespace

class tst_MouseEventSpy : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void windowEventsAreReportedOnce()
    {
        Observed observed;
        QSignalSpy pressed(&observed.spy, &RMouseEventSpy::mousePressed);
        QSignalSpy released(&observed.spy, &RMouseEventSpy::mouseReleased);
        QObject item;

        observed.mouse(QEvent::MouseButtonPress, {3, 4}, Qt::MiddleButton, Qt::MiddleButton);
        observed.mouse(QEvent::MouseButtonPress, {3, 4}, Qt::MiddleButton, Qt::MiddleButton, &item);
        QVERIFY(observed.spy.anyPressed());
        QCOMPARE(pressed.count(), 1);
        QCOMPARE(pressed.first(), QVariantList({QPointF(3, 4), int(Qt::MiddleButton)}));

        observed.mouse(QEvent::MouseButtonRelease, {5, 6}, Qt::MiddleButton);
        QVERIFY(!observed.spy.anyPressed());
        QCOMPARE(released.count(), 1);
        QCOMPARE(observed.spy.position(), QPointF(5, 6));
        QCOMPARE(observed.window.received, 2);
    }

    void doubleClickIsTwoPresses()
    {
        Observed observed;
        observed.window.setGeometry(0, 0, 100, 100);
        observed.window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&observed.window));
        QSignalSpy pressed(&observed.spy, &RMouseEventSpy::mousePressed);
        QSignalSpy released(&observed.spy, &RMouseEventSpy::mouseReleased);
        QTest::mouseDClick(&observed.window, Qt::LeftButton, {}, {5, 5});
        QCOMPARE(pressed.count(), 2);
        QCOMPARE(released.count(), 2);
    }

    void movesAreLimited()
    {
        Observed observed;
        QSignalSpy moved(&observed.spy, &RMouseEventSpy::mouseMoved);
        for (int i = 0; i < 100; ++i) {
            observed.mouse(QEvent::MouseMove, {double(i), 0});
            observed.now += 10;
        }
        QCOMPARE(moved.count(), 20);
        QCOMPARE(observed.spy.position(), QPointF(99, 0));
        QCOMPARE(observed.window.received, 100);
    }

    void lastMoveIsReported()
    {
        Observed observed;
        QSignalSpy moved(&observed.spy, &RMouseEventSpy::mouseMoved);
        observed.mouse(QEvent::MouseMove, {1, 0});
        observed.mouse(QEvent::MouseMove, {2, 0});
        QCOMPARE(moved.count(), 1);
        observed.now += 50;
        QTRY_COMPARE(moved.count(), 2);
        QCOMPARE(moved.last().first().toPointF(), QPointF(2, 0));
        QVERIFY2(timersOf(observed.spy).isEmpty(), "nothing runs without a limit of idleness");
    }

    void activityIsLimited()
    {
        Observed observed;
        QSignalSpy activity(&observed.spy, &RMouseEventSpy::activity);
        const auto typeKey = [&observed] {
            QKeyEvent event(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
            QCoreApplication::sendEvent(&observed.window, &event);
        };
        typeKey();
        observed.now += 249;
        typeKey();
        QCOMPARE(activity.count(), 1);
        observed.now += 1;
        typeKey();
        QCOMPARE(activity.count(), 2);
    }

    void touchCountsAsLeftButton()
    {
        Observed observed;
        QSignalSpy pressed(&observed.spy, &RMouseEventSpy::mousePressed);
        QSignalSpy released(&observed.spy, &RMouseEventSpy::mouseReleased);
        observed.window.setGeometry(0, 0, 100, 100);
        observed.window.create();
        const std::unique_ptr<QPointingDevice> device(QTest::createTouchDevice());

        QTest::touchEvent(&observed.window, device.get()).press(0, QPoint(10, 20));
        QVERIFY(observed.spy.anyPressed());
        QTest::touchEvent(&observed.window, device.get()).release(0, QPoint(10, 20));
        QVERIFY(!observed.spy.anyPressed());
        QCOMPARE(pressed.count(), 1); // the mouse events made from the touch do not count again
        QCOMPARE(pressed.first().at(1).toInt(), int(Qt::LeftButton));
        QCOMPARE(released.count(), 1);
    }

    void idleIsReportedOncePerPeriod()
    {
        Observed observed;
        QSignalSpy idle(&observed.spy, &RMouseEventSpy::idle);
        observed.spy.setIdleLimit(5000);

        observed.now += 4999;
        observed.spy.checkIdle();
        QCOMPARE(idle.count(), 0);
        observed.now += 1;
        observed.spy.checkIdle();
        observed.now += 1000;
        observed.spy.checkIdle();
        QCOMPARE(idle.count(), 1);
        QCOMPARE(idle.first().first().toInt(), 5000);
        QCOMPARE(observed.spy.idleTime(), 6000);

        observed.mouse(QEvent::MouseMove, {1, 1});
        QCOMPARE(observed.spy.idleTime(), 0);
        observed.now += 5000;
        observed.spy.checkIdle();
        QCOMPARE(idle.count(), 2);
    }

    void idleTimeTicksForItsListeners()
    {
        Observed observed;
        int timer = 0;
        {
            QSignalSpy notified(&observed.spy, &RMouseEventSpy::idleTimeChanged);
            const auto timers = timersOf(observed.spy);
            QCOMPARE(timers.size(), 1);
            QCOMPARE(timers.first().interval, 1000);
            timer = timers.first().timerId;
            QTimerEvent tick(timer);
            QCoreApplication::sendEvent(&observed.spy, &tick);
            QCOMPARE(notified.count(), 1);
            QCOMPARE(timersOf(observed.spy).size(), 1);
        }
        QTimerEvent lastTick(timer);
        QCoreApplication::sendEvent(&observed.spy, &lastTick);
        QVERIFY(timersOf(observed.spy).isEmpty());
    }

    void installsOnceAndFirst()
    {
        struct Eater : QObject
        {
            bool eventFilter(QObject *, QEvent *event) override { return event->type() == QEvent::MouseButtonPress; }
        } eater;
        auto *spy = RMouseEventSpy::instance();
        QCOMPARE(RMouseEventSpy::instance(), spy);
        QVERIFY(!spy->parent());

        QSignalSpy pressed(spy, &RMouseEventSpy::mousePressed);
        QWindow window;
        QMouseEvent event(QEvent::MouseButtonPress, {1, 1}, {1, 1}, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&window, &event);
        QCOMPARE(pressed.count(), 1);

        QCoreApplication::instance()->installEventFilter(&eater);
        spy->install();
        QCoreApplication::sendEvent(&window, &event);
        QCOMPARE(pressed.count(), 2);
        QCoreApplication::instance()->removeEventFilter(spy);
    }
};

template struct TestClass<tst_MouseEventSpy>;
#include "tst_MouseEventSpy.moc"
