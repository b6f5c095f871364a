#include "GalleryInstallation.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <QtCore/QTemporaryDir>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickView>

#include <memory>

namespace {

constexpr auto planPage = R"(
    import QtQuick
    import TambleClient.Control 1.0
    import "file:%1/festival"

    Item {
        property alias plan: plan

        width: 1000
        height: 700

        RThemeSelector {
            themeComponent: Component { RTheme {} }
        }
        RStyleEngineSetup {
            engine.defaultStyleSheetSource: "qrc:/style/tamble.dark.style"
        }
        StageView {
            id: plan
            anchors.fill: parent
        }
    })";

/// The plan in a window, and the installation behind it.
struct Plan
{
    Plan()
        : installation(1, nullptr)
        , model(*installation.stage())
    {
        // What Qt keeps of these files knows properties by their places, which change with the module.
        qputenv("QML_DISK_CACHE_PATH", cache.path().toUtf8());
        installation.setStepped(true);
        qmlRegisterUncreatableType<StageModel>("Gallery", 1, 0, "StageModel", QStringLiteral("of the installation"));
        qmlRegisterSingletonType<GalleryInstallation>("Gallery", 1, 0, "GalleryInstallation",
                                                      &GalleryInstallation::create);
        window.engine()->addImportPath(QStringLiteral(TAMBLE_QML_DIRECTORY));
        QQmlComponent component(window.engine());
        component.setData(QString::fromLatin1(planPage).arg(QStringLiteral(TAMBLE_GALLERY_DIRECTORY)).toUtf8(), {});
        auto *page = qobject_cast<QQuickItem *>(component.create());
        if (!page) {
            qWarning() << component.errors();
            return;
        }
        window.setContent({}, nullptr, page);
        window.show();
        view = page->property("plan").value<QQuickItem *>();
        workspace = view->property("workspace").value<QQuickItem *>();
    }

    bool isReady() { return workspace && QTest::qWaitForWindowExposed(&window); }
    QPointF placeInModel(int row) const { return model.index(row).data(StageModel::PlaceRole).toPointF(); }
    QObject *block(int row) const
    {
        QObject *item = nullptr;
        QMetaObject::invokeMethod(workspace, "itemById", Q_RETURN_ARG(QObject *, item),
                                  Q_ARG(QString, model.idOf(row)));
        return item;
    }
    QPointF placeOnPlan(int row) const { return block(row)->property("position").toPointF(); }
    /// In pixels of the window, where a click hits the block.
    QPoint pixel(int row) const
    {
        QPointF place;
        QMetaObject::invokeMethod(workspace, "mapFromPlane", Q_RETURN_ARG(QPointF, place),
                                  Q_ARG(QPointF, placeOnPlan(row) + QPointF(40, 40)));
        return workspace->mapToScene(place).toPoint();
    }
    void drag(int row, const QPoint &by, Qt::KeyboardModifiers modifiers = {})
    {
        const QPoint from = pixel(row);
        QTest::mousePress(&window, Qt::LeftButton, modifiers, from);
        QTest::mouseMove(&window, from + by / 2);
        QTest::mouseMove(&window, from + by);
        QTest::mouseRelease(&window, Qt::LeftButton, modifiers, from + by);
    }
    double number(const char *property) const { return workspace->property(property).toDouble(); }
    /// What the plan has at a point of the window.
    QPointF planeAt(const QPointF &place) const
    {
        QPointF plane;
        QMetaObject::invokeMethod(workspace, "mapToPlane", Q_RETURN_ARG(QPointF, plane),
                                  Q_ARG(QPointF, workspace->mapFromScene(place)));
        return plane;
    }
    void show(int row) { QMetaObject::invokeMethod(view, "show", Q_ARG(int, row)); }
    QStringList selected() const
    {
        return view->property("selection").value<QObject *>()->property("ids").toStringList();
    }

    QTemporaryDir cache;
    GalleryInstallation installation;
    StageModel &model;
    QQuickView window;
    QQuickItem *view = nullptr;
    QQuickItem *workspace = nullptr;
};

constexpr int amplifier = 0;

} // namespace

