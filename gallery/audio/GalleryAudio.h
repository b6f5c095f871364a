#pragma once

#include "AudioEngine.h"
#include "ChannelLevel.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtQml/QQmlListProperty>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

/// The signal that the pages show: a file, or the built-in one. Begins with the built-in signal, standing still.
///
/// QML sees the object that exists when it first asks, or gets one of its own.
class GalleryAudio : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(int channels READ channels NOTIFY sourceChanged FINAL)
    /// One object per channel; a new list when the source changes.
    Q_PROPERTY(QQmlListProperty<ChannelLevel> levels READ levels NOTIFY sourceChanged FINAL)
    /// Name of the file, or of the built-in signal.
    Q_PROPERTY(QString sourceName READ sourceName NOTIFY sourceChanged FINAL)
    /// Why the last file could not be opened; empty when it could.
    Q_PROPERTY(QString errorText READ errorText NOTIFY errorTextChanged FINAL)
    /// Whether the signal plays, in a loop. A page plays it while it is seen.
    Q_PROPERTY(bool running READ running WRITE setRunning NOTIFY runningChanged FINAL)

public:
    /// Without a default argument: QML would prefer a default constructor to `create`.
    explicit GalleryAudio(QObject *parent);
    ~GalleryAudio() override;

    static GalleryAudio *create(QQmlEngine *engine, QJSEngine *);
    /// The object that QML sees; null when there is none yet or no more.
    static GalleryAudio *instance();

    /// Plays `fileName` from now on. On failure the present source stays, and `errorText` says why.
    bool open(const QString &fileName);

    int channels() const { return int(m_levels.size()); }
    QQmlListProperty<ChannelLevel> levels();
    QString sourceName() const { return m_engine->source().name(); }
    QString errorText() const { return m_errorText; }
    bool running() const { return m_running; }
    void setRunning(bool running);

    /// Takes the clock away, for pictures and tests: however `running` is set, only `advance` moves the signal.
    void setStepped(bool stepped);
    /// Plays `blocks` blocks of 50 ms at once and shows the last.
    Q_INVOKABLE void advance(int blocks);
    /// Back to the first frame; all that follows is as it was the first time.
    Q_INVOKABLE void rewind();

    /// What taps set their processors up on. Replaced when the source changes.
    AudioEngine &engine() const { return *m_engine; }
    /// A number that no other tap has.
    int nextTap() { return ++m_lastTap; }
    /// The results that are on show.
    const AudioSnapshot &snapshot() const { return m_snapshot; }

Q_SIGNALS:
    void sourceChanged();
    void errorTextChanged();
    void runningChanged();
    /// There is a new snapshot.
    void snapshotChanged();

private:
    void play(std::unique_ptr<AudioSource> source);
    void updateClock();
    void showSnapshot();

    std::unique_ptr<AudioEngine> m_engine;
    QList<ChannelLevel *> m_levels;
    AudioSnapshot m_snapshot;
    QString m_errorText;
    bool m_running = false;
    bool m_stepped = false;
    int m_lastTap = 0;
};
