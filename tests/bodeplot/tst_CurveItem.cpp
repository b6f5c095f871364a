#include "bodeplot/CurvePage.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <QtCore/QLibraryInfo>
#include <QtCore/QVersionNumber>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace tamble::client;

/// The curve as pages use it: lists of filters and handle models.
class tst_CurveItem : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void declaredFilters()
    {
        QTest::ignoreMessage(
            QtWarningMsg, "calculationItemsQListToStdVector() calculationItem at index 1 is not an RBodeplotEqFilter / "
                          "RBodeplotXOverFilter / RBodeplotFIRFilter / RBodeplotAsymmetricEqFilter");
        const Page page("calculationItems: [ RBodeplotEqFilter { freq: 200; gain: 10; label: 'a' },\n"
                        "RBodeplotCalculationItem {}, RBodeplotXOverFilter { type: 12; freq: 20000 },\n"
                        "RBodeplotEqFilter { visible: false; bypass: true } ]");
        QCOMPARE(page.curve->filterPointModels().size(), 3);
        QCOMPARE(page.curve->point(0), QPointF(1.0 / 3.0, 0.25));
        QCOMPARE(page.curve->handle(0)->property("label"), "a");
        QCOMPARE(page.curve->handle(1)->property("label"), "LP");
        QCOMPARE(page.curve->handle(2)->property("visiblePoint"), false);
        QVERIFY(page.curve->point(2).x() < 0.0);
        // The peak of 10 dB is where its handle is, a third of the way at three quarters of the height.
        QVERIFY(std::abs(page.curve->column(100) - 100.0) < 0.1);
        QCOMPARE(page.curve->lines().records().size(), std::size_t(3));
        QVERIFY(page.curve->lines().records()[2].columns.empty());
    }

    void listOfPlainObjects()
    {
        const Page page("calculationItemsReference: root.bands\n",
                        "id: root; property list<QtObject> bands: [ QtObject { property real freq: 1000.1 },\n"
                        "QtObject { property int type: 12; property var gain: 'loud'\n"
                        "property real freq: 200; property string label: 'asym' },\n"
                        "QtObject { property real freq: 300; property bool selected: true } ]");
        Curve *curve = page.curve;
        QCOMPARE(curve->filterPointModels().size(), 4);
        QCOMPARE(curve->handle(0)->property("label"), "1");
        QCOMPARE(curve->handle(0)->frequency(), 1000.0999755859375);
        QCOMPARE(curve->handle(1)->property("label"), "asym");
        QCOMPARE(curve->handle(1)->gain(), 0.0);
        QCOMPARE(curve->handle(2)->frequency(), 20.0);

        QObject *odd = curve->calculationItemsReference().at(1);
        odd->setProperty("freq", 2000.0);
        QCOMPARE(curve->handle(1)->frequency(), 2000.0);
        delete odd;
        QCOMPARE(curve->filterPointModels().size(), 2);
        QVERIFY(curve->handle(1)->property("selected").toBool());
        curve->calculationItemsReference().at(2)->setProperty("freq", 400.0);
        QCOMPARE(curve->handle(1)->property("label"), "3"); // where it is in the list still
        QCOMPARE(curve->handle(1)->frequency(), 400.0);
    }

    void badInput_data()
    {
        // y: of column 150, -1: nothing is drawn
        const Rows<QByteArray, double> row;
        const QByteArray peak = "calculationItems: RBodeplotEqFilter { gain: 10; ";
        const QByteArray sound = peak + "freq: 632.4555 } ";
        row("sound", sound, 100.0);
        row("frequency is no number", peak + "freq: NaN }", 200.0);
        row("Q is no number", peak + "freq: 632.4555; quality: NaN }", 100.0);
        row("unknown type", peak + "freq: 632.4555; type: 77 }", 200.0);
        row("no sample rate", sound + "samplerate: 0", 200.0);
        row("level range is no number", sound + "yMaximum: NaN", 400.0);
        row("trim is no number", sound + "trim: NaN", 400.0);
        row("no height", sound + "Component.onCompleted: height = 0.9", -1.0);
    }

    void badInput()
    {
        const auto &[body, y] = Rows<QByteArray, double>::current();
        const Page page(body);
        if (y < 0.0)
            QCOMPARE(page.curve->lines().aggregated().points.count(), std::size_t(0));
        else
            QVERIFY(std::abs(page.curve->column(150) - y) < 0.5);
    }

    void hugeItems_data()
    {
        const Rows<QSizeF, std::size_t> row;
        constexpr std::size_t most = 16384;
        constexpr double infinite = std::numeric_limits<double>::infinity();
        row("wide", QSizeF(1e9, 400.0), most);
        row("wider than an int", QSizeF(4294967296.0, 400.0), most);
        row("high", QSizeF(300.0, 4294967296.0), 300);
        row("both", QSizeF(1e300, 1e300), most);
        row("endless", QSizeF(infinite, 400.0), 0);
    }

    void hugeItems()
    {
        const auto &[size, columns] = Rows<QSizeF, std::size_t>::current();
        const Page page("calculationItems: RBodeplotEqFilter { gain: 10; freq: 632.4555 }");
        page.curve->setSize(size);
        const ResponseLine &sum = page.curve->lines().aggregated();
        QCOMPARE(sum.columns.size(), columns);
        if (columns == 0)
            return;
        // The peak is in the middle of the item and the line goes on to its end.
        QVERIFY(std::abs(sum.columns[columns / 2] / std::min(size.height(), 16384.0) - 0.25) < 1e-4);
        const auto highest = std::ranges::min(sum.points.points, {}, &QPointF::y);
        QVERIFY(std::abs(highest.y() / size.height() - 0.25) < 1e-4);
        QVERIFY(std::abs(highest.x() / size.width() - 0.5) < 1e-2);
        QVERIFY(sum.points.points.back().x() >= size.width() * 0.999);
    }

    void wrongUse_data()
    {
        // told: empty: nothing
        const Rows<QByteArray, QString> row;
        const QString noFilter = QStringLiteral("what is no filter item.*calculationItemsReference");
        const QString unlisted = QStringLiteral("only a child of its curve.*calculationItems");
        const QString slope = QStringLiteral("no such slope.*SLOPE_TWELVE_DB_SLOPE \\(2\\)");
        const QByteArray children = "RBodeplotEqFilter { id: a } RBodeplotEqFilter { id: b }\n";
        const QByteArray later = "Component.onCompleted: calculationItems = ";
        row("right", children + "calculationItems: [a, b]", {});
        row("listed at last", children + later + "[b, a]", {});
        row("as plain objects", children + "property list<QtObject> all: [a, b]; calculationItemsReference: all", {});
        row("no filter", children + later + "[a, b, curve, 5]", noFilter);
        row("null", children + later + "[null, a, b]", noFilter);
        row("only a child", children + "calculationItems: b", unlisted);
        row("slope in dB",
            "calculationItems: [ RBodeplotEqFilter { type: 3; slope: 12 },\n"
            "RBodeplotEqFilter { slope: 6 } ]",
            slope);
        row("slope set later", children + "calculationItems: [a, b]; Component.onCompleted: b.slope = -1", slope);
    }

    void wrongUse()
    {
        const auto &[body, told] = Rows<QByteArray, QString>::current();
        if (!told.isEmpty())
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(told));
        if (body.contains("curve, 5") && QLibraryInfo::version() >= QVersionNumber(6, 8))
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Cannot append .* to a QML list")));
        const Page page(body);
        QCoreApplication::processEvents();
        // Once is enough.
        if (QObject *filter = page.filter(0))
            filter->setProperty("slope", filter->property("slope").toInt() > 2 ? 6 : 1);
        page.curve->onCalculationItemsChanged();
    }

    void assignedListKeepsItsHandles()
    {
        const Page page("RBodeplotEqFilter { id: a; freq: 200; gain: 10 } RBodeplotEqFilter { id: b }\n"
                        "calculationItems: [a, b]\n"
                        "function assign(text) { calculationItems = text === 'ab' ? [a, b] : [b] }\n");
        Curve *curve = page.curve;
        const auto assign = [&](const char *list) {
            QMetaObject::invokeMethod(curve, "assign", Q_ARG(QVariant, QString::fromLatin1(list)));
        };
        QSignalSpy modelsChanged(curve, &RBodeplotCurve::filterPointModelsChanged);
        const QList<QObject *> models = curve->filterPointModels();
        assign("ab");
        curve->onUserMoveFilterPoint(0, {0.5, 0.4});
        QCOMPARE(curve->filterPointModels(), models);
        assign("b");
        assign("ab");
        QCOMPARE(curve->filterPointModels(), models);
        QCOMPARE(modelsChanged.count(), 0);
        assign("b");
        QTRY_COMPARE(modelsChanged.count(), 1);
        QCOMPARE(curve->lines().records().size(), std::size_t(1));
        assign("ab");
        QCOMPARE(curve->filterPointModels().size(), 2);
        QTRY_COMPARE(modelsChanged.count(), 2);
    }

    void filterChangesFollowInPlace()
    {
        const Page page("calculationItems: [ RBodeplotEqFilter { freq: 200; gain: 10 }, RBodeplotEqFilter {} ]");
        Curve *curve = page.curve;
        QSignalSpy listChanged(curve, &RBodeplotCurve::filterPointModelsChanged);
        const QList<QObject *> models = curve->filterPointModels();
        const unsigned other = curve->lines().records()[1].revision;

        page.filter(0)->setProperty("gain", -10.0);
        QCOMPARE(curve->point(0), QPointF(1.0 / 3.0, 0.75));
        QVERIFY(std::abs(curve->column(100) - 300.0) < 0.1);
        QCOMPARE(curve->lines().records()[1].revision, other);

        page.filter(0)->setProperty("type", int(RBodeplotEqTypeEnum::EQ_NOTCH));
        QCOMPARE(curve->handle(0)->moveMode(), HandleMotion::Horizontal);
        QCOMPARE(curve->filterPointModels(), models);
        QCOMPARE(listChanged.count(), 0);

        QTest::ignoreMessage(QtDebugMsg,
                             "RBodeplotCurve::onCalculationItemsChanged() filterPoint at index 1 is of EQType "
                             "asymmetric but class type is not AsymmetricEqFilterExtended");
        page.filter(1)->setProperty("type", 12);
        page.filter(1)->setProperty("type", 0);
        page.filter(1)->setProperty("visible", false);
        QVERIFY(curve->lines().records()[1].columns.empty());
        QVERIFY(curve->point(1).x() < 0.0);
    }

    void destroyedFilters()
    {
        const Page page("calculationItems: [ RBodeplotEqFilter { gain: 5 }, RBodeplotXOverFilter {} ]");
        delete page.filter(0);
        QCOMPARE(page.curve->filterPointModels().size(), 1);
        QCOMPARE(page.curve->handle(0)->property("label"), "LP");
        page.curve->onUserMoveFilterPoint(0, {0.5, 0.5});
        delete page.filter(0);
        QCOMPARE(page.curve->filterPointModels().size(), 0);
        QTest::ignoreMessage(QtDebugMsg, "RBodeplotCurve::onUserMoveFilterPoint() index out of range "
                                         "(filterPointModels_); value 0 not between 0 and -1");
        page.curve->onUserMoveFilterPoint(0, {0.5, 0.5});
    }

    void firHeaderComesBack()
    {
        const Page page("calculationItems: RBodeplotFIRFilter { type: 1; freqHP: 200; labelHP: header.slice(-9) }");
        QObject *fir = page.filter(0);
        QCOMPARE(fir->property("header"), "VELA-Net FIR-Filter=HiPass 200 Hz, 512 taps");
        page.curve->onUserMoveFilterPoint(0, {2.0 / 3.0, 0.5});
        QCOMPARE(fir->property("header"), "VELA-Net FIR-Filter=HiPass 2000 Hz, 512 taps");
        QCOMPARE(fir->property("freqHP"), 200.0);
        QCOMPARE(page.curve->handle(0)->property("label"), " 512 taps");
    }

    void nativeRecords()
    {
        const Page page("calculationItems: RBodeplotXOverFilter {}");
        auto band = QSharedPointer<EqFilterExtended>::create();
        band->gain = 10.0;
        band->freq = 200.0;
        page.curve->refresh({band, nullptr});
        QCOMPARE(page.curve->filterPointModels().size(), 1);
        QVERIFY(std::abs(page.curve->column(100) - 100.0) < 0.1);
        page.curve->holdFilterPoint(0);
        page.curve->onUserMoveFilterPoint(0, {2.0 / 3.0, 0.5});
        page.curve->setProperty("settleTime", 0);
        page.curve->releaseFilterPoint();
        QCoreApplication::processEvents();
        QCOMPARE(band->freq, 2000.0);
        page.curve->onCalculationItemsChanged();
        QCOMPARE(page.curve->handle(0)->property("label"), "LP");
    }

    void outOfRangeIsLoggedOnce()
    {
        const Page page("calculationItems: RBodeplotEqFilter {}");
        // 300 columns over four decades of 4096/3 values each: column 225 is the first of the last decade.
        QTest::ignoreMessage(
            QtDebugMsg, "RBodeplotCurve::updateScaledCurve() index out of range value: 4096 not between 0 and 4095");
        page.curve->setProperty("xMaximum", 200000.0);
        page.curve->setProperty("xMaximum", 20000.0);
        page.curve->setProperty("resolution", 3000000); // more than are computed
        QVERIFY(std::isfinite(page.curve->column(299)));
        QTest::ignoreMessage(QtDebugMsg,
                             "RBodeplotCurve::updateScaledCurve() index out of range value: 0 not between 0 and -1");
        page.curve->setProperty("resolution", 0);
        QCOMPARE(page.curve->lines().aggregated().points.count(), std::size_t(0));
    }
};

template struct TestClass<tst_CurveItem>;
#include "tst_CurveItem.moc"
