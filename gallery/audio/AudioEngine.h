#pragma once

#include "AudioProcessor.h"

#include <QtCore/QObject>
#include <QtCore/QThread>

#include <condition_variable>
#include <mutex>

/// Plays a source in real time on a thread of its own, without sound, and tells when there is something new to show.
///
/// Every function may be called from the thread that owns the object, whether the engine runs or not; a call waits for
/// a block that is being computed, which is a fraction of a millisecond.
class AudioEngine : public QObject
{
    Q_OBJECT

public:
    /// Begins at the first frame of `source`, which must not be null, and stands still.
    explicit AudioEngine(std::unique_ptr<AudioSource> source, QObject *parent = nullptr);
    ~AudioEngine() override;

    /// The source, for what does not change while it plays.
    const AudioSource &source() const { return m_processor.source(); }

    /// Goes on where it stood.
    void start();
    /// Stands still; returns when the thread has ended.
    void stop();
    bool isRunning() const { return m_thread != nullptr; }

    /// Computes `blocks` blocks now, in the calling thread, and announces them once: how tests and pictures get the
    /// same result every time.
    void advance(int blocks);
    /// Back to the first frame, as if nothing had been heard yet.
    void rewind();

    void setDynamics(int tap, int channel, const DynamicsSettings &settings);
    void setSpectrum(int tap, int channel, const SpectrumSettings &settings);
    void removeTap(int tap);

    /// Results of the last block. Taking them allows the next announcement.
    AudioSnapshot takeSnapshot();

Q_SIGNALS:
    /// There are new results. Not repeated until they are taken, so that nothing piles up before a busy receiver.
    /// Comes from the engine's thread or, by `advance`, from the caller's.
    void updated();

private:
    void run();
    void announce(std::unique_lock<std::mutex> &lock);

    std::mutex m_mutex; ///< guards all that follows but the thread
    std::condition_variable m_wake;
    AudioProcessor m_processor;
    bool m_stopping = false;
    bool m_announced = false;
    std::unique_ptr<QThread> m_thread;
};
