#pragma once

#include "base/ControlExport.h"

#include <QtCore/QObject>

#include <boost/intrusive/list.hpp>

namespace tamble::client {

/// A bar that can wait for the next frame. It leaves the line by itself when it is destroyed.
class WaitingBar
{
public:
    virtual void draw() = 0;

protected:
    ~WaitingBar() = default;

private:
    friend class BarRedraws;

    boost::intrusive::list_member_hook<boost::intrusive::link_mode<boost::intrusive::auto_unlink>> m_place;
};

/// When bars are drawn again: those that fall together with those that rise.
///
/// Levels arrive at one moment of the meters' common interval and peaks fall at another, which would draw a wall of
/// meters twice in each. A rise is always drawn at once. A fall waits for it, but only where the last interval had one,
/// and for one interval at the most.
class TAMBLE_CLIENT_CONTROL_EXPORT BarRedraws : public QObject
{
    Q_OBJECT

public:
    /// The one of the process; on its first call it restarts the meters' common interval.
    static BarRedraws &instance();

    void rise(WaitingBar &bar);
    void fall(WaitingBar &bar);

private:
    BarRedraws();
    void onTick();
    void drawWaiting();

    using Line = boost::intrusive::list<
        WaitingBar, boost::intrusive::member_hook<WaitingBar, decltype(WaitingBar::m_place), &WaitingBar::m_place>,
        boost::intrusive::constant_time_size<false>>;

    Line m_waiting;
    bool m_risen = false;        // since the last tick
    bool m_riseExpected = false; // for there was one in the last interval
};

} // namespace tamble::client
