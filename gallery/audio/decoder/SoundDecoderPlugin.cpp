#include "SoundDecoderPlugin.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <sndfile.h>

#include <algorithm>

namespace {

struct CloseFile
{
    void operator()(SNDFILE *file) const { sf_close(file); }
};

class SoundFile : public AudioSource
{
public:
    using Handle = std::unique_ptr<SNDFILE, CloseFile>;

    SoundFile(Handle file, const SF_INFO &info, const QString &name)
        : m_file(std::move(file))
        , m_info(info)
        , m_name(name)
    {}

    QString name() const override { return m_name; }
    int sampleRate() const override { return m_info.samplerate; }
    QStringList channelNames() const override;
    void read(std::span<float> samples) override;
    void rewind() override { sf_seek(m_file.get(), 0, SEEK_SET); }

private:
    Handle m_file;
    SF_INFO m_info;
    QString m_name;
};

QStringList SoundFile::channelNames() const
{
    QStringList names;
    for (int i = 1; i <= m_info.channels; ++i)
        names.append(QString::number(i));
    return names;
}

void SoundFile::read(std::span<float> samples)
{
    const auto channels = std::size_t(m_info.channels);
    // A second empty read in a row comes from a file that has become unreadable; it is silent then.
    for (int emptyReads = 0; !samples.empty() && emptyReads < 2;) {
        const auto wanted = sf_count_t(samples.size() / channels);
        const sf_count_t frames = std::max<sf_count_t>(sf_readf_float(m_file.get(), samples.data(), wanted), 0);
        samples = samples.subspan(std::size_t(frames) * channels);
        emptyReads = frames == 0 ? emptyReads + 1 : 0;
        if (!samples.empty())
            rewind();
    }
    std::fill(samples.begin(), samples.end(), 0.0F);
}

QString reasonAgainst(const SF_INFO &info)
{
    if (info.channels < 1)
        return QStringLiteral("it has no channels");
    if (info.channels > AudioSource::maximumChannels)
        return QStringLiteral("it has %1 channels, more than %2").arg(info.channels).arg(AudioSource::maximumChannels);
    if (info.samplerate < 1 || info.samplerate > AudioSource::maximumSampleRate)
        return QStringLiteral("its sample rate is %1 Hz").arg(info.samplerate);
    if (info.frames < 1)
        return QStringLiteral("it holds no sound");
    return {};
}

} // namespace

OpenedAudio SoundDecoderPlugin::open(const QString &fileName) const
{
    SF_INFO info = {};
    SoundFile::Handle handle(sf_open(QFile::encodeName(fileName).constData(), SFM_READ, &info));
    if (!handle)
        return {nullptr, QString::fromLocal8Bit(sf_strerror(nullptr))};
    if (const QString reason = reasonAgainst(info); !reason.isEmpty())
        return {nullptr, reason};
    return {std::make_unique<SoundFile>(std::move(handle), info, QFileInfo(fileName).fileName()), {}};
}