class tst_StageView : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void movesAreUndone()
    {
        Plan plan;
        QVERIFY(plan.isReady());
        plan.show(amplifier);
        const QPointF before = plan.placeInModel(amplifier);
        plan.drag(amplifier, {80, 48});
        const QPointF after = plan.placeInModel(amplifier);
        QVERIFY(after.x() > before.x() && after.y() > before.y());
        QCOMPARE(plan.placeOnPlan(amplifier), after);
        EditHistory &history = *plan.installation.history();
        for (int i = 0; i < 3; ++i) {
            history.undo();
            QCOMPARE(plan.placeOnPlan(amplifier), before);
            history.redo();
            QCOMPARE(plan.placeOnPlan(amplifier), after);
        }
        // What the model says from elsewhere still counts, too.
        plan.model.place({{amplifier, QPointF(240, 240)}});
        QCOMPARE(plan.placeOnPlan(amplifier), QPointF(240, 240));
    }

    void selectionIsArranged()
    {
        Plan plan;
        QVERIFY(plan.isReady());
        plan.show(27);
        QTest::mouseClick(&plan.window, Qt::LeftButton, Qt::ControlModifier, plan.pixel(36));
        QCOMPARE(plan.selected().size(), 2);
        QMetaObject::invokeMethod(plan.view, "align", Q_ARG(int, int(Qt::AlignLeft)));
        QCOMPARE(plan.placeInModel(36).x(), plan.placeInModel(27).x());
        QCOMPARE(plan.installation.history()->count(), 1);
    }

    // What the pointer is on stays under it.
    void wheel_data()
    {
        const auto row =
            rowsOf([](const QPoint &angle, Qt::KeyboardModifiers modifiers, double factor, const QPoint &direction) {
                Plan plan;
                QVERIFY(plan.isReady());
                const QPointF place(600, 400);
                const QPointF before = plan.planeAt(place);
                const double zoom = plan.number("zoom");
                QWheelEvent event(place, place, {}, angle, Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
                QCoreApplication::sendEvent(&plan.window, &event);
                QCOMPARE(plan.number("zoom"), zoom * factor);
                const auto signOf = [](double way) { return way > 1.0 ? 1 : way < -1.0 ? -1 : 0; };
                const QPointF way = plan.planeAt(place) - before;
                QCOMPARE(QPoint(signOf(way.x()), signOf(way.y())), direction);
            });
        row("down", QPoint(0, -120), Qt::KeyboardModifiers(), 1.0, QPoint(0, 1));
        row("up", QPoint(0, 120), Qt::KeyboardModifiers(), 1.0, QPoint(0, -1));
        row("to the right", QPoint(0, -120), Qt::KeyboardModifiers(Qt::ShiftModifier), 1.0, QPoint(1, 0));
        row("nearer", QPoint(0, 120), Qt::KeyboardModifiers(Qt::ControlModifier), 1.25, QPoint());
        row("farther", QPoint(0, -240), Qt::KeyboardModifiers(Qt::ControlModifier), 0.64, QPoint());
    }
    void wheel() { checkRow(); }

    void fingers()
    {
        Plan plan;
        QVERIFY(plan.isReady());
        const std::unique_ptr<QPointingDevice> screen(QTest::createTouchDevice());
        const double zoom = plan.number("zoom");
        const QPointF middle = plan.planeAt({600, 400});
        QTest::touchEvent(&plan.window, screen.get()).press(0, {500, 400}).press(1, {700, 400});
        for (const int reach : {110, 130, 160, 200})
            QTest::touchEvent(&plan.window, screen.get()).move(0, {600 - reach, 400}).move(1, {600 + reach, 400});
        QTest::touchEvent(&plan.window, screen.get()).release(0, {400, 400}).release(1, {800, 400});
        QVERIFY2(plan.number("zoom") > 1.4 * zoom, qPrintable(QString::number(plan.number("zoom") / zoom)));
        QVERIFY(QLineF(plan.planeAt({600, 400}), middle).length() < 16.0);

        // On a block one finger moves that, beside it the plan.
        plan.show(amplifier);
        const QPointF before = plan.placeInModel(amplifier);
        const auto stroke = [&](const QPoint &from) {
            QTest::touchEvent(&plan.window, screen.get()).press(0, from);
            for (const int way : {20, 40, 60})
                QTest::touchEvent(&plan.window, screen.get()).move(0, from + QPoint(0, way));
            QTest::touchEvent(&plan.window, screen.get()).release(0, from + QPoint(0, 60));
        };
        stroke(plan.pixel(amplifier));
        QVERIFY(plan.placeInModel(amplifier).y() > before.y());
        const QPointF moved = plan.placeInModel(amplifier);
        const double view = plan.number("viewY");
        stroke(plan.pixel(amplifier) - QPoint(0, 90));
        QVERIFY(plan.number("viewY") < view);
        QCOMPARE(plan.placeInModel(amplifier), moved);
    }

    void nameIsUndone()
    {
        Plan plan;
        QVERIFY(plan.isReady());
        const QString before = plan.view->property("title").toString();
        QMetaObject::invokeMethod(plan.view, "titleEdited", Q_ARG(QString, QStringLiteral("Hall")));
        QCOMPARE(plan.view->property("title").toString(), QStringLiteral("Hall"));
        plan.installation.history()->undo();
        QCOMPARE(plan.view->property("title").toString(), before);
        plan.drag(amplifier, {8, 8});
        QVERIFY(!plan.view->property("modified").toBool());
    }

    void showProtectsThePlan()
    {
        Plan plan;
        QVERIFY(plan.isReady());
        plan.show(amplifier);
        plan.view->setProperty("readOnly", true);
        const QPointF before = plan.placeOnPlan(amplifier);
        plan.drag(amplifier, {80, 48});
        plan.workspace->forceActiveFocus();
        QTest::keyClick(&plan.window, Qt::Key_Right);
        QCOMPARE(plan.placeOnPlan(amplifier), before);
        QCOMPARE(plan.installation.history()->count(), 0);
    }

    void searchComesToTheBlock()
    {
        Plan plan;
        QVERIFY(plan.isReady());
        const int row = plan.model.nextWith(QStringLiteral("24.4.16"), -1);
        QVERIFY(!plan.block(row)->property("inView").toBool());
        plan.show(row);
        QCOMPARE(plan.selected(), QStringList{plan.model.idOf(row)});
        QTRY_VERIFY(plan.block(row)->property("inView").toBool());
        plan.show(-1);
        QCOMPARE(plan.selected(), QStringList{plan.model.idOf(row)});
    }

    void blocksSayWhatDevicesSay()
    {
        Plan plan;
        QVERIFY(plan.isReady());
        plan.show(amplifier);
        QTRY_VERIFY(plan.block(amplifier)->property("valueBarItem").value<QQuickItem *>());
        plan.installation.dropOut(amplifier, 5000);
        plan.installation.advance(200);
        QCOMPARE(plan.block(amplifier)->property("statusIconKey").toString(), QStringLiteral("offline"));
        QVERIFY(plan.block(amplifier)->property("valueBarItem").value<QQuickItem *>()->property("alarm").toBool());
    }
};

template struct TestClass<tst_StageView>;
#include "tst_StageView.moc"
