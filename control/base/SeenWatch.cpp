#include "base/SeenWatch.h"

#include <QtQuick/QQuickItem>

#include <utility>

namespace tamble::client {

SeenWatch::SeenWatch(QQuickItem &item)
    : m_item(item)
{
    connect(&item, &QQuickItem::visibleChanged, this, &SeenWatch::update);
    connect(&item, &QQuickItem::windowChanged, this, &SeenWatch::follow);
    follow(item.window());
}

void SeenWatch::follow(QQuickWindow *window)
{
    if (m_window)
        m_window->disconnect(this);
    m_window = window;
    if (window)
        connect(window, &QWindow::visibilityChanged, this, &SeenWatch::update);
    update();
}

void SeenWatch::update()
{
    const auto visibility = m_window ? m_window->visibility() : QWindow::Hidden;
    const bool isSeen = m_item.isVisible() && visibility != QWindow::Hidden && visibility != QWindow::Minimized;
    if (std::exchange(m_isSeen, isSeen) != isSeen)
        Q_EMIT seenChanged();
}

} // namespace tamble::client
