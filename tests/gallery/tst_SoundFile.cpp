#include "AudioProcessor.h"
#include "SoundFile.h"
#include "TestSignals.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <QtCore/QTemporaryDir>

#include <sndfile.h>

#include <algorithm>
#include <cmath>

namespace {

/// Writes the same samples on every channel; channel n is n times 6.02 dB quieter than the first.
void writeFile(const QString &path, int format, int sampleRate, int channels, const std::vector<float> &samples)
{
    SF_INFO info = {};
    info.samplerate = sampleRate;
    info.channels = channels;
    info.format = format;
    SNDFILE *file = sf_open(QFile::encodeName(path).constData(), SFM_WRITE, &info);
    QVERIFY2(file, sf_strerror(nullptr));
    std::vector<float> interleaved;
    for (const float sample : samples) {
        for (int channel = 0; channel < channels; ++channel)
            interleaved.push_back(std::ldexp(sample, -channel));
    }
    QCOMPARE(sf_writef_float(file, interleaved.data(), sf_count_t(samples.size())), sf_count_t(samples.size()));
    sf_close(file);
}

void writeBytes(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

} // namespace

class tst_SoundFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formats_data()
    {
        const Rows<int, int, int, double> row;
        row("WAV, 16 bits", (SF_FORMAT_WAV | SF_FORMAT_PCM_16), 48000, 2, 0.01);
        row("WAV, float, odd rate", (SF_FORMAT_WAV | SF_FORMAT_FLOAT), 11025, 8, 0.05);
        row("FLAC, 24 bits", (SF_FORMAT_FLAC | SF_FORMAT_PCM_24), 96000, 1, 0.01);
        row("Ogg Vorbis", (SF_FORMAT_OGG | SF_FORMAT_VORBIS), 44100, 2, 1.0);
    }

    void formats()
    {
        const auto &[format, sampleRate, channels, toleranceDb] = Rows<int, int, int, double>::current();
        const QString file = path(QStringLiteral("sound file ä"));
        writeFile(file, format, sampleRate, channels,
                  sine(0.5, sampleRate / 100.0, sampleRate, std::size_t(sampleRate)));

        OpenedAudio opened = openSoundFile(file);
        QCOMPARE(opened.error, QString());
        QCOMPARE(opened.source->name(), QStringLiteral("sound file ä"));
        QCOMPARE(opened.source->sampleRate(), sampleRate);
        QCOMPARE(opened.source->channelNames().size(), channels);
        AudioProcessor processor(std::move(opened.source));
        // The second block, since a lossy format may begin with an echo of the onset.
        processor.processBlock();
        processor.processBlock();
        for (int channel = 0; channel < channels; ++channel) {
            const BlockLevel level = processor.snapshot().levels[std::size_t(channel)];
            const double expected = -6.02 * (channel + 1);
            QVERIFY2(std::abs(level.peak - expected) < toleranceDb, qPrintable(QString::number(level.peak)));
            QVERIFY2(std::abs(level.rms - (expected - 3.01)) < toleranceDb, qPrintable(QString::number(level.rms)));
        }
    }

    void loops()
    {
        const QString file = path(QStringLiteral("ramp.wav"));
        std::vector<float> ramp;
        for (int i = 0; i < 100; ++i)
            ramp.push_back(float(i) / 100.0F);
        writeFile(file, SF_FORMAT_WAV | SF_FORMAT_FLOAT, 48000, 1, ramp);
        const OpenedAudio opened = openSoundFile(file);
        QVERIFY(opened.source);

        std::vector<float> samples(250);
        opened.source->read(samples);
        for (std::size_t i = 0; i < samples.size(); ++i)
            QCOMPARE(samples[i], ramp[i % 100]);
        opened.source->rewind();
        opened.source->read(samples);
        QCOMPARE(samples.front(), 0.0F);
    }

    void refusals_data()
    {
        writeBytes(path(QStringLiteral("text.wav")), "not a sound file at all, but longer than a header would be");
        writeBytes(path(QStringLiteral("empty.wav")), {});
        writeBytes(path(QStringLiteral("header.wav")), QByteArray("RIFF\x24\0\0\0WAVEfmt ", 16));
        writeFile(path(QStringLiteral("silent.wav")), SF_FORMAT_WAV | SF_FORMAT_PCM_16, 48000, 2, {});
        writeFile(path(QStringLiteral("wide.wav")), SF_FORMAT_WAV | SF_FORMAT_PCM_16, 48000, 257, {0.0F});
        writeFile(path(QStringLiteral("fast.wav")), SF_FORMAT_WAV | SF_FORMAT_PCM_16, 768001, 1, {0.0F});

        // reason: empty where the library words it
        const auto row = rowsOf([this](const QString &name, const QString &reason) {
            const OpenedAudio opened = openSoundFile(path(name));
            QVERIFY(!opened.source);
            const QString beginning = QStringLiteral("cannot play \"%1\": ").arg(path(name));
            QVERIFY2(opened.error.startsWith(beginning), qPrintable(opened.error));
            QVERIFY(opened.error.size() > beginning.size());
            if (!reason.isEmpty())
                QCOMPARE(opened.error, beginning + reason);
        });
        row("missing", "missing.wav", "there is no such file");
        row("directory", ".", "it is not a file");
        row("other content", "text.wav", "");
        row("empty", "empty.wav", "");
        row("half a header", "header.wav", "");
        row("no frames", "silent.wav", "it holds no sound");
        row("too many channels", "wide.wav", "it has 257 channels, more than 256");
        row("absurd sample rate", "fast.wav", "its sample rate is 768001 Hz");
    }
    void refusals() { checkRow(); }

    void truncatedFilePlaysWhatIsThere()
    {
        const QString file = path(QStringLiteral("cut.wav"));
        writeFile(file, SF_FORMAT_WAV | SF_FORMAT_PCM_16, 48000, 1, std::vector<float>(1000, 0.5F));
        QVERIFY(QFile::resize(file, 600));
        const OpenedAudio opened = openSoundFile(file);
        QVERIFY2(opened.source, qPrintable(opened.error));
        std::vector<float> samples(4000, 0.0F);
        opened.source->read(samples);
        const auto isHalf = [](float sample) { return std::abs(sample - 0.5F) < 0.001F; };
        QCOMPARE(std::count_if(samples.begin(), samples.end(), isHalf), 4000);
    }

private:
    QString path(const QString &name) const { return m_directory.filePath(name); }

    QTemporaryDir m_directory;
};

template struct TestClass<tst_SoundFile>;
#include "tst_SoundFile.moc"
