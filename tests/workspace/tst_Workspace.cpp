#include "support/Rows.h"
#include "support/SeenPage.h"
#include "support/TestProgram.h"
#include "workspace/WorkspaceBase.h"
#include "workspace/WorkspaceItemBase.h"

#include <QtGui/QAccessible>

#include <functional>

using namespace tamble::client;
using namespace Qt::StringLiterals;

namespace {

/// A canvas of 400 by 300 pixels with two items of 40 by 40, of which the first is selected.
struct Canvas
{
    QQuickWindow window;
    QPointer<WorkspaceBase> workspace = new WorkspaceBase(window.contentItem());
    WorkspaceItemBase *first = new WorkspaceItemBase(workspace->plane());
    WorkspaceItemBase *second = new WorkspaceItemBase(workspace->plane());

    Canvas()
    {
        window.resize(400, 300);
        workspace->setSize({400, 300});
        workspace->setProperty("snapToGrid", false);
        workspace->setProperty("snapToItems", false);
        place(*first, {40, 40});
        place(*second, {120, 40});
        workspace->selection()->select(first);
    }
    ~Canvas() { delete workspace; }

    static void place(WorkspaceItemBase &item, const QPointF &position)
    {
        item.setPlaneSize({40, 40});
        item.setPlanePosition(position);
    }

    void send(QEvent::Type type, const QPointF &place, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        const bool isMove = type == QEvent::MouseMove;
        QMouseEvent event(type, place, place, isMove ? Qt::NoButton : Qt::LeftButton,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, modifiers);
        QCoreApplication::sendEvent(&window, &event);
    }
    void drag(const QPointF &from, const QPointF &to)
    {
        send(QEvent::MouseButtonPress, from);
        send(QEvent::MouseMove, to);
        if (workspace)
            send(QEvent::MouseButtonRelease, to);
    }
};

} // namespace

