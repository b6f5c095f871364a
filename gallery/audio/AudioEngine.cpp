#include "AudioEngine.h"

#include "BlockClock.h"

AudioEngine::AudioEngine(std::unique_ptr<AudioSource> source, QObject *parent)
    : QObject(parent)
    , m_processor(std::move(source))
{}

AudioEngine::~AudioEngine()
{
    stop();
}

void AudioEngine::start()
{
    if (m_thread)
        return;
    m_stopping = false;
    m_thread.reset(QThread::create([this] { run(); }));
    m_thread->setObjectName(QStringLiteral("gallery-audio"));
    m_thread->start();
}

void AudioEngine::stop()
{
    if (!m_thread)
        return;
    {
        const std::lock_guard lock(m_mutex);
        m_stopping = true;
    }
    m_wake.notify_one();
    m_thread->wait();
    m_thread.reset();
}

void AudioEngine::run()
{
    std::unique_lock lock(m_mutex);
    BlockClock clock(m_processor.blockLength(), BlockClock::Clock::now());
    while (!m_wake.wait_until(lock, clock.nextDue(), [this] { return m_stopping; })) {
        const int due = clock.takeDue(BlockClock::Clock::now());
        for (int i = 0; i < due; ++i)
            m_processor.processBlock();
        announce(lock);
    }
}

void AudioEngine::advance(int blocks)
{
    std::unique_lock lock(m_mutex);
    for (int i = 0; i < blocks; ++i)
        m_processor.processBlock();
    announce(lock);
}

void AudioEngine::announce(std::unique_lock<std::mutex> &lock)
{
    if (std::exchange(m_announced, true))
        return;
    // A receiver in this very thread takes the results at once.
    lock.unlock();
    Q_EMIT updated();
    lock.lock();
}

AudioSnapshot AudioEngine::takeSnapshot()
{
    const std::lock_guard lock(m_mutex);
    m_announced = false;
    return m_processor.snapshot();
}

void AudioEngine::rewind()
{
    const std::lock_guard lock(m_mutex);
    m_processor.rewind();
}

void AudioEngine::setDynamics(int tap, int channel, const DynamicsSettings &settings)
{
    const std::lock_guard lock(m_mutex);
    m_processor.setDynamics(tap, channel, settings);
}

void AudioEngine::setSpectrum(int tap, int channel, const SpectrumSettings &settings)
{
    const std::lock_guard lock(m_mutex);
    m_processor.setSpectrum(tap, channel, settings);
}

void AudioEngine::removeTap(int tap)
{
    const std::lock_guard lock(m_mutex);
    m_processor.removeTap(tap);
}
