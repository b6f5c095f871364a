#include "support/ColourMetrics.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <cmath>

/// The colour mathematics of the audits, against published and hand-worked figures.
class tst_ColourMetrics : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void contrast_data()
    {
        const auto row = rowsOf([](const QColor &a, const QColor &b, double expected) {
            const double ratio = contrastRatio(a, b);
            QVERIFY2(std::abs(ratio - expected) < 0.01, qPrintable(QString::number(ratio)));
        });
        row("extremes", QColor(Qt::white), QColor(Qt::black), 21.0);
        // The darkest well-known greys that meet a floor on white.
        row("4.5 on white", QColor("#767676"), QColor(Qt::white), 4.54);
        row("pure red", QColor(Qt::red), QColor(Qt::white), 4.0);      // 1.05 / 0.2626
        row("pure green", QColor("#00ff00"), QColor(Qt::black), 15.3); // 0.7652 / 0.05
        row("pure blue", QColor(Qt::blue), QColor(Qt::black), 2.44);   // 0.1222 / 0.05
    }
    void contrast() { checkRow(); }

    void difference_data()
    {
        const auto row = rowsOf([](const QColor &a, const QColor &b, int normal, int deuteranopia, int protanopia) {
            QCOMPARE(qRound(colourDifference(a, b, ColourVision::Normal)), normal);
            QCOMPARE(qRound(colourDifference(a, b, ColourVision::Deuteranopia)), deuteranopia);
            QCOMPARE(qRound(colourDifference(a, b, ColourVision::Protanopia)), protanopia);
        });
        row("black and white", QColor(Qt::black), QColor(Qt::white), 100, 100, 100);
        row("equal", QColor("#e10014"), QColor("#e10014"), 0, 0, 0);
        // Measured independently: the usual meter colours are nearly one colour for some.
        row("meter green and yellow", QColor("#77be1e"), QColor("#f9af3c"), 63, 12, 7);
    }
    void difference() { checkRow(); }
};

template struct TestClass<tst_ColourMetrics>;
#include "tst_ColourMetrics.moc"
