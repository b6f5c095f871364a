#include "bodeplot/FilterSet.h"
#include "support/Numbers.h"
#include "support/TestProgram.h"

#include <QtCore/QObject>
#include <QtTest/QTest>

#include <cmath>

using namespace tamble::client;

namespace {

FilterRecord eq(int type, double frequency = 200.0, double gain = 6.0, double quality = 1.0, int slope = 0)
{
    auto record = QSharedPointer<EqFilterExtended>::create();
    record->type = type;
    record->freq = frequency;
    record->gain = gain;
    record->quality = quality;
    record->slope = slope;
    return record;
}

FilterRecord asymmetric()
{
    auto record = QSharedPointer<AsymmetricEqFilterExtended>::create();
    record->freq = 200.0;
    record->freq2 = 2000.0;
    record->gain = 5.0;
    record->quality = 0.5;
    record->quality2 = 1.5;
    return record;
}

FilterRecord xOver(int category)
{
    auto record = QSharedPointer<XOverFilterExtended>::create();
    record->category = category;
    record->freq = 2000.0;
    record->label = QStringLiteral("page");
    return record;
}

FilterRecord fir(int type, double highPass = 200.0, double lowPass = 2000.0)
{
    auto record = QSharedPointer<FIRFilterExtended>::create();
    record->type = type;
    record->freqHP = highPass;
    record->freqLP = lowPass;
    record->labelHP = QStringLiteral("h");
    record->labelLP = QStringLiteral("l");
    return record;
}

FilterSet setOf(FilterRecords records)
{
    FilterSet set;
    set.setRecords(std::move(records));
    return set;
}

template <typename Record>
const Record &recordIn(const FilterSet &set, std::size_t position = 0)
{
    return dynamic_cast<const Record &>(*set.records().at(position));
}

} // namespace

Q_DECLARE_METATYPE(tamble::client::FilterRecord)

/// Handles of filters, and what gestures make of their records.
class tst_FilterSet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void handles_data();
    void handles();
    void recordsWithoutHandles();
    void placing_data();
    void placing();
    void dragging_data();
    void dragging();
    void draggedFrequencySurvivesAnotherRange();
    void asymmetricBandLagsOneStep();
    void levelling_data();
    void levelling();
    void firHandlesKeepTheirDistance();
    void quality_data();
    void quality();
    void wrongIndices();
    void walkingByFrequency();
};

void tst_FilterSet::handles_data()
{
    QTest::addColumn<FilterRecord>("record");
    QTest::addColumn<QString>("described"); // relation, motion, label and level of each handle

    QTest::newRow("peaking") << eq(0) << "EQ 2 '' 6;";
    QTest::newRow("shelf with Q") << eq(11) << "EQ 2 '' 6;";
    for (const int type : {3, 4, 5, 8, 9})
        QTest::addRow("type %d has no gain", type) << eq(type) << "EQ 0 '' 0;";
    QTest::newRow("asymmetric") << asymmetric() << "ASYMEQ1 2 '' 5;ASYMEQ2 2 '' 5;";
    QTest::newRow("high pass") << xOver(1) << "XOVER 0 'HP' 0;";
    QTest::newRow("low pass") << xOver(0) << "XOVER 0 'LP' 0;";
    QTest::newRow("FIR low pass") << fir(0) << "FIRLP 0 'l' 0;";
    QTest::newRow("FIR high pass, minimum phase") << fir(4) << "FIRHP 0 'h' 0;";
    QTest::newRow("FIR band pass") << fir(2) << "FIRHP 0 'h' 0;FIRLP 0 'l' 0;";
    QTest::newRow("FIR from coefficients") << fir(255) << "";
}

void tst_FilterSet::handles()
{
    QFETCH(FilterRecord, record);
    QFETCH(QString, described);

    QString found;
    const FilterSet set = setOf({record});
    for (const FilterHandle &handle : set.handles()) {
        found += QStringLiteral("%1 %2 '%3' %4;")
                     .arg(relationText(handle.relation))
                     .arg(int(handle.motion))
                     .arg(handle.label)
                     .arg(handle.gainDb);
    }
    QCOMPARE(found, described);
}

