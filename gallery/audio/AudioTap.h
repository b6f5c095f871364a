#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtQml/QQmlParserStatus>
#include <QtQml/qqmlregistration.h>

class GalleryAudio;

/// A point in the signal where a page listens to more than the level: sets a processor up in the engine, keeps it there
/// over a change of the source, and hands its results on.
class AudioTap : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_ANONYMOUS
    /// The channel listened to, from 0 and counted around: of a stereo file, channel 5 is the right one. Default 0.
    Q_PROPERTY(int channel READ channel WRITE setChannel NOTIFY channelChanged FINAL)

public:
    explicit AudioTap(QObject *parent = nullptr);
    ~AudioTap() override;

    int channel() const { return m_channel; }
    void setChannel(int channel);

    void classBegin() override {}
    void componentComplete() override;

Q_SIGNALS:
    void channelChanged();

protected:
    /// To be called when a setting has changed; before the object is complete it does nothing.
    void settingsChanged();
    /// Sets the processor `tap` up in the engine of `audio`.
    virtual void sendSettings(GalleryAudio &audio, int tap) = 0;
    /// Takes the results of the processor `tap`, as far as there are any.
    virtual void takeResults(const GalleryAudio &audio, int tap) = 0;

private:
    QPointer<GalleryAudio> m_audio; ///< null until complete
    int m_tap = 0;
    int m_channel = 0;
};
