#include "AudioEngine.h"
#include "BlockClock.h"
#include "BuiltInSignal.h"
#include "CountingSource.h"
#include "support/TestProgram.h"

#include <atomic>

using namespace std::chrono_literals;

namespace {

const BlockClock::Clock::time_point Start{1000s};

} // namespace

class tst_AudioEngine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clockDoesNotDrift()
    {
        // Blocks of a third of 100 ms, asked for at moments that fit nowhere, for an hour.
        BlockClock clock(std::chrono::duration<double>(0.1 / 3.0), Start);
        long blocks = 0;
        for (auto now = Start; now < Start + 1h; now += 17ms)
            blocks += clock.takeDue(now);
        blocks += clock.takeDue(Start + 1h + 1us);
        QCOMPARE(blocks, 108000);
    }

    void clockLeavesALongPauseOut()
    {
        BlockClock clock(50ms, Start);
        QCOMPARE(clock.takeDue(Start + 10min), 1);
        QVERIFY(clock.nextDue() == Start + 10min + 50ms);
    }

    void steppingIsDeterministic()
    {
        AudioEngine engine(createBuiltInSignal());
        const StaticCurve flat{{{0.0, 1.0}, {1.0, 1.0}}, -120.0, 0.0, -60.0, 0.0, StaticCurve::Meaning::OutputLevel};
        engine.setDynamics(1, 6, {.curve = flat});
        engine.setSpectrum(2, 6, {.sections = {{1.0, 0.0, 0.0, -0.5, 0.0}}});
        engine.advance(33);
        const AudioSnapshot first = engine.takeSnapshot();
        QCOMPARE(first.block, 33);
        QCOMPARE(first.dynamics.at(1).outputLevel, -60.0);
        QCOMPARE(first.spectra.at(2).size(), std::size_t(61));

        engine.advance(5);
        QVERIFY(engine.takeSnapshot().levels != first.levels);
        engine.rewind();
        QCOMPARE(engine.takeSnapshot().block, 0);
        for (int i = 0; i < 33; ++i)
            engine.advance(1);
        const AudioSnapshot second = engine.takeSnapshot();
        QVERIFY(second.levels == first.levels);
        QVERIFY(second.dynamics == first.dynamics);
        QVERIFY(second.spectra == first.spectra);
    }

    void channelsOfTapsWrapAround()
    {
        std::atomic<int> reads = 0;
        AudioProcessor processor(std::make_unique<CountingSource>(reads));
        const DynamicsSettings atOnce{.curve = {}, .attackMs = 0.0, .releaseMs = 0.0};
        for (const int channel : {0, 1, 5, -1})
            processor.setDynamics(channel, channel, atOnce);
        processor.processBlock();
        const auto &dynamics = processor.snapshot().dynamics;
        QCOMPARE(dynamics.at(0).inputLevel, processor.snapshot().levels[0].peak);
        QCOMPARE(dynamics.at(1).inputLevel, processor.snapshot().levels[1].peak);
        QCOMPARE(dynamics.at(5), dynamics.at(1));
        QCOMPARE(dynamics.at(-1), dynamics.at(0));
        QVERIFY(dynamics.at(0).inputLevel != dynamics.at(1).inputLevel);
    }

    void tapsEnd()
    {
        std::atomic<int> reads = 0;
        AudioProcessor processor(std::make_unique<CountingSource>(reads));
        processor.setDynamics(1, 0, {});
        processor.setSpectrum(2, 0, {});
        processor.processBlock();
        QCOMPARE(processor.snapshot().dynamics.size() + processor.snapshot().spectra.size(), std::size_t(2));
        processor.removeTap(1);
        processor.removeTap(2);
        processor.processBlock();
        QVERIFY(processor.snapshot().dynamics.empty() && processor.snapshot().spectra.empty());
    }

    void playsInRealTime()
    {
        std::atomic<int> reads = 0;
        AudioEngine engine(std::make_unique<CountingSource>(reads));
        QElapsedTimer timer;
        timer.start();
        engine.start();
        QTRY_VERIFY(reads >= 5);
        // A slow machine may be late, but nothing may be early.
        QVERIFY(timer.elapsed() >= 250);
        engine.stop();
        QCOMPARE(engine.takeSnapshot().block, reads.load());
    }

    void announcesOnceUntilTaken()
    {
        std::atomic<int> reads = 0;
        std::atomic<int> announcements = 0;
        AudioEngine engine(std::make_unique<CountingSource>(reads));
        connect(
            &engine, &AudioEngine::updated, &engine, [&announcements] { ++announcements; }, Qt::DirectConnection);
        engine.start();
        QTRY_VERIFY(reads >= 4);
        QCOMPARE(announcements.load(), 1);
        engine.takeSnapshot();
        QTRY_COMPARE(announcements.load(), 2);
        engine.stop();

        engine.takeSnapshot();
        engine.advance(3);
        engine.advance(3);
        QCOMPARE(announcements.load(), 3);
    }

    void startsAndStops()
    {
        std::atomic<int> reads = 0;
        {
            AudioEngine engine(std::make_unique<CountingSource>(reads));
            for (int i = 0; i < 50; ++i) {
                engine.start();
                engine.start();
                QVERIFY(engine.isRunning());
                engine.setDynamics(i % 3, i, {});
                engine.setSpectrum(3, i, {});
                engine.advance(1);
                engine.removeTap((i + 1) % 3);
                engine.takeSnapshot();
                engine.stop();
                engine.stop();
                QVERIFY(!engine.isRunning());
            }
            QVERIFY(reads >= 50);
            engine.start(); // ends with the engine
        }
    }
};

template struct TestClass<tst_AudioEngine>;
#include "tst_AudioEngine.moc"
