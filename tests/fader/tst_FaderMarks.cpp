#include "fader/FaderMarks.h"
#include "support/TestProgram.h"

#include <QtCore/QObject>
#include <QtTest/QTest>

#include <limits>

using namespace tamble::client;

class tst_FaderMarks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void automatic_data();
    void automatic();
    void given_data();
    void given();
};

void tst_FaderMarks::automatic_data()
{
    QTest::addColumn<FaderTravel>("travel");
    QTest::addColumn<double>("spacing");
    QTest::addColumn<QList<double>>("levels");

    const FaderTravel usual;
    // 14 of 232 pixels are 5.43 dB, so 5 and -5 have no room.
    QTest::newRow("usual size") << usual << 14.0 / 232.0 << QList<double>{0, -80, 10, -10, -20, -30, -40, -50, -60};
    QTest::newRow("tall") << usual << 14.0 / 352.0 << QList<double>{0, -80, 10, 5, -5, -10, -20, -30, -40, -50, -60};
    QTest::newRow("short") << usual << 14.0 / 72.0 << QList<double>{0, -80, -20, -40, -60};
    QTest::newRow("no room but for 0 dB") << usual << 1.0 << QList<double>{0};
    // The table gives -50…-80 dB the lowest twentieth.
    QTest::newRow("table") << FaderTravel{-80.0, 10.0, FaderLaw::Table} << 0.06
                           << QList<double>{0, -80, 10, 5, -5, -10, -20, -30};
    QTest::newRow("ends off the list") << FaderTravel{-66.0, 12.0, FaderLaw::Linear} << 0.1
                                       << QList<double>{0, -66, 12, -10, -20, -30, -40, -50};
    QTest::newRow("reversed") << FaderTravel{10.0, -80.0, FaderLaw::Linear} << 0.3 << QList<double>{0, -80, -30};
    QTest::newRow("without 0 dB") << FaderTravel{-40.0, -20.0, FaderLaw::Linear} << 0.1 << QList<double>{-40, -20, -30};
    QTest::newRow("empty range") << FaderTravel{5.0, 5.0, FaderLaw::Linear} << 0.1 << QList<double>{};
    QTest::newRow("no number") << FaderTravel{-80.0, std::numeric_limits<double>::quiet_NaN(), FaderLaw::Linear} << 0.1
                               << QList<double>{};
}

void tst_FaderMarks::automatic()
{
    QFETCH(FaderTravel, travel);
    QFETCH(double, spacing);
    QFETCH(QList<double>, levels);
    QList<double> chosen;
    for (const FaderMark &mark : automaticMarks(travel, spacing))
        chosen.append(mark.level);
    QCOMPARE(chosen, levels);
}

void tst_FaderMarks::given_data()
{
    QTest::addColumn<QList<double>>("levels");
    QTest::addColumn<QList<double>>("ticks");
    QTest::addColumn<QList<double>>("labels");

    QTest::newRow("crowded") << QList<double>{-12, -11, -10, 0} << QList<double>{0, -12, -11, -10}
                             << QList<double>{0, -12};
    QTest::newRow("0 dB and the ends go first")
        << QList<double>{-1, 0, 9, 10} << QList<double>{0, 10, -1, 9} << QList<double>{0, 10};
    QTest::newRow("twice the same") << QList<double>{-20, -20} << QList<double>{-20, -20} << QList<double>{-20};
    QTest::newRow("outside of the range") << QList<double>{20, -20, -100} << QList<double>{-20} << QList<double>{-20};
}

void tst_FaderMarks::given()
{
    QFETCH(QList<double>, levels);
    QFETCH(QList<double>, ticks);
    QFETCH(QList<double>, labels);
    QList<double> shown;
    QList<double> labelled;
    for (const FaderMark &mark : marksAt({}, levels, 0.06)) {
        shown.append(mark.level);
        if (mark.isLabelled)
            labelled.append(mark.level);
    }
    QCOMPARE(shown, ticks);
    QCOMPARE(labelled, labels);
}

template struct TestClass<tst_FaderMarks>;
#include "tst_FaderMarks.moc"
