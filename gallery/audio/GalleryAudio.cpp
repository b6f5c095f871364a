#include "GalleryAudio.h"

#include "BuiltInSignal.h"
#include "SoundFile.h"

#include <QtQml/QQmlEngine>

#include <utility>

namespace {

GalleryAudio *theInstance = nullptr;

} // namespace

GalleryAudio::GalleryAudio(QObject *parent)
    : QObject(parent)
{
    theInstance = this;
    play(createBuiltInSignal());
}

GalleryAudio::~GalleryAudio()
{
    if (theInstance == this)
        theInstance = nullptr;
}

GalleryAudio *GalleryAudio::create(QQmlEngine *engine, QJSEngine *)
{
    GalleryAudio *audio = theInstance ? theInstance : new GalleryAudio(engine);
    QJSEngine::setObjectOwnership(audio, QJSEngine::CppOwnership);
    return audio;
}

GalleryAudio *GalleryAudio::instance()
{
    return theInstance;
}

bool GalleryAudio::open(const QString &fileName)
{
    OpenedAudio opened = openSoundFile(fileName);
    if (opened.error != m_errorText) {
        m_errorText = opened.error;
        Q_EMIT errorTextChanged();
    }
    if (!opened.source)
        return false;
    play(std::move(opened.source));
    return true;
}

void GalleryAudio::play(std::unique_ptr<AudioSource> source)
{
    const QList<ChannelLevel *> oldLevels = std::exchange(m_levels, {});
    for (const QString &name : source->channelNames())
        m_levels.append(new ChannelLevel(name, this));
    m_engine = std::make_unique<AudioEngine>(std::move(source));
    connect(m_engine.get(), &AudioEngine::updated, this, &GalleryAudio::showSnapshot);
    m_snapshot = {};
    Q_EMIT sourceChanged();
    for (ChannelLevel *level : oldLevels)
        level->deleteLater();
    updateClock();
}

QQmlListProperty<ChannelLevel> GalleryAudio::levels()
{
    using List = QQmlListProperty<ChannelLevel>;
    const auto count = [](List *list) { return static_cast<GalleryAudio *>(list->object)->m_levels.size(); };
    const auto at = [](List *list, qsizetype index) {
        return static_cast<GalleryAudio *>(list->object)->m_levels.value(index);
    };
    return List(this, nullptr, count, at);
}

void GalleryAudio::setRunning(bool running)
{
    if (running == m_running)
        return;
    m_running = running;
    updateClock();
    Q_EMIT runningChanged();
}

void GalleryAudio::setStepped(bool stepped)
{
    m_stepped = stepped;
    updateClock();
}

void GalleryAudio::updateClock()
{
    if (m_running && !m_stepped)
        m_engine->start();
    else
        m_engine->stop();
}

void GalleryAudio::advance(int blocks)
{
    m_engine->advance(blocks);
    // An announcement of the engine's own thread may still be on its way; then this one is not repeated.
    showSnapshot();
}

void GalleryAudio::rewind()
{
    m_engine->rewind();
    showSnapshot();
}

void GalleryAudio::showSnapshot()
{
    m_snapshot = m_engine->takeSnapshot();
    for (qsizetype i = 0; i < m_levels.size(); ++i)
        m_levels[i]->setLevel(m_snapshot.levels[std::size_t(i)]);
    Q_EMIT snapshotChanged();
}
