#include "FuzzBodies.h"
#include "Mutator.h"
#include "support/TestProgram.h"

#include <QtCore/QElapsedTimer>

#include <exception>

namespace {

constexpr int millisecondsPerBody = 3000;

using Bytes = std::span<const std::uint8_t>;

Bytes bytesOf(const std::string &text)
{
    return {reinterpret_cast<const std::uint8_t *>(text.data()), text.size()};
}

/// Runs a body with input after input, each made from its number alone.
template <typename Body, typename Input>
void runFor(int milliseconds, Body body, Input input)
{
    QElapsedTimer timer;
    timer.start();
    std::uint32_t seed = 0;
    for (; timer.elapsed() < milliseconds; ++seed) {
        Random random(seed);
        const std::string given = input(random);
        try {
            body(bytesOf(given));
        } catch (const std::exception &fault) {
            const QByteArray hex = QByteArray::fromStdString(given).toPercentEncoding(" {}.:;,\n");
            QFAIL(qPrintable(QStringLiteral("seed %1: %2\ninput:\n%3").arg(seed).arg(fault.what(), hex)));
        }
    }
    qInfo("%u inputs", seed);
}

} // namespace

class tst_Fuzz : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parser()
    {
        const Mutator mutator({TAMBLE_STYLE_SHEETS, TAMBLE_FUZZERS "/corpus"}, TAMBLE_FUZZERS "/style.dict");
        QVERIFY(!mutator.isEmpty());
        runFor(millisecondsPerBody, fuzzParser, [&](Random &random) { return mutator.text(random); });
    }

    void cascade()
    {
        runFor(millisecondsPerBody, fuzzCascade, [](Random &random) {
            std::string bytes(600, '\0');
            for (char &byte : bytes)
                byte = char(random.below(256));
            return bytes;
        });
    }
};

template struct TestClass<tst_Fuzz>;
#include "tst_Fuzz.moc"