void tst_FilterSet::recordsWithoutHandles()
{
    FilterSet set;
    const QString place = QStringLiteral("RBodeplotCurve::onCalculationItemsChanged() ");
    const QStringList expected{
        place + "skipping EQ filterPoint at index 0 (pointer is null)",
        place + "filterPoint at index 1 is of EQType asymmetric but class type is not AsymmetricEqFilterExtended",
        "Firtype not supported",
        place + "skipping CalculationItem on position 3 reason: not an EqFilter / XOverFilter / FIRFilter / AsymEq"};
    const FilterRecord unknown = QSharedPointer<tamble::common::EqFilter>::create();
    QCOMPARE(set.setRecords({FilterRecord(), eq(12), fir(67), unknown, eq(0)}), expected);
    QCOMPARE(set.handles().size(), std::size_t(1));
    QCOMPARE(set.recordOf(0), 4);
    QCOMPARE(relationText(set.relationOf(1)), "OUT OF RANGE");
}

void tst_FilterSet::placing_data()
{
    QTest::addColumn<double>("frequency");
    QTest::addColumn<double>("gain");
    QTest::addColumn<QPointF>("point"); // in 20 Hz to 20 kHz, +-20 dB

    QTest::newRow("inside") << 200.0 << 10.0 << QPointF(1.0 / 3.0, 0.25);
    QTest::newRow("on the edges") << 20000.0 << -20.0 << QPointF(1.0, 1.0);
    QTest::newRow("above") << 200.0 << 21.0 << QPointF(1.0 / 3.0, -1.0);
    QTest::newRow("below") << 200.0 << -21.0 << QPointF(1.0 / 3.0, 2.0);
    QTest::newRow("left") << 19.0 << 0.0 << QPointF(-1.0, 0.5);
    QTest::newRow("right") << 21000.0 << 0.0 << QPointF(2.0, 0.5);
    QTest::newRow("no numbers") << notANumber << notANumber << QPointF(-1.0, -1.0);
    QTest::newRow("negative frequency") << -5.0 << 0.0 << QPointF(-1.0, 0.5);
}

void tst_FilterSet::placing()
{
    QFETCH(double, frequency);
    QFETCH(double, gain);
    QFETCH(QPointF, point);

    const FilterRecord record = eq(0, frequency, gain);
    QCOMPARE(setOf({record}).handles().front().point, point);
    static_cast<EqFilterExtended &>(*record).visible = false;
    QCOMPARE(setOf({record}).handles().front().point, QPointF(-1.0, -1.0));
}

void tst_FilterSet::dragging_data()
{
    QTest::addColumn<FilterRecord>("record");
    QTest::addColumn<QPointF>("wanted");
    QTest::addColumn<double>("frequency");
    QTest::addColumn<double>("gain");
    QTest::addColumn<double>("quality");

    const QPointF middle(2.0 / 3.0, 0.375);
    QTest::newRow("peaking") << eq(0) << middle << 2000.0 << 5.0 << 1.0;
    QTest::newRow("to the top") << eq(0) << QPointF(0.0, 0.0) << 20.0 << 12.0 << 1.0;
    QTest::newRow("to the bottom") << eq(0) << QPointF(1.0, 1.0) << 20000.0 << -18.0 << 1.0;
    QTest::newRow("notch keeps to its line") << eq(9) << middle << 2000.0 << 0.0 << 1.0;
    QTest::newRow("crossover") << xOver(1) << middle << 2000.0 << 0.0 << 0.0;
    QTest::newRow("FIR") << fir(0) << middle << 2000.0 << 0.0 << 0.0;
}

