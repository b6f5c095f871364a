#pragma once

#include <QtCore/QBasicTimer>
#include <QtCore/QObject>

namespace tamble::client {

/// The one clock of all that flashes. Its timer runs while somebody follows it.
class FlashClock : public QObject
{
    Q_OBJECT

public:
    static FlashClock &instance();

    bool isLit() const { return m_isLit; }
    bool isRunning() const { return m_timer.isActive(); }
    /// Counts those who follow `litChanged`; each lets go as often as it has followed.
    void follow();
    void letGo();

Q_SIGNALS:
    void litChanged();

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    FlashClock() = default;
    void tick();

    QBasicTimer m_timer;
    int m_followers = 0;
    bool m_isLit = false;
};

} // namespace tamble::client
