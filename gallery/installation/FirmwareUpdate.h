#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

/// Sends a new firmware to a device, which takes half a minute and restarts at the end. A device that leaves the
/// network meanwhile keeps its old one.
class FirmwareUpdate : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    /// The device that gets it, or got it last; −1 at first.
    Q_PROPERTY(int device READ device NOTIFY changed FINAL)
    /// How much of it has been sent: 0 to 1.
    Q_PROPERTY(double progress READ progress NOTIFY changed FINAL)
    Q_PROPERTY(bool running READ isRunning NOTIFY changed FINAL)
    /// Whether the last one did not come to its end.
    Q_PROPERTY(bool failed READ isFailed NOTIFY changed FINAL)
    Q_PROPERTY(QString text READ text NOTIFY changed FINAL)

public:
    using QObject::QObject;

    int device() const { return m_device; }
    double progress() const { return double(m_sent) / partCount; }
    bool isRunning() const { return m_isRunning; }
    bool isFailed() const { return m_isFailed; }
    /// What is going on, for people.
    QString text() const;

    /// Begins with a device, unless another one is under way.
    Q_INVOKABLE void start(int device);
    Q_INVOKABLE void cancel();

Q_SIGNALS:
    void changed();

private:
    static constexpr int partCount = 100;

    void sendPart(int run);
    void stop(bool failed, const QString &text);

    int m_device = -1;
    int m_sent = 0;
    int m_run = 0; ///< Parts of an earlier one are not sent.
    bool m_isRunning = false;
    bool m_isFailed = false;
};
