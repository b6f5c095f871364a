#include "workspace/ZoomTravel.h"

#include "support/Rows.h"
#include "support/TestProgram.h"

using namespace tamble::client;

class tst_ZoomTravel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void placesAndFactors_data()
    {
        const auto row = rowsOf([](const ZoomTravel &travel, double zoom, double place) {
            QCOMPARE(travel.placeOf(zoom), place);
            QCOMPARE(travel.zoomAt(place, false), zoom);
        });
        row("ends", {0.25, 4.0}, 0.25, 0.0);
        row("middle", {0.25, 4.0}, 1.0, 0.5);
        row("three quarters", {0.25, 4.0}, 2.0, 0.75);
        row("no way", {2.0, 2.0}, 2.0, 0.0);
    }
    void placesAndFactors() { checkRow(); }

    void onlyNearOneIsADetent_data()
    {
        const auto row = rowsOf([](double place, bool detent, bool isOne) {
            const ZoomTravel travel{0.25, 4.0};
            QCOMPARE(travel.zoomAt(place, detent) == 1.0, isOne);
        });
        row("near", 0.52, true, true);
        row("below", 0.48, true, true);
        row("not near", 0.54, true, false);
        row("not wanted", 0.52, false, false);
    }
    void onlyNearOneIsADetent() { checkRow(); }
};

template struct TestClass<tst_ZoomTravel>;
#include "tst_ZoomTravel.moc"
