#include "bodeplot/CurvePage.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <cmath>

using namespace tamble::client;

/// What the user does to the handles of a curve, and what the page is told of it.
class tst_CurveGestures : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void selection()
    {
        const Page page("calculationItems: [ RBodeplotEqFilter {},\n"
                        "RBodeplotAsymmetricEqFilter { label: selected ? 'chosen' : 'plain' } ]");
        Curve *curve = page.curve;
        const auto selected = [&] {
            QByteArray flags;
            for (const QObject *model : curve->filterPointModels())
                flags += model->property("selected").toBool() ? '1' : '0';
            for (int i = 0; i < 2; ++i)
                flags += page.filter(i)->property("selected").toBool() ? 'S' : '-';
            return flags;
        };
        QSignalSpy pressed(curve, &RBodeplotCurve::userSelectedFilterPoint);
        curve->onUserSelectFilterPoint(2);
        QCOMPARE(pressed, (QList<QVariantList>{{2, 1}}));
        QCOMPARE(selected(), "001-S");
        QCOMPARE(curve->handle(2)->property("label"), "chosen"); // the filter's answer
        curve->onUserMoveFilterPoint(2, {0.5, 0.5});
        QCOMPARE(selected(), "001-S");
        page.filter(0)->setProperty("selected", true);
        QCOMPARE(selected(), "100S-");
        curve->selectFilterPointBySystem(1);
        QCOMPARE(selected(), "010-S");
        curve->selectFilterPointBySystem(7);
        QCOMPARE(selected(), "000--");
        QCOMPARE(pressed.count(), 1);
    }

    void dragTellsThePage()
    {
        const Page page(
            "property var told: []; onUserChangedFilterPoint: (index, type, frequency, gain, quality) => {\n"
            "told.push(index, type, frequency, gain, quality); calculationItems[index].freq = frequency\n"
            "calculationItems[index].gain = gain }\n"
            "calculationItems: [ RBodeplotXOverFilter {}, RBodeplotEqFilter { quality: 2 } ]");
        Curve *curve = page.curve;
        QSignalSpy listChanged(curve, &RBodeplotCurve::filterPointModelsChanged);
        curve->onUserMoveFilterPoint(1, {2.0 / 3.0, 0.25});
        QCOMPARE(curve->property("told").toList(), (QVariantList{1, "EQ", 2000.0, 10.0, 2.0}));
        QVERIFY(std::abs(curve->column(200) - 100.0) < 0.1);
        QCOMPARE(listChanged.count(), 0);
        curve->onUserChangeFilterPointQuality(1, 2.0, 200.0);
        QCOMPARE(curve->handle(1)->property("quality"), 40.0);
        QCOMPARE(curve->property("told").toList().size(), 10);
    }

    void heldValuesWait()
    {
        const Page page("settleTime: 20; calculationItems: RBodeplotEqFilter { gain: 3 }");
        Curve *curve = page.curve;
        curve->holdFilterPoint(0);
        curve->onUserMoveFilterPoint(0, {0.5, 0.25});
        page.filter(0)->setProperty("gain", 4.0);
        QCOMPARE(curve->handle(0)->gain(), 10.0);
        curve->onCalculationItemsChanged();
        QCOMPARE(curve->handle(0)->gain(), 10.0);
        curve->releaseFilterPoint();
        QCOMPARE(curve->handle(0)->gain(), 10.0);
        QTRY_COMPARE(curve->handle(0)->gain(), 4.0);
        page.filter(0)->setProperty("gain", 5.0);
        QCOMPARE(curve->handle(0)->gain(), 5.0);

        // Another type, missed during a hold, leaves the handles alone until that has settled.
        curve->holdFilterPoint(0);
        page.filter(0)->setProperty("type", 3);
        page.filter(0)->setProperty("freq", 300.0);
        curve->releaseFilterPoint(0);
        QCOMPARE(curve->handle(0)->moveMode(), HandleMotion::Both);
        QTRY_COMPARE(curve->handle(0)->moveMode(), HandleMotion::Horizontal);

        // A filter that goes while its handle is held takes the hold with it.
        curve->holdFilterPoint(0);
        delete page.filter(0);
        curve->releaseFilterPoint();
        QCOMPARE(curve->filterPointModels().size(), 0);
    }

    void answersEndTheWait()
    {
        const Page page("settleTime: 60000; calculationItems: RBodeplotEqFilter { gain: 3 }");
        Curve *curve = page.curve;
        curve->holdFilterPoint(0);
        curve->onUserMoveFilterPoint(0, {0.5, 0.25});
        curve->releaseFilterPoint();
        page.filter(0)->setProperty("freq", curve->handle(0)->frequency());
        QCOMPARE(curve->handle(0)->gain(), 10.0);
        page.filter(0)->setProperty("gain", 10.0);
        page.filter(0)->setProperty("gain", 4.0);
        QCOMPARE(curve->handle(0)->gain(), 4.0);

        // A page that has written the edit at once has not answered.
        curve->holdFilterPoint(0);
        curve->onUserMoveFilterPoint(0, {0.5, 0.25});
        page.filter(0)->setProperty("gain", curve->handle(0)->gain());
        curve->releaseFilterPoint();
        page.filter(0)->setProperty("gain", 4.0);
        QCOMPARE(curve->handle(0)->gain(), 10.0);
    }

    void refusedEdits_data()
    {
        // gesture: of a handle at 200 Hz to 2000 Hz
        // frequency: of handle and record, when all has settled
        const auto row = rowsOf([](const QByteArray &gesture, double frequency) {
            const Page page("settleTime: 20; function gesture() { " + gesture + " }\n" +
                            "calculationItems: [ RBodeplotEqFilter { freq: 200; gain: 10 }, RBodeplotEqFilter {} ]");
            Curve *curve = page.curve;
            QMetaObject::invokeMethod(curve, "gesture");
            QVERIFY(std::abs(curve->handle(0)->frequency() - 2000.0) < 1e-6);
            QSignalSpy moved(curve->handle(0), &RBodeplotPointModel::frequencyChanged);
            QCOMPARE(moved.wait(60), frequency < 1000.0);
            QTRY_VERIFY(std::abs(curve->handle(0)->frequency() - frequency) < 1e-6);
            QVERIFY(std::abs(curve->column(frequency < 1000.0 ? 100 : 200) - 100.0) <
                    (frequency < 1000.0 ? 0.1 : 150.0));
            QCOMPARE(page.filter(0)->property("freq"), 200.0);
        });
        const QByteArray move = "onUserMoveFilterPoint(0, Qt.point(2 / 3, 0.5)); ";
        row("held", QByteArray("holdFilterPoint(0); " + move + "releaseFilterPoint()"), 200.0);
        row("held, another is held at once",
            QByteArray("holdFilterPoint(0); " + move + "releaseFilterPoint(); holdFilterPoint(1)"), 200.0);
        row("held and never released",
            QByteArray("holdFilterPoint(0); " + move + "holdFilterPoint(1); releaseFilterPoint()"), 200.0);
        row("the list is made anew meanwhile",
            QByteArray("holdFilterPoint(0); " + move + "releaseFilterPoint(); onCalculationItemsChanged()"), 200.0);
        row("held again", QByteArray("holdFilterPoint(0); " + move + "releaseFilterPoint(); holdFilterPoint(0)"),
            2000.0);
        row("bare call", move, 2000.0);
    }
    void refusedEdits() { checkRow(); }

    void asymmetricBandIsToldBeforeItMoves()
    {
        const Page page("calculationItems: RBodeplotAsymmetricEqFilter { freq: 200; freq2: 2000; gain: 5 }");
        Curve *curve = page.curve;
        QStringList order;
        const auto note = [&](const char *what, double value) {
            order.append(QStringLiteral("%1 %2").arg(QLatin1String(what)).arg(value, 0, 'g', 4));
        };
        for (const int handle : {0, 1}) {
            RBodeplotPointModel *model = curve->handle(handle);
            const char *name = handle == 0 ? "first" : "second";
            connect(model, &RBodeplotPointModel::pointChanged, this, [=] { note(name, curve->point(handle).y()); });
            connect(model, &RBodeplotPointModel::gainChanged, this, [=] { note("gain", model->gain()); });
        }
        connect(curve, &RBodeplotCurve::userChangedFilterPoint, this,
                [&](int, const QString &type, float frequency, float gain, float) {
                    note(qPrintable(type), double(frequency));
                    note("of", double(gain));
                });
        const QStringList gains{"gain 10", "gain 10"};
        curve->onUserMoveFilterPoint(0, {0.5, 0.25});
        QCOMPARE(order, (QStringList{"ASYMEQ1 200", "of 5", "second 0.25", "first 0.25"} + gains));
        order.clear();
        curve->onUserMoveFilterPoint(1, {1.0, 0.5});
        QCOMPARE(order.mid(0, 4), (QStringList{"ASYMEQ2 2000", "of 10", "first 0.5", "second 0.5"}));
        QCOMPARE(curve->handle(0)->frequency(), 200.0);

        // What the page answers with does not get in the way.
        connect(curve, &RBodeplotCurve::userChangedFilterPoint, this, [&] { delete page.filter(0); });
        curve->onUserMoveFilterPoint(0, {0.25, 0.3});
        QCOMPARE(curve->filterPointModels().size(), 0);
    }

    void asymmetricBandTellsItsLastStep()
    {
        const Page page("calculationItems: RBodeplotAsymmetricEqFilter { freq: 20; freq2: 200 }");
        QSignalSpy told(page.curve, &RBodeplotCurve::userChangedFilterPoint);
        page.curve->holdFilterPoint(1);
        page.curve->onUserMoveFilterPoint(1, {2.0 / 3.0, 0.25});
        QCOMPARE(told.takeLast().value(2).toDouble(), 200.0);
        page.curve->releaseFilterPoint();
        page.curve->releaseFilterPoint();
        QCOMPARE(told, (QList<QVariantList>{{0, "ASYMEQ2", 2000.0f, 10.0f, 1.0f}}));
    }

    void cancelledDrag()
    {
        const Page page(
            "calculationItems: RBodeplotAsymmetricEqFilter { freq: 200; freq2: 2000; gain: 5; quality2: 1.5 }");
        Curve *curve = page.curve;
        curve->holdFilterPoint(1);
        curve->onUserMoveFilterPoint(1, {0.9, 0.3});
        curve->onUserMoveFilterPoint(1, {0.8, 0.4});
        curve->onUserChangeFilterPointQuality(1, 1.5, 100.0);
        QSignalSpy told(curve, &RBodeplotCurve::userChangedFilterPoint);
        curve->cancelFilterPoint();
        QCOMPARE(told, (QList<QVariantList>{{0, "ASYMEQ2", 2000.0f, 5.0f, 1.5f}}));
        QCOMPARE(curve->point(1), QPointF(2.0 / 3.0, 0.375));
        curve->releaseFilterPoint();
        curve->cancelFilterPoint();
        QCOMPARE(told.count(), 1);
    }
};

template struct TestClass<tst_CurveGestures>;
#include "tst_CurveGestures.moc"