/// What the canvas does for clients in C++, and what only they can do to it.
class tst_Workspace : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    // Keys pressed and released during a gesture count from there on.
    void modifiersDuringGestures()
    {
        Canvas canvas;
        canvas.send(QEvent::MouseButtonPress, {50, 50});
        canvas.send(QEvent::MouseMove, {70, 95});
        QCOMPARE(canvas.first->planePosition(), QPointF(60, 85));
        canvas.send(QEvent::MouseMove, {70, 95}, Qt::ShiftModifier);
        QCOMPARE(canvas.first->planePosition(), QPointF(40, 85));
        canvas.send(QEvent::MouseMove, {70, 95});
        QCOMPARE(canvas.first->planePosition(), QPointF(60, 85));
        canvas.send(QEvent::MouseButtonRelease, {70, 95});

        canvas.send(QEvent::MouseButtonPress, {20, 20});
        canvas.send(QEvent::MouseMove, {130, 60});
        QCOMPARE(canvas.workspace->selection()->selected(), QList{canvas.second});
        canvas.send(QEvent::MouseMove, {130, 60}, Qt::ShiftModifier);
        QCOMPARE(canvas.workspace->selection()->count(), 2);
        canvas.send(QEvent::MouseMove, {130, 60}, Qt::AltModifier);
        QVERIFY(canvas.workspace->selection()->empty());
        canvas.send(QEvent::MouseButtonRelease, {130, 60});
    }

    void nativeTwinComesFirst()
    {
        Canvas canvas;
        QStringList log;
        const QUuid id = canvas.first->itemId();
        connect(canvas.workspace, &WorkspaceBase::positionsCommitted, this, [&](const auto &before, const auto &after) {
            QCOMPARE(before, (QHash<QUuid, QPointF>{{id, {40, 40}}}));
            QCOMPARE(after, (QHash<QUuid, QPointF>{{id, {60, 85}}}));
            log << u"native"_s;
        });
        connect(canvas.workspace, &WorkspaceBase::itemsMoved, this, [&] { log << u"page"_s; });
        canvas.drag({50, 50}, {70, 95});
        QCOMPARE(log, QStringList({u"native"_s, u"page"_s}));
        QCOMPARE(canvas.workspace->positions().value(id), QPointF(60, 85));
        QCOMPARE(canvas.workspace->geometries().value(id), QRectF(60, 85, 40, 40));
    }

    // Whoever answers to a signal may be done with all of it.
    void destroyedByWhoAnswers_data()
    {
        using Connect = std::function<void(Canvas &, const std::function<void()> &)>;
        const auto row = rowsOf([](const Connect &connectTo) {
            Canvas canvas;
            bool isAnswered = false;
            connectTo(canvas, [&canvas, &isAnswered] {
                isAnswered = true;
                delete canvas.first;
                delete canvas.second;
            });
            canvas.drag({50, 50}, {70, 95});
            QVERIFY(isAnswered);
            QVERIFY(canvas.workspace->items().isEmpty());
            QVERIFY(!canvas.workspace->moving() && canvas.workspace->selection()->empty());
        });
        const auto rowOf = [&row](const char *name, auto signal) {
            row(name, [signal](Canvas &canvas, const std::function<void()> &answer) {
                connect(
                    canvas.workspace, signal, canvas.workspace, [answer] { answer(); }, Qt::SingleShotConnection);
            });
        };
        rowOf("started", &WorkspaceBase::moveStarted);
        rowOf("moving", &WorkspaceBase::itemsMoving);
        rowOf("moving ids", &WorkspaceBase::movingIdsChanged);
        rowOf("moved, native", &WorkspaceBase::positionsCommitted);
        rowOf("moved", &WorkspaceBase::itemsMoved);
        row("one is placed", [](Canvas &canvas, const std::function<void()> &answer) {
            canvas.workspace->selection()->select(canvas.second, RWorkspaceSelection::Add);
            connect(
                canvas.second, &WorkspaceItemBase::positionChanged, canvas.workspace, [answer] { answer(); },
                Qt::SingleShotConnection);
        });
    }
    void destroyedByWhoAnswers() { checkRow(); }

    void badNumbers_data()
    {
        const auto row = rowsOf([](double number, const QPointF &shown) {
            Canvas canvas;
            canvas.first->setPlanePosition({number, 7});
            QCOMPARE(canvas.first->planePosition(), shown);
            canvas.first->setPlaneSize({number, 50});
            canvas.workspace->nudge(number, 0);
            canvas.workspace->ensureVisible({number, 0, 10, 10});
            QVERIFY(canvas.workspace->itemsIn({0, 0, number, number}).size() <= 2);
            canvas.workspace->itemAt({number, number});
            canvas.workspace->zoomToFit();
            QVERIFY(qIsFinite(canvas.workspace->zoom()) && qIsFinite(canvas.workspace->viewX()));
        });
        row("not a number", qQNaN(), {40, 40});
        row("endless", qInf(), {40, 40});
        row("huge", 1e9, {1e9, 7});
    }
    void badNumbers() { checkRow(); }

    // An item between others, one in another item, and one on the workspace itself.
    void items()
    {
        Canvas canvas;
        auto *group = new QQuickItem(canvas.workspace->plane());
        auto *inner = new WorkspaceItemBase(group);
        Canvas::place(*inner, {40, 40});
        QCOMPARE(inner->workspace(), canvas.workspace.data());
        QCOMPARE(canvas.workspace->itemAt({50, 50}), inner);
        group->stackBefore(canvas.first);
        QCOMPARE(canvas.workspace->itemAt({50, 50}), canvas.first);
        group->setZ(1);

        auto *added = new WorkspaceItemBase;
        added->setParent(canvas.workspace);
        added->setParentItem(canvas.workspace);
        QCOMPARE(added->parentItem(), canvas.workspace->plane());
        QCOMPARE(canvas.workspace->items().size(), 4);
        canvas.workspace->setUnit(2.0);
        QCOMPARE(canvas.first->x(), 80.0);
        QCOMPARE(canvas.first->planeRect(), QRectF(40, 40, 40, 40));
    }

    void whatIsHeard()
    {
        SeenPage page{{}};
        const auto made = page.make(u"RWorkspaceBase { width: 200; height: 100; Accessible.name: 'Rack'\n"
                                    "RWorkspaceItemBase { Accessible.name: 'Amplifier'; position: Qt.point(8, 16); "
                                    "width: 40; height: 40 }\n"
                                    "RWorkspaceItemBase { Accessible.name: 'Mixer'; width: 4; height: 4 } }"_s);
        auto *workspace = qobject_cast<WorkspaceBase *>(made.get());
        QVERIFY(workspace);
        auto *item = qobject_cast<WorkspaceItemBase *>(workspace->items().first());
        page.window.show();
        QTRY_VERIFY(item->inView());
        QAccessibleInterface *pane = QAccessible::queryAccessibleInterface(workspace);
        QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(item);
        QVERIFY(pane && seen);
        QCOMPARE(pane->role(), QAccessible::LayeredPane);
        QCOMPARE(pane->text(QAccessible::Name), u"Rack"_s);
        QCOMPARE(seen->role(), QAccessible::Button);
        QCOMPARE(seen->text(QAccessible::Name), u"Amplifier"_s);
        QCOMPARE(seen->text(QAccessible::Description), u"8, 16"_s);
        QVERIFY(seen->state().selectable && !seen->state().selected);
        seen->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QVERIFY(item->selected() && seen->state().selected);
        QCOMPARE(seen->text(QAccessible::Description), u"8, 16, selected"_s);
        QCOMPARE(pane->childCount(), 2);
        QCOMPARE(pane->child(0)->text(QAccessible::Name), u"Mixer"_s);
        QCOMPARE(pane->child(1), seen);
        QCOMPARE(pane->indexOfChild(seen), 1);
        QVERIFY(!pane->child(2));
    }

    void blocksAreHeard_data()
    {
        const auto row = rowsOf([](const QString &item, const QString &bar, const QStringList &heard) {
            SeenPage page{{}};
            const auto made = page.make(u"RWorkspace { width: 200; height: 100; RWorkspaceItem { "_s + item +
                                        u"; valueBar: RWorkspaceItemValueBar { "_s + bar + u" } } }"_s);
            auto *workspace = qobject_cast<WorkspaceBase *>(made.get());
            QVERIFY(workspace);
            page.window.show();
            QObject *block = workspace->items().first();
            QTRY_VERIFY(block->property("valueBarItem").value<QQuickItem *>());
            QStringList texts;
            for (QObject *part : {block, block->property("valueBarItem").value<QObject *>()}) {
                QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(part);
                QVERIFY(seen);
                texts << seen->text(QAccessible::Name) << seen->text(QAccessible::Description);
                QCOMPARE(seen->role(), part == block ? QAccessible::Button : QAccessible::ProgressBar);
            }
            QCOMPARE(texts, heard);
        });
        row("plain", u"title: 'Amp'"_s, u"value: 30"_s, QStringList({u"Amp"_s, u"0, 0"_s, u"value"_s, u"30 %"_s}));
        row("without a title", u"locked: true"_s, u"from: -60; to: 0; value: -15; label: 'Load'"_s,
            QStringList({u"Item"_s, u"0, 0, locked"_s, u"Load"_s, u"75 %"_s}));
        row("own words", u"title: 'Amp'; position: Qt.point(8, 16)"_s, u"value: 30; text: '30 W'"_s,
            QStringList({u"Amp"_s, u"8, 16"_s, u"value"_s, u"30 W"_s}));
        row("no value", u"title: 'Amp'"_s, u"value: NaN"_s,
            QStringList({u"Amp"_s, u"0, 0"_s, u"value"_s, u"no value"_s}));
    }
    void blocksAreHeard() { checkRow(); }
};

template struct TestClass<tst_Workspace>;
#include "tst_Workspace.moc"