void tst_FilterSet::dragging()
{
    QFETCH(FilterRecord, record);
    QFETCH(QPointF, wanted);
    QFETCH(double, frequency);
    QFETCH(double, gain);
    QFETCH(double, quality);

    FilterSet set = setOf({eq(0), record});
    const HandleEdit edit = set.move(1, wanted);
    QCOMPARE(edit.record, 1);
    QCOMPARE(edit.frequencyHz, frequency);
    QCOMPARE(edit.gainDb, gain);
    QCOMPARE(edit.quality, quality);
    QVERIFY(!set.move(1, QPointF(notANumber, 0.5)));
    QCOMPARE(set.handles()[1].frequencyHz, frequency);
}

void tst_FilterSet::draggedFrequencySurvivesAnotherRange()
{
    FilterSet set = setOf({eq(0)});
    set.move(0, {2.0 / 3.0, 0.375});
    set.setFrame({200.0, 2000.0, -10.0, 10.0});
    QCOMPARE(set.handles().front().point, QPointF(1.0, 0.25));
    set.setFrame({20.0, 200.0, -4.0, 4.0});
    QCOMPARE(set.handles().front().point, QPointF(2.0, -1.0));
    QCOMPARE(recordIn<EqFilterExtended>(set).freq, 2000.0);
}

void tst_FilterSet::asymmetricBandLagsOneStep()
{
    FilterSet set = setOf({asymmetric()});
    const HandleEdit first = set.move(1, {1.0, 0.25});
    QCOMPARE(set.handles()[1].point, QPointF(2.0 / 3.0, 0.375));
    QVERIFY(set.follow(first));
    QCOMPARE(first.frequencyHz, 2000.0);
    QCOMPARE(first.gainDb, 5.0);
    QCOMPARE(first.quality, 1.5);
    QCOMPARE(set.handles()[0].point, QPointF(1.0 / 3.0, 0.25));
    QCOMPARE(set.handles()[1].point, QPointF(1.0, 0.25));
    const HandleEdit second = set.move(1, {0.9, 0.5});
    QVERIFY(set.follow(second));
    QVERIFY(!set.follow(second));
    QCOMPARE(second.frequencyHz, 20000.0);
    QCOMPARE(second.gainDb, 10.0);
    QCOMPARE(recordIn<AsymmetricEqFilterExtended>(set).freq, 200.0);
    QCOMPARE(recordIn<AsymmetricEqFilterExtended>(set).gain, 0.0);
}

void tst_FilterSet::levelling_data()
{
    QTest::addColumn<FilterRecord>("record");
    QTest::addColumn<double>("frequency"); // 0: nothing is told

    QTest::newRow("peaking, outside in both directions") << eq(0, 50.0) << 50.0;
    QTest::newRow("asymmetric") << asymmetric() << 200.0;
    QTest::newRow("notch") << eq(9) << 0.0;
}

void tst_FilterSet::levelling()
{
    QFETCH(FilterRecord, record);
    QFETCH(double, frequency);

    FilterSet set = setOf({record});
    set.setFrame({100.0, 20000.0, 2.0, 20.0});
    const HandleEdit edit = set.level(0);
    QCOMPARE(bool(edit), frequency > 0.0);
    QCOMPARE(edit.frequencyHz, frequency);
    QCOMPARE(edit.gainDb, 0.0);
    for (const FilterHandle &handle : set.handles())
        QCOMPARE(handle.gainDb, 0.0);
}

void tst_FilterSet::firHandlesKeepTheirDistance()
{
    FilterSet set = setOf({fir(5)});
    set.move(0, {0.9, 0.5});
    QCOMPARE(set.handles()[0].point.x(), 2.0 / 3.0 - 0.03);
    set.move(1, {0.1, 0.5});
    QCOMPARE(set.handles()[1].point.x(), 2.0 / 3.0);
    QCOMPARE(set.move(1, {1.0, 0.5}).frequencyHz, 20000.0);
    QCOMPARE(recordIn<FIRFilterExtended>(set).freqLP, 20000.0);
}

