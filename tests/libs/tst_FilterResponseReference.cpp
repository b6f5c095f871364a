#include "libs/ResponseSupport.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <QFile>

#include <algorithm>
#include <cmath>
#include <memory>

using namespace tamble::common;

namespace {

using Fields = QList<QByteArray>;

double real(const Fields &fields, qsizetype i)
{
    return fields.at(i).toDouble();
}

int integer(const Fields &fields, qsizetype i)
{
    return fields.at(i).toInt();
}

std::unique_ptr<CalculationItem> asymmetricRecord(const Fields &fields)
{
    auto filter = std::make_unique<AsymmetricEqFilter>();
    filter->freq = real(fields, 2);
    filter->gain = real(fields, 3);
    filter->quality = real(fields, 4);
    filter->freq2 = real(fields, 5);
    filter->quality2 = real(fields, 6);
    return filter;
}

std::unique_ptr<CalculationItem> listRecord(const Fields &fields)
{
    auto filter = std::make_unique<FIRFilter>();
    if (fields.at(2) == "scattered") {
        filter->coefficients.resize(300);
        for (int m = 0; m < 300; ++m)
            filter->coefficients[std::size_t(m)] = ((m * 7919 + 13) % 2003 - 1001) / 65536.0;
    } else {
        filter->coefficients.assign(32, std::ldexp(1.0, -31));
        for (std::size_t m = 1; m < 32; ++m)
            filter->coefficients[m] = filter->coefficients[m - 1] * double(32 - m) / double(m);
    }
    return filter;
}

std::unique_ptr<CalculationItem> designRecord(const Fields &fields)
{
    auto filter = std::make_unique<FIRFilter>(fir(integer(fields, 2), integer(fields, 3)));
    filter->freqHP = real(fields, 4);
    filter->freqLP = real(fields, 5);
    filter->slope = integer(fields, 6);
    return filter;
}

std::unique_ptr<CalculationItem> makeRecord(const Fields &fields)
{
    if (fields.first() == "eq")
        return std::make_unique<EqFilter>(
            eqBand(integer(fields, 2), real(fields, 3), real(fields, 4), real(fields, 5), integer(fields, 6)));
    if (fields.first() == "asymmetric")
        return asymmetricRecord(fields);
    if (fields.first() == "crossover")
        return std::make_unique<XOverFilter>(crossover(integer(fields, 2), integer(fields, 4) == 1, real(fields, 3)));
    return fields.first() == "list" ? listRecord(fields) : designRecord(fields);
}

QList<double> numbers(const QByteArray &text)
{
    QList<double> result;
    for (const QByteArray &word : text.trimmed().split(' '))
        result.append(word.toDouble());
    return result;
}

} // namespace

// Against responses to 50 digits, which tests/data/filter/make_responses.py finds in another way.
class tst_FilterResponseReference : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyType_data()
    {
        const Rows<QByteArray, QList<double>, QList<double>> row;
        QFile file(QStringLiteral(TAMBLE_TEST_DATA "/filter/responses.txt"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        while (!file.atEnd()) {
            const QByteArray line = file.readLine();
            const QList<QByteArray> parts = line.split('|');
            if (parts.size() == 3)
                row(parts.first().constData(), parts.at(0), numbers(parts.at(1)), numbers(parts.at(2)));
        }
    }

    void everyType()
    {
        const auto &[record, levels, phases] = Rows<QByteArray, QList<double>, QList<double>>::current();
        const Fields fields = record.simplified().split(' ');

        const auto filter = makeRecord(fields);
        BodePlotCalculation block = blockOf({filter.get()}, int(levels.size()));
        block.sampleRate = real(fields, 1);
        block.lowestFrequency = real(fields, fields.size() - 2);
        block.highestFrequency = real(fields, fields.size() - 1);
        evaluate(block);

        const FilterResponse &curve = block.results.items.front();
        for (qsizetype i = 0; i < levels.size(); ++i) {
            const double level = curve.magnitude[std::size_t(i)];
            const double phase = curve.phase[std::size_t(i)];
            if (levels.at(i) < -120) {
                QVERIFY2(level < -119.9, qPrintable(QStringLiteral("point %1: %2 dB").arg(i).arg(level)));
                continue;
            }
            const double levelError = std::abs(level - levels.at(i));
            const double phaseError = std::abs(std::remainder(phase - phases.at(i), 360.0));
            QVERIFY2(levelError < 1e-6 && phaseError < 1e-6,
                     qPrintable(QStringLiteral("point %1: %2 dB, %3 degrees").arg(i).arg(level).arg(phase)));
            m_worstLevel = std::max(m_worstLevel, levelError);
            m_worstPhase = std::max(m_worstPhase, phaseError);
        }
    }

    void cleanupTestCase() { qInfo("worst differences: %.2g dB, %.2g degrees", m_worstLevel, m_worstPhase); }

private:
    double m_worstLevel = 0;
    double m_worstPhase = 0;
};

template struct TestClass<tst_FilterResponseReference>;
#include "tst_FilterResponseReference.moc"
