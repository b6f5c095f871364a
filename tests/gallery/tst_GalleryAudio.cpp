#include "DynamicsTap.h"
#include "GalleryAudio.h"
#include "SpectrumTap.h"
#include "support/TestProgram.h"

#include <QtCore/QTemporaryDir>
#include <QtQml/QQmlEngine>

namespace {

/// Half a second of a constant on one channel, 16 bits at 8 kHz: half of full scale.
QByteArray constantWav()
{
    QByteArray samples;
    for (int i = 0; i < 4000; ++i)
        samples.append("\0\x40", 2);
    QByteArray header(
        "RIFF\x64\x1f\0\0WAVEfmt \x10\0\0\0\x01\0\x01\0\x40\x1f\0\0\x80\x3e\0\0\x02\0\x10\0data\x40\x1f\0\0", 44);
    return header + samples;
}

QString writeWav(const QTemporaryDir &directory)
{
    QFile file(directory.filePath(QStringLiteral("constant.wav")));
    return file.open(QIODevice::WriteOnly) && file.write(constantWav()) > 0 ? file.fileName() : QString();
}

ChannelLevel *levelOf(GalleryAudio &audio, qsizetype channel)
{
    QQmlListProperty<ChannelLevel> levels = audio.levels();
    return levels.at(&levels, channel);
}

} // namespace

class tst_GalleryAudio : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void beginsWithTheBuiltInSignal()
    {
        GalleryAudio audio(nullptr);
        QVERIFY(audio.channels() >= 8);
        QCOMPARE(audio.sourceName(), QStringLiteral("Built-in signal"));
        QCOMPARE(audio.errorText(), QString());
        QVERIFY(!audio.running());
        QCOMPARE(levelOf(audio, 0)->peak(), -120.0);
        audio.advance(1);
        QVERIFY(levelOf(audio, 0)->peak() > -12.0);
        audio.rewind();
        QCOMPARE(levelOf(audio, 0)->peak(), -120.0);
        QVERIFY(!levelOf(audio, audio.channels()));
    }

    void unreadableFileKeepsTheSource()
    {
        GalleryAudio audio(nullptr);
        const QSignalSpy errors(&audio, &GalleryAudio::errorTextChanged);
        const QSignalSpy sources(&audio, &GalleryAudio::sourceChanged);
        QVERIFY(!audio.open(QStringLiteral("missing.wav")));
        QVERIFY(!audio.open(QStringLiteral("missing.wav")));
        QCOMPARE(audio.errorText(), QStringLiteral("cannot play \"missing.wav\": there is no such file"));
        QCOMPARE(audio.sourceName(), QStringLiteral("Built-in signal"));
        QCOMPARE(errors.size(), 1);
        QCOMPARE(sources.size(), 0);
    }

    void fileReplacesTheSource()
    {
        const QTemporaryDir directory;
        GalleryAudio audio(nullptr);
        DynamicsTap tap;
        tap.setChannel(3);
        tap.setProperty("fullScale", 20.0);
        tap.setProperty("attack", 0.0);
        tap.componentComplete();
        audio.advance(1);
        QVERIFY(!audio.open(QStringLiteral("missing.wav")));

        QVERIFY2(audio.open(writeWav(directory)), qPrintable(audio.errorText()));
        QCOMPARE(audio.errorText(), QString());
        QCOMPARE(audio.sourceName(), QStringLiteral("constant.wav"));
        QCOMPARE(audio.channels(), 1);
        QCOMPARE(levelOf(audio, 0)->name(), QStringLiteral("1"));
        // The tap has moved over, to the only channel there is.
        audio.advance(1);
        QVERIFY(std::abs(levelOf(audio, 0)->peak() + 6.02) < 0.01);
        QVERIFY(std::abs(tap.inputLevel() - 13.98) < 0.01);
        // A curve that is set while it plays: everything comes out at the lower end.
        tap.setProperty("points", QVariantList{QPointF(0.0, 1.0), QPointF(1.0, 1.0)});
        audio.advance(1);
        QVERIFY(std::abs(tap.outputLevel() + 60.0) < 0.01);
        QVERIFY(std::abs(tap.gain() + 73.98) < 0.01);
    }

    void steppedIgnoresRunning()
    {
        GalleryAudio audio(nullptr);
        audio.setRunning(true);
        QVERIFY(audio.engine().isRunning());
        audio.setStepped(true);
        QVERIFY(audio.running());
        QVERIFY(!audio.engine().isRunning());
        audio.rewind();
        audio.advance(7);
        QCOMPARE(audio.snapshot().block, 7);
    }

    void playsThroughTheEventLoop()
    {
        GalleryAudio audio(nullptr);
        QSignalSpy snapshots(&audio, &GalleryAudio::snapshotChanged);
        audio.setRunning(true);
        QTRY_VERIFY(snapshots.size() >= 3);
        QVERIFY(levelOf(audio, 0)->peak() > -120.0);
        audio.setRunning(false);
        QVERIFY(!audio.engine().isRunning());
        // What was announced before the end may still arrive, and nothing after it.
        QCoreApplication::processEvents();
        const qsizetype atEnd = snapshots.size();
        QVERIFY(!snapshots.wait(120));
        QCOMPARE(snapshots.size(), atEnd);
    }

    void unchangedLevelsAreSilent()
    {
        const QTemporaryDir directory;
        GalleryAudio audio(nullptr);
        QVERIFY(audio.open(writeWav(directory)));
        const QSignalSpy changes(levelOf(audio, 0), &ChannelLevel::levelChanged);
        audio.advance(1);
        audio.advance(1);
        QCOMPARE(changes.size(), 1);
    }

    void spectrumPoints()
    {
        GalleryAudio audio(nullptr);
        SpectrumTap tap;
        tap.setChannel(6);
        tap.componentComplete();
        QVERIFY(tap.points().isEmpty());
        audio.advance(20);
        const QVariantList points = tap.points();
        QCOMPARE(points.size(), tap.levels().size());
        QCOMPARE(points.first().toPointF().x(), 0.0);
        QCOMPARE(points.last().toPointF().x(), 1.0);
        // −90 dB is the lower edge, 0 dB the upper one.
        const qsizetype band = 12;
        QCOMPARE(points[band].toPointF().y(), tap.levels()[band] / -90.0);
        tap.setProperty("maximum", -118.0);
        tap.setProperty("minimum", -119.0);
        QCOMPARE(tap.points()[band].toPointF().y(), 0.0);

        // A section that takes all away, and entries that are no sections.
        tap.setSections({QVariantList{0.0, 0.0, 0.0, 0.0, 0.0}, QVariantList{1.0}, QStringLiteral("no section")});
        QCOMPARE(tap.sections().size(), 3);
        tap.setProperty("averaging", 0.0);
        audio.advance(10);
        QCOMPARE(tap.levels()[band], -120.0);
    }

    void pageSeesTheSameObject()
    {
        auto audio = std::make_unique<GalleryAudio>(nullptr);
        {
            QQmlEngine engine;
            QCOMPARE(GalleryAudio::create(&engine, nullptr), audio.get());
        }
        audio.reset();
        QQmlEngine engine;
        // A tap outlives the object it listens to.
        DynamicsTap tap;
        audio.reset(GalleryAudio::create(&engine, nullptr));
        QVERIFY(audio);
        tap.componentComplete();
        audio.reset();
        tap.setChannel(2);
    }
};

template struct TestClass<tst_GalleryAudio>;
#include "tst_GalleryAudio.moc"
