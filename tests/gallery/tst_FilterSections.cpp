#include "DigitalSection.h"
#include "FilterSections.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <cmath>
#include <complex>
#include <numbers>

using tamble::common::response::Section;

namespace {

constexpr double rate = 48000.0;

QVariantMap band(const QString &kind, int type, double freq, double gain, double quality)
{
    return {{QStringLiteral("kind"), kind}, {QStringLiteral("type"), type},       {QStringLiteral("freq"), freq},
            {QStringLiteral("gain"), gain}, {QStringLiteral("quality"), quality}, {QStringLiteral("freq2"), 8000.0},
            {QStringLiteral("slope"), 2},   {QStringLiteral("quality2"), 1.0},    {QStringLiteral("category"), 1}};
}

QList<double> numbersOf(const QVariant &section)
{
    QList<double> numbers;
    for (const QVariant &number : section.toList())
        numbers.append(number.toDouble());
    return numbers;
}

} // namespace

class tst_FilterSections : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bandsInOrder()
    {
        const QVariantMap notch = band(QStringLiteral("eq"), 9, 12000, 0, 0.5);
        QVariantMap bypassed = notch;
        bypassed[QStringLiteral("bypass")] = true;
        const QVariantMap asymmetric = band(QStringLiteral("asym"), 12, 1000, 6, 1);
        const QVariantMap linkwitz24 = band(QStringLiteral("xover"), 17, 80, 0, 0);

        const QVariantList sections = FilterSections().of(
            {bypassed, asymmetric, band(QStringLiteral("fir"), 2, 0, 0, 0), linkwitz24, notch, 7}, rate);
        QCOMPARE(sections.size(), 5);
        QCOMPARE(sections[2], sections[3]);
        QVERIFY(std::abs(numbersOf(sections[4])[0] - 0.5) < 1e-15);
        for (const QVariant &section : sections)
            QCOMPARE(section.toList().size(), 5);
    }

    void gainsAtTheCorner_data()
    {
        const auto row = rowsOf([](const QVariantMap &filter, double gain) {
            const std::complex<double> delay =
                std::polar(1.0, -2.0 * std::numbers::pi * filter.value(QStringLiteral("freq")).toDouble() / rate);
            std::complex<double> response = 1.0;
            for (const QVariant &section : FilterSections().of({filter}, rate)) {
                const QList<double> numbers = numbersOf(section);
                response *= (numbers[0] + delay * (numbers[1] + delay * numbers[2])) /
                            (1.0 + delay * (numbers[3] + delay * numbers[4]));
            }
            QVERIFY2(std::abs(std::abs(response) / gain - 1.0) < 1e-9, qPrintable(QString::number(std::abs(response))));
        });
        for (const double freq : {50.0, 1000.0, 12000.0, 20000.0}) {
            row(qPrintable(QString::asprintf("peak of 20 dB at %g Hz", freq)),
                band(QStringLiteral("eq"), 0, freq, 20, 3), 10.0);
            row(qPrintable(QString::asprintf("low pass of Q 2 at %g Hz", freq)),
                band(QStringLiteral("eq"), 4, freq, 0, 2), 2.0);
            row(qPrintable(QString::asprintf("Linkwitz-Riley 24 dB at %g Hz", freq)),
                band(QStringLiteral("xover"), 17, freq, 0, 0), 0.5);
            row(qPrintable(QString::asprintf("6 dB at %g Hz", freq)), band(QStringLiteral("xover"), 1, freq, 0, 0),
                std::sqrt(0.5));
        }
    }
    void gainsAtTheCorner() { checkRow(); }

    void qualityCounts()
    {
        const FilterSections filters;
        for (int type = -1; type <= 12; ++type) {
            for (const int slope : {0, 1, 2}) {
                QVariantMap filter = band(QStringLiteral("eq"), type, 1000, 6, 1);
                filter[QStringLiteral("slope")] = slope;
                const QVariantList sections = filters.of({filter}, rate);
                filter[QStringLiteral("quality")] = 3.0;
                const bool differs = filters.of({filter}, rate) != sections;
                QVERIFY2(filters.qualityCounts(type, slope) == differs, qPrintable(QString::number(type)));
            }
        }
    }
};

template struct TestClass<tst_FilterSections>;
#include "tst_FilterSections.moc"
