#include "fader/RFaderBase.h"
#include "support/SeenPage.h"
#include "support/TestProgram.h"

#include <QtGui/QAccessible>
#include <QtQuick/QQuickWindow>

using namespace tamble::client;

namespace {

/// A fader of 200 pixels of travel for 100 dB in a window that is never shown.
struct Fixture
{
    QQuickWindow window;
    RFaderBase *fader = new RFaderBase(window.contentItem());

    Fixture()
    {
        window.resize(100, 248);
        fader->setSize({56, 248});
        fader->setFrom(-90);
        fader->setValue(-20);
    }

    void send(QEvent::Type type, double y, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        const Qt::MouseButtons buttons = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, {28, y}, {28, y}, button, buttons, modifiers);
        QCoreApplication::sendEvent(&window, &event);
    }
};

} // namespace

class tst_RFaderBase : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fineDrag()
    {
        Fixture test;
        test.send(QEvent::MouseButtonPress, 200);
        test.send(QEvent::MouseMove, 190);
        QCOMPARE(test.fader->value(), -15.0);
        test.send(QEvent::MouseMove, 186, Qt::ShiftModifier); // 4 pixels are 2 dB, a tenth of them 0.2
        QCOMPARE(test.fader->value(), -14.8);
        test.send(QEvent::MouseMove, 170, Qt::ShiftModifier);
        QCOMPARE(test.fader->value(), -14.0);
        test.send(QEvent::MouseMove, 168);
        QCOMPARE(test.fader->value(), -13.0);
        const QSignalSpy committed(test.fader, &RFaderBase::valueCommitted);
        test.send(QEvent::MouseButtonRelease, 168);
        QCOMPARE(committed.count(), 1);
    }

    void goesFromADisabledPanel()
    {
        Fixture test;
        test.window.contentItem()->setEnabled(false);
        delete test.fader; // its end is no change of its state, for which it would let go of a touch area that is gone
    }

    void fineDragIgnoresDetents()
    {
        Fixture test;
        test.fader->setProperty("detents", QVariant::fromValue(QList<qreal>{-15.0}));
        test.send(QEvent::MouseButtonPress, 200);
        test.send(QEvent::MouseMove, 188);
        QCOMPARE(test.fader->value(), -15.0);
        test.send(QEvent::MouseMove, 184, Qt::ShiftModifier);
        QCOMPARE(test.fader->value(), -14.8);
        test.send(QEvent::MouseButtonRelease, 184, Qt::ShiftModifier);
    }

    void accessible()
    {
        const SeenPage page("RFader { label: 'Main'; value: -20 }");
        QVERIFY(page.root);
        auto *fader = page.root->findChild<RFaderBase *>();

        QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(fader);
        QVERIFY(seen);
        QCOMPARE(seen->role(), QAccessible::Slider);
        QCOMPARE(seen->text(QAccessible::Name), QStringLiteral("Main"));
        QCOMPARE(seen->text(QAccessible::Description), QStringLiteral("-20.0\u00a0dB"));
        QCOMPARE(seen->valueInterface()->minimumValue().toDouble(), -80.0);
        QCOMPARE(seen->valueInterface()->maximumValue().toDouble(), 10.0);
        fader->setProperty("consistent", false);
        fader->setProperty("confirmed", false);
        fader->setReadOnly(true);
        fader->setValue(-80);
        QCOMPARE(seen->text(QAccessible::Description), QStringLiteral("\u2212\u221e, mixed, not confirmed, read only"));

        const QSignalSpy edited(fader, &RFaderBase::valueEdited);
        seen->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
        QCOMPARE(fader->value(), -80.0);
        fader->setReadOnly(false);
        seen->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
        QCOMPARE(fader->value(), -79.5);
        QCOMPARE(edited.count(), 1);
    }
};

template struct TestClass<tst_RFaderBase>;
#include "tst_RFaderBase.moc"
