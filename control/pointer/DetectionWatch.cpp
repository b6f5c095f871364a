#include "pointer/DetectionWatch.h"

#include "pointer/RMouseDetection.h"
#include "pointer/RMouseEventSpy.h"

#include <QtGui/QTransform>
#include <QtQuick/QQuickWindow>

#include <algorithm>

namespace tamble::client {

namespace {

/// Where a point of a window is in an item; nothing where the item is not, or is cut off by an item around it.
std::optional<QPointF> placeIn(const QQuickItem &item, const QPointF &point)
{
    bool isInvertible = false;
    const QPointF place = item.itemTransform(nullptr, nullptr).inverted(&isInvertible).map(point);
    if (!isInvertible || !item.contains(place))
        return {};
    for (const QQuickItem *around = item.parentItem(); around; around = around->parentItem()) {
        if (around->clip() && !around->contains(around->mapFromScene(point)))
            return {};
    }
    return place;
}

/// Where the pointer is in an item when it is at a point of a window. What is outside of the window is seen nowhere,
/// even if a pressed button lets the pointer report from there.
std::optional<QPointF> placeIn(const QQuickItem &item, const QWindow *window, const QPointF &point)
{
    const bool isThere = window && item.window() == window && QRectF({}, window->size()).contains(point);
    return isThere ? placeIn(item, point) : std::nullopt;
}

} // namespace

DetectionWatch &DetectionWatch::instance()
{
    // Never deleted, as the spy.
    static auto *const watch = new DetectionWatch(*RMouseEventSpy::instance());
    return *watch;
}

DetectionWatch::DetectionWatch(RMouseEventSpy &spy)
    : m_spy(spy)
{}

void DetectionWatch::add(RMouseDetection &detection)
{
    m_detections.append(&detection);
    if (m_detections.size() == 1)
        listen();
    updateLater();
}

void DetectionWatch::remove(RMouseDetection &detection)
{
    m_detections.removeOne(&detection);
    if (!m_detections.isEmpty())
        return;
    m_spy.disconnect(this);
    followFrames();
}

void DetectionWatch::listen()
{
    connect(&m_spy, &RMouseEventSpy::pointed, this, &DetectionWatch::update);
    connect(&m_spy, &RMouseEventSpy::pressedInWindow, this, &DetectionWatch::press);
    connect(&m_spy, &RMouseEventSpy::mouseReleased, this,
            [this](const QPointF &, int button) { release(Qt::MouseButton(button)); });
    // The release may have been another window's business, or nobody's.
    connect(&m_spy, &RMouseEventSpy::anyPressedChanged, this, [this] {
        if (!m_spy.anyPressed())
            release(Qt::AllButtons);
    });
}

/// Items may move under a pointer that rests, which takes a frame, and have their place when it is on its way.
void DetectionWatch::followFrames()
{
    QWindow *window = m_detections.isEmpty() ? nullptr : m_spy.window();
    if (window == m_window) // which may be on its way out, and no QQuickWindow any more
        return;
    disconnect(m_frames);
    m_window = window;
    if (auto *drawn = dynamic_cast<QQuickWindow *>(window))
        m_frames = connect(drawn, &QQuickWindow::afterAnimating, this, &DetectionWatch::updateLater);
}

void DetectionWatch::updateLater()
{
    if (m_updatesLater)
        return;
    m_updatesLater = true;
    QMetaObject::invokeMethod(this, &DetectionWatch::update, Qt::QueuedConnection);
}

void DetectionWatch::update()
{
    struct News
    {
        QPointer<RMouseDetection> detection;
        std::optional<QPointF> place;
    };
    m_updatesLater = false;
    followFrames();
    QList<News> news;
    for (RMouseDetection *detection : std::as_const(m_detections)) {
        const auto place = placeIn(*detection, m_spy.window(), m_spy.positionInWindow());
        if (place != detection->pointer())
            news.append({detection, place});
    }
    // What was left is told before what was entered.
    std::stable_partition(news.begin(), news.end(), [](const News &one) { return !one.place; });
    const unsigned turn = ++m_updates;
    for (const News &one : news) {
        if (one.detection && one.detection->isWatched())
            one.detection->setPointer(one.place);
        // A listener let more happen, of which all have been told meanwhile.
        if (turn != m_updates)
            return;
    }
}

void DetectionWatch::press(QWindow *window, const QPointF &position, int button)
{
    struct News
    {
        QPointer<RMouseDetection> detection;
        bool isInside;
    };
    QList<News> news;
    news.reserve(m_detections.size());
    for (RMouseDetection *detection : std::as_const(m_detections))
        news.append({detection, placeIn(*detection, window, position).has_value()});
    for (const auto &[detection, isInside] : news) {
        if (detection && detection->isWatched())
            detection->press(Qt::MouseButton(button), isInside);
    }
}

void DetectionWatch::release(Qt::MouseButtons buttons)
{
    QList<QPointer<RMouseDetection>> pressed;
    for (RMouseDetection *detection : std::as_const(m_detections)) {
        if (detection->pressedInside())
            pressed.append(detection);
    }
    for (const auto &detection : std::as_const(pressed)) {
        if (detection)
            detection->release(buttons);
    }
}

} // namespace tamble::client
