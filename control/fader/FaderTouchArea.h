#pragma once

#include <QtQuick/QQuickItem>

#include <functional>

namespace tamble::client {

/// Takes the fingers on a fader.
///
/// The fader filters what comes here, and an item's filter is asked before those of the views around it: so the fader
/// can keep a finger that drags its handle from a view that scrolls the same way, however far the first move goes.
class FaderTouchArea : public QQuickItem
{
public:
    FaderTouchArea(QQuickItem *fader, std::function<void(QTouchEvent *)> touched, std::function<void()> lost)
        : QQuickItem(fader)
        , m_touched(std::move(touched))
        , m_lost(std::move(lost))
    {
        setAcceptTouchEvents(true);
        setZ(1.0);
    }

protected:
    void touchEvent(QTouchEvent *event) override { m_touched(event); }
    void touchUngrabEvent() override { m_lost(); }

private:
    std::function<void(QTouchEvent *)> m_touched;
    std::function<void()> m_lost;
};

} // namespace tamble::client
