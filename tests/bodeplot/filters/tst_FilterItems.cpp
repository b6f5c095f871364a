#include "TambleClientControlModule.h"
#include "bodeplot/RBodeplotCurve.h"
#include "bodeplot/filters/RBodeplotFIRFilter.h"
#include "bodeplot/filters/RBodeplotXOverFilter.h"
#include "support/QmlText.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <QtCore/QMetaEnum>

using namespace tamble::client;

namespace {

std::unique_ptr<QObject> create(QQmlEngine &engine, const QByteArray &body)
{
    TambleClientControlModule().registerTypes("TambleClient.Control");
    return objectFrom(engine, "import QtQuick\nimport TambleClient.Control 1.0\n" + body);
}

} // namespace

class tst_FilterItems : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void enumKeys_data()
    {
        const auto row = rowsOf([](const QMetaEnum &type, const QByteArray &keys) {
            QByteArray found;
            for (int i = 0; i < type.keyCount(); ++i)
                found += QByteArray(type.key(i)) + '=' + QByteArray::number(type.value(i)) + ' ';
            QCOMPARE(found, keys);
        });
        row("equaliser", QMetaEnum::fromType<RBodeplotEqTypeEnum::Type>(),
            "EQ_PEQ=0 EQ_SYMMETRICAL_Q=0 EQ_LOSHELV=1 EQ_HISHELV=2 EQ_HIPASS=3 "
            "EQ_LOPASS=4 EQ_ALLPASS=5 EQ_PROPORTIONAL_Q=6 EQ_CONSTANT_Q=7 "
            "EQ_BANDPASS=8 EQ_NOTCH=9 EQ_LOSHELVQ=10 EQ_HISHELVQ=11 ASYMMETRIC=12 ");
        row("FIR", QMetaEnum::fromType<RBodeplotFIRTypeEnum::Type>(),
            "FIR_LOPASS=0 FIR_HIPASS=1 FIR_BANDPASS=2 FIR_M_LOPASS=3 FIR_M_HIPASS=4 "
            "FIR_M_BANDPASS=5 FIR_DEF_DC=123 FIR_DEV_EV=39 FIR_DEF=255 FIR_NEW_DIALOG=67 "
            "FIR_USER=17 ");
        row("crossover", QMetaEnum::fromType<RBodeplotXOverTypeEnum::Type>(),
            "XOVER_THRU=0 XOVER_SIX_DB=1 XOVER_TWELVE_DB_Q_05=2 "
            "XOVER_TWELVE_DB_Q_06=3 XOVER_TWELVE_DB_Q_07=4 XOVER_TWELVE_DB_Q_08=5 "
            "XOVER_TWELVE_DB_Q_10=6 XOVER_TWELVE_DB_Q_12=7 XOVER_TWELVE_DB_Q_15=8 "
            "XOVER_TWELVE_DB_Q_20=9 XOVER_BESSEL_TWELVE_DB=10 "
            "XOVER_BUTTERWORTH_TWELVE_DB=11 XOVER_LINKWITZ_TWELVE_DB=12 "
            "XOVER_BESSEL_EIGHTEEN_DB=13 XOVER_BUTTERWORTH_EIGHTEEN_DB=14 "
            "XOVER_BESSEL_TWENTYFOUR_DB=15 XOVER_BUTTERWORTH_TWENTYFOUR_DB=16 "
            "XOVER_LINKWITZ_TWENTYFOUR_DB=17 ");
    }
    void enumKeys() { checkRow(); }

    void newFirFilterPassesEverything()
    {
        const RBodeplotFIRFilter filter;
        const auto coefficients = filter.property("coefficients").value<QList<qreal>>();
        QCOMPARE(coefficients.size(), 512);
        QCOMPARE(coefficients.first(), 1.0);
        QCOMPARE(std::count(coefficients.begin(), coefficients.end(), 0.0), 511);
        QCOMPARE(filter.property("type").toInt(), 255);
        QCOMPARE(filter.property("order").toInt(), 512);
    }

    void declaredInQml()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
        QQmlEngine engine;
        const auto page = create(engine, R"(Item {
            visible: false
            property alias curve: curve
            property alias band: band
            property var shown: []
            property real heard: 0
            RBodeplotCurveTemplate {
                id: curve
                calculationItems: [
                    RBodeplotEqFilter {
                        id: band
                        onVisibleChanged: value => shown.push(value)
                        onFreqChanged: value => heard = value
                    },
                    RBodeplotAsymmetricEqFilter { },
                    RBodeplotXOverFilter { },
                    RBodeplotFIRFilter { }
                ]
            }
        })");
        QVERIFY(page);
        auto *curve = page->property("curve").value<RBodeplotCurve *>();
        auto *band = page->property("band").value<QObject *>();
        auto filters = curve->calculationItems();
        QCOMPARE(filters.count(&filters), 4);

        // A hidden page hides no filter; only the page's own word does.
        QVERIFY(band->property("visible").toBool());
        band->setProperty("visible", false);
        band->setProperty("visible", true);
        QCOMPARE(page->property("shown").toList(), QVariantList({false, true}));
        band->setProperty("freq", 250.0);
        QCOMPARE(page->property("heard").toDouble(), 250.0);

        QSignalSpy spy(curve, &RBodeplotCurve::calculationItemsChanged);
        delete band;
        QCOMPARE(spy.count(), 1);
        QCOMPARE(filters.count(&filters), 3);
    }

    void listReferencesToNothing_data()
    {
        const Rows<QByteArray> row;
        row("never set", {});
        row("set to null", "reference = null");
        row("set to nothing", "reference = undefined");
        row("its own empty list", "reference = reference");
        row("owner gone", "const owner = owners.createObject(page)\n"
                          "reference = owner.bands; owner.destroy()");
    }

    void listReferencesToNothing()
    {
        const auto &[step] = Rows<QByteArray>::current();
        QQmlEngine engine;
        const auto page = create(engine, R"(Item {
            id: page
            property alias reference: curve.calculationItemsReference
            property Component owners: Component { QtObject { property list<QtObject> bands: [ QtObject { } ] } }
            RBodeplotCurveTemplate { id: curve }
            function read() {
                let text = ""
                for (const entry of Array.from(reference))
                    text += entry
                return text + reference.length
            }
            function step() { try { )" + step +
                                             R"( } catch (error) { } }
        })");
        QVERIFY(page);
        QMetaObject::invokeMethod(page.get(), "step");
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVariant text;
        QMetaObject::invokeMethod(page.get(), "read", Q_RETURN_ARG(QVariant, text));
        QCOMPARE(text, "0");
    }

    void listReferenceFollowsItsList()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
        QQmlEngine engine;
        const auto page = create(engine, R"(Item {
            id: page
            property alias curve: curve
            property list<QtObject> bands: [ QtObject { property real freq: 100 } ]
            RBodeplotCurveTemplate { id: curve; calculationItemsReference: page.bands }
            function addBand() { bands.push(curve) }
            function reassign() { curve.calculationItemsReference = bands }
        })");
        QVERIFY(page);
        auto *curve = page->property("curve").value<RBodeplotCurve *>();
        QCOMPARE(curve->calculationItemsReference().count(), 1);

        QSignalSpy spy(curve, &RBodeplotCurve::calculationItemsReferenceChanged);
        QMetaObject::invokeMethod(page.get(), "addBand");
        QMetaObject::invokeMethod(page.get(), "reassign");
        QVERIFY(spy.count() >= 1);
        QCOMPARE(curve->calculationItemsReference().count(), 2);
    }
};

template struct TestClass<tst_FilterItems>;
#include "tst_FilterItems.moc"