void tst_FilterSet::quality_data()
{
    QTest::addColumn<FilterRecord>("record");
    QTest::addColumn<double>("base");
    QTest::addColumn<double>("change");
    QTest::addColumn<double>("quality"); // 0: the gesture does nothing
    QTest::addColumn<bool>("counts");    // for the response

    QTest::newRow("200 down reaches the upper limit") << eq(0) << 1.0 << 200.0 << 40.0 << true;
    QTest::newRow("stays there") << eq(0) << 40.0 << 200.0 << 40.0 << true;
    QTest::newRow("200 up reaches the lower limit") << eq(0) << 1.0 << -200.0 << 0.4 << true;
    QTest::newRow("half way") << eq(9) << 2.0 << 100.0 << 21.0 << true;
    QTest::newRow("no way") << eq(0) << 3.0 << 0.0 << 3.0 << true;
    QTest::newRow("shelf with Q") << eq(10) << 1.0 << 300.0 << 2.0 << true;
    QTest::newRow("high pass of 12 dB") << eq(3, 100, 0, 1, 2) << 1.0 << 100.0 << 1.5 << true;
    QTest::newRow("high pass of 6 dB") << eq(3, 100, 0, 1, 1) << 1.0 << 100.0 << 0.0 << false;
    QTest::newRow("all pass") << eq(5) << 1.0 << 100.0 << 1.5 << true;
    QTest::newRow("all pass of first order") << eq(5, 100, 0, 1, 1) << 1.0 << 100.0 << 1.5 << false;
    for (const int type : {6, 7, 8})
        QTest::addRow("type %d", type) << eq(type) << 1.0 << 100.0 << 0.0 << true;
    QTest::newRow("shelf without Q") << eq(1) << 1.0 << 100.0 << 0.0 << false;
    QTest::newRow("asymmetric") << asymmetric() << 0.5 << 200.0 << 2.0 << true;
    QTest::newRow("crossover") << xOver(0) << 1.0 << 100.0 << 0.0 << false;
    QTest::newRow("base is no number") << eq(0) << notANumber << 0.0 << 0.4 << true;
    QTest::newRow("change is no number") << eq(0) << 1.0 << notANumber << 1.0 << true;
}

void tst_FilterSet::quality()
{
    QFETCH(FilterRecord, record);
    QFETCH(double, base);
    QFETCH(double, change);
    QFETCH(double, quality);
    QFETCH(bool, counts);

    FilterSet set = setOf({record});
    QCOMPARE(set.handles().front().hasQuality, counts);
    QCOMPARE(set.handles().front().dragsQuality, quality > 0.0);
    const HandleEdit edit = set.changeQuality(0, base, change);
    QCOMPARE(bool(edit), quality > 0.0);
    QCOMPARE(edit.quality, quality);
    if (edit)
        QCOMPARE(set.handles().front().quality, quality);
}

void tst_FilterSet::wrongIndices()
{
    FilterSet set = setOf({eq(0), eq(0)});
    QCOMPARE(set.move(2, {}).problem,
             "RBodeplotCurve::onUserMoveFilterPoint() index out of range (filterPointModels_); value 2 not between 0 "
             "and 1");
    QCOMPARE(set.changeQuality(-1, 1.0, 1.0).problem,
             "RBodeplotCurve::onUserChangeFilterPointQuality() index out of range (filterPointModels_); value -1 not "
             "between 0 and 1");
}

void tst_FilterSet::walkingByFrequency()
{
    const FilterSet set = setOf({eq(0, 5000.0), eq(0, 50.0), eq(0, 500.0), eq(0, 10.0)});
    const auto walk = [&](int from, bool forward) { return neighbourHandle(set.handles(), from, forward); };
    QCOMPARE(walk(-1, true), 1);
    QCOMPARE(walk(1, true), 2);
    QCOMPARE(walk(0, true), -1);
    QCOMPARE(walk(-1, false), 0);
    QCOMPARE(walk(1, false), -1);
    QCOMPARE(neighbourHandle({}, -1, true), -1);
}

template struct TestClass<tst_FilterSet>;
#include "tst_FilterSet.moc"
