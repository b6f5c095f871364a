#include "bodeplot/handles/FilterSet.h"
#include "support/Numbers.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

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
    return *set.records().at(position).as<Record>();
}

} // namespace

Q_DECLARE_METATYPE(tamble::client::FilterRecord)

/// Handles of filters, and what gestures make of their records.
class tst_FilterSet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void handles_data()
    {
        // described: relation, motion, label and level of each handle
        const Rows<FilterRecord, QString> row;
        row("peaking", eq(0), "EQ 2 '' 6;");
        row("shelf with Q", eq(11), "EQ 2 '' 6;");
        for (const int type : {3, 4, 5, 8, 9})
            row(qPrintable(QString::asprintf("type %d has no gain", type)), eq(type), "EQ 0 '' 0;");
        row("asymmetric", asymmetric(), "ASYMEQ1 2 '' 5;ASYMEQ2 2 '' 5;");
        row("high pass", xOver(1), "XOVER 0 'HP' 0;");
        row("low pass", xOver(0), "XOVER 0 'LP' 0;");
        row("FIR low pass", fir(0), "FIRLP 0 'l' 0;");
        row("FIR high pass, minimum phase", fir(4), "FIRHP 0 'h' 0;");
        row("FIR band pass", fir(2), "FIRHP 0 'h' 0;FIRLP 0 'l' 0;");
        row("FIR from coefficients", fir(255), "");
    }

    void handles()
    {
        const auto &[record, described] = Rows<FilterRecord, QString>::current();
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

    void recordsWithoutHandles()
    {
        FilterSet set;
        const QString place = QStringLiteral("RBodeplotCurve::onCalculationItemsChanged() ");
        const QStringList expected{
            place + "skipping EQ filterPoint at index 0 (pointer is null)",
            place + "filterPoint at index 1 is of EQType asymmetric but class type is not AsymmetricEqFilterExtended",
            "Firtype not supported",
            place +
                "skipping CalculationItem on position 3 reason: not an EqFilter / XOverFilter / FIRFilter / AsymEq"};
        const FilterRecord unknown = QSharedPointer<tamble::common::EqFilter>::create();
        QCOMPARE(set.setRecords({FilterRecord(), eq(12), fir(67), unknown, eq(0)}), expected);
        QCOMPARE(set.handles().size(), std::size_t(1));
        QCOMPARE(set.recordOf(0), 4);
        QCOMPARE(relationText(set.relationOf(1)), "OUT OF RANGE");
    }

    void placing_data()
    {
        // point: in 20 Hz to 20 kHz, +-20 dB
        const Rows<double, double, QPointF> row;
        row("inside", 200.0, 10.0, QPointF(1.0 / 3.0, 0.25));
        row("on the edges", 20000.0, -20.0, QPointF(1.0, 1.0));
        row("above", 200.0, 21.0, QPointF(1.0 / 3.0, -1.0));
        row("below", 200.0, -21.0, QPointF(1.0 / 3.0, 2.0));
        row("left", 19.0, 0.0, QPointF(-1.0, 0.5));
        row("right", 21000.0, 0.0, QPointF(2.0, 0.5));
        row("no numbers", notANumber, notANumber, QPointF(-1.0, -1.0));
        row("negative frequency", -5.0, 0.0, QPointF(-1.0, 0.5));
    }

    void placing()
    {
        const auto &[frequency, gain, point] = Rows<double, double, QPointF>::current();
        const FilterRecord record = eq(0, frequency, gain);
        QCOMPARE(setOf({record}).handles().front().point, point);
        record.as<EqFilterExtended>()->visible = false;
        QCOMPARE(setOf({record}).handles().front().point, QPointF(-1.0, -1.0));
    }

    void dragging_data()
    {
        const Rows<FilterRecord, QPointF, double, double, double> row;
        const QPointF middle(2.0 / 3.0, 0.375);
        row("peaking", eq(0), middle, 2000.0, 5.0, 1.0);
        row("to the top", eq(0), QPointF(0.0, 0.0), 20.0, 12.0, 1.0);
        row("to the bottom", eq(0), QPointF(1.0, 1.0), 20000.0, -18.0, 1.0);
        row("notch keeps to its line", eq(9), middle, 2000.0, 0.0, 1.0);
        row("crossover", xOver(1), middle, 2000.0, 0.0, 0.0);
        row("FIR", fir(0), middle, 2000.0, 0.0, 0.0);
    }

    void dragging()
    {
        const auto &[record, wanted, frequency, gain, quality] =
            Rows<FilterRecord, QPointF, double, double, double>::current();
        FilterSet set = setOf({eq(0), record});
        const HandleEdit edit = set.move(1, wanted);
        QCOMPARE(edit.record, 1);
        QCOMPARE(edit.frequencyHz, frequency);
        QCOMPARE(edit.gainDb, gain);
        QCOMPARE(edit.quality, quality);
        QVERIFY(!set.move(1, QPointF(notANumber, 0.5)));
        QCOMPARE(set.handles()[1].frequencyHz, frequency);
    }

    void draggedFrequencySurvivesAnotherRange()
    {
        FilterSet set = setOf({eq(0)});
        set.move(0, {2.0 / 3.0, 0.375});
        set.setAxes({{200.0, 2000.0, AxisScale::Logarithmic}, {-10.0, 10.0}});
        QCOMPARE(set.handles().front().point, QPointF(1.0, 0.25));
        set.setAxes({{20.0, 200.0, AxisScale::Logarithmic}, {-4.0, 4.0}});
        QCOMPARE(set.handles().front().point, QPointF(2.0, -1.0));
        QCOMPARE(recordIn<EqFilterExtended>(set).freq, 2000.0);
    }

    void asymmetricBandLagsOneStep()
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

    void levelling_data()
    {
        // frequency: 0: nothing is told
        const Rows<FilterRecord, double> row;
        row("peaking, outside in both directions", eq(0, 50.0), 50.0);
        row("asymmetric", asymmetric(), 200.0);
        row("notch", eq(9), 0.0);
    }

    void levelling()
    {
        const auto &[record, frequency] = Rows<FilterRecord, double>::current();
        FilterSet set = setOf({record});
        set.setAxes({{100.0, 20000.0, AxisScale::Logarithmic}, {2.0, 20.0}});
        const HandleEdit edit = set.level(0);
        QCOMPARE(bool(edit), frequency > 0.0);
        QCOMPARE(edit.frequencyHz, frequency);
        QCOMPARE(edit.gainDb, 0.0);
        for (const FilterHandle &handle : set.handles())
            QCOMPARE(handle.gainDb, 0.0);
    }

    void firHandlesKeepTheirDistance()
    {
        FilterSet set = setOf({fir(5)});
        set.move(0, {0.9, 0.5});
        QCOMPARE(set.handles()[0].point.x(), 2.0 / 3.0 - 0.03);
        set.move(1, {0.1, 0.5});
        QCOMPARE(set.handles()[1].point.x(), 2.0 / 3.0);
        QCOMPARE(set.move(1, {1.0, 0.5}).frequencyHz, 20000.0);
        QCOMPARE(recordIn<FIRFilterExtended>(set).freqLP, 20000.0);
    }

    void quality_data()
    {
        // quality: 0: the gesture does nothing
        // counts: for the response
        const Rows<FilterRecord, double, double, double, bool> row;
        row("200 down reaches the upper limit", eq(0), 1.0, 200.0, 40.0, true);
        row("stays there", eq(0), 40.0, 200.0, 40.0, true);
        row("200 up reaches the lower limit", eq(0), 1.0, -200.0, 0.4, true);
        row("half way", eq(9), 2.0, 100.0, 21.0, true);
        row("shelf with Q", eq(10), 1.0, 300.0, 2.0, true);
        row("high pass of 12 dB", eq(3, 100, 0, 1, 2), 1.0, 100.0, 1.5, true);
        row("high pass of 6 dB", eq(3, 100, 0, 1, 1), 1.0, 100.0, 0.0, false);
        row("all pass", eq(5), 1.0, 100.0, 1.5, true);
        row("all pass of first order", eq(5, 100, 0, 1, 1), 1.0, 100.0, 1.5, false);
        for (const int type : {6, 7, 8})
            row(qPrintable(QString::asprintf("type %d", type)), eq(type), 1.0, 100.0, 0.0, true);
        row("shelf without Q", eq(1), 1.0, 100.0, 0.0, false);
        row("asymmetric", asymmetric(), 0.5, 200.0, 2.0, true);
        row("crossover", xOver(0), 1.0, 100.0, 0.0, false);
        row("base is no number", eq(0), notANumber, 0.0, 0.4, true);
        row("change is no number", eq(0), 1.0, notANumber, 1.0, true);
    }

    void quality()
    {
        const auto &[record, base, change, quality, counts] =
            Rows<FilterRecord, double, double, double, bool>::current();
        FilterSet set = setOf({record});
        QCOMPARE(set.handles().front().hasQuality, counts);
        QCOMPARE(set.handles().front().qualityLimit.has_value(), quality > 0.0);
        const HandleEdit edit = set.changeQuality(0, base, change);
        QCOMPARE(bool(edit), quality > 0.0);
        QCOMPARE(edit.quality, quality);
        if (edit)
            QCOMPARE(set.handles().front().quality, quality);
    }

    void wrongIndices()
    {
        FilterSet set = setOf({eq(0), eq(0)});
        QCOMPARE(
            set.move(2, {}).problem,
            "RBodeplotCurve::onUserMoveFilterPoint() index out of range (filterPointModels_); value 2 not between 0 "
            "and 1");
        QCOMPARE(
            set.changeQuality(-1, 1.0, 1.0).problem,
            "RBodeplotCurve::onUserChangeFilterPointQuality() index out of range (filterPointModels_); value -1 not "
            "between 0 and 1");
    }

    void walkingByFrequency()
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
};

template struct TestClass<tst_FilterSet>;
#include "tst_FilterSet.moc"
