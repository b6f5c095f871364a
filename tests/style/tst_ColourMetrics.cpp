#include "support/ColourMetrics.h"
#include "support/TestProgram.h"

#include <QtCore/QObject>
#include <QtTest/QTest>

#include <cmath>

/// The colour mathematics of the audits, against published and hand-worked figures.
class tst_ColourMetrics : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void contrast_data();
    void contrast();
    void composition_data();
    void composition();
    void difference_data();
    void difference();
};

void tst_ColourMetrics::contrast_data()
{
    QTest::addColumn<QColor>("a");
    QTest::addColumn<QColor>("b");
    QTest::addColumn<double>("expected");

    QTest::newRow("extremes") << QColor(Qt::white) << QColor(Qt::black) << 21.0;
    QTest::newRow("either order") << QColor(Qt::black) << QColor(Qt::white) << 21.0;
    QTest::newRow("equal") << QColor("#008ccd") << QColor("#008ccd") << 1.0;
    // The darkest well-known greys that meet a floor on white.
    QTest::newRow("4.5 on white") << QColor("#767676") << QColor(Qt::white) << 4.54;
    QTest::newRow("7 on white") << QColor("#595959") << QColor(Qt::white) << 7.0;
    QTest::newRow("pure red") << QColor(Qt::red) << QColor(Qt::white) << 4.0;      // 1.05 / 0.2626
    QTest::newRow("pure green") << QColor("#00ff00") << QColor(Qt::black) << 15.3; // 0.7652 / 0.05
    QTest::newRow("pure blue") << QColor(Qt::blue) << QColor(Qt::black) << 2.44;   // 0.1222 / 0.05
}

void tst_ColourMetrics::contrast()
{
    QFETCH(QColor, a);
    QFETCH(QColor, b);
    QFETCH(double, expected);
    const double ratio = contrastRatio(a, b);
    QVERIFY2(std::abs(ratio - expected) < 0.01, qPrintable(QString::number(ratio)));
}

void tst_ColourMetrics::composition_data()
{
    QTest::addColumn<QColor>("top");
    QTest::addColumn<QColor>("expected");

    QTest::newRow("opaque") << QColor("#123456") << QColor("#123456");
    QTest::newRow("transparent") << QColor(Qt::transparent) << QColor("#ffffff");
    QTest::newRow("four fifths") << QColor("#cc005691") << QColor("#3378a7"); // 51 + 0.8 × 0, 86, 145
}

void tst_ColourMetrics::composition()
{
    QFETCH(QColor, top);
    QTEST(composed(top, Qt::white), "expected");
}

void tst_ColourMetrics::difference_data()
{
    QTest::addColumn<QColor>("a");
    QTest::addColumn<QColor>("b");
    QTest::addColumn<int>("normal");
    QTest::addColumn<int>("deuteranopia");
    QTest::addColumn<int>("protanopia");

    QTest::newRow("black and white") << QColor(Qt::black) << QColor(Qt::white) << 100 << 100 << 100;
    QTest::newRow("equal") << QColor("#e10014") << QColor("#e10014") << 0 << 0 << 0;
    // Measured independently: the usual meter colours are nearly one colour for some.
    QTest::newRow("meter green and yellow") << QColor("#77be1e") << QColor("#f9af3c") << 63 << 12 << 7;
}

void tst_ColourMetrics::difference()
{
    QFETCH(QColor, a);
    QFETCH(QColor, b);
    QTEST(qRound(colourDifference(a, b, ColourVision::Normal)), "normal");
    QTEST(qRound(colourDifference(a, b, ColourVision::Deuteranopia)), "deuteranopia");
    QTEST(qRound(colourDifference(a, b, ColourVision::Protanopia)), "protanopia");
}

template struct TestClass<tst_ColourMetrics>;
#include "tst_ColourMetrics.moc"
