#include "AudioTap.h"

#include "GalleryAudio.h"

#include <QtQml/QQmlEngine>

AudioTap::AudioTap(QObject *parent)
    : QObject(parent)
{}

AudioTap::~AudioTap()
{
    if (m_audio)
        m_audio->engine().removeTap(m_tap);
}

void AudioTap::setChannel(int channel)
{
    if (channel == m_channel)
        return;
    m_channel = channel;
    settingsChanged();
    Q_EMIT channelChanged();
}

void AudioTap::componentComplete()
{
    m_audio = GalleryAudio::create(qmlEngine(this), nullptr);
    m_tap = m_audio->nextTap();
    settingsChanged();
    connect(m_audio, &GalleryAudio::sourceChanged, this, &AudioTap::settingsChanged);
    connect(m_audio, &GalleryAudio::snapshotChanged, this, [this] { takeResults(*m_audio, m_tap); });
}

void AudioTap::settingsChanged()
{
    if (m_audio)
        sendSettings(*m_audio, m_tap);
}
