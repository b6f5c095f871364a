#include "screen/RScreen.h"

#include "screen/ScreenZoom.h"

#include <cmath>
#include <utility>

namespace tamble::client {

RScreen::RScreen(QQuickItem *parent)
    : QQuickItem(parent)
{
    // A parent given here may bring a window before this class can hear of it.
    followWindow(window());
}

void RScreen::setDesignDpi(qreal dpi)
{
    if (std::isnan(dpi) || m_designDpi == dpi)
        return;
    m_designDpi = dpi;
    updateFacts();
    Q_EMIT designDpiChanged();
}

void RScreen::itemChange(ItemChange change, const ItemChangeData &value)
{
    if (change == ItemSceneChange)
        followWindow(value.window);
    else if (change == ItemDevicePixelRatioHasChanged)
        updateFacts();
    QQuickItem::itemChange(change, value);
}

void RScreen::followWindow(QQuickWindow *window)
{
    if (m_window)
        m_window->disconnect(this);
    m_window = window;
    if (m_window)
        connect(m_window, &QWindow::screenChanged, this, &RScreen::followScreen);
    followScreen(m_window ? m_window->screen() : nullptr);
}

void RScreen::followScreen(QScreen *screen)
{
    if (m_screen)
        m_screen->disconnect(this);
    m_screen = screen;
    if (m_screen) {
        connect(m_screen, &QScreen::geometryChanged, this, &RScreen::updateFacts);
        connect(m_screen, &QScreen::physicalDotsPerInchChanged, this, &RScreen::updateFacts);
        connect(m_screen, &QScreen::logicalDotsPerInchChanged, this, &RScreen::updateFacts);
        connect(m_screen, &QScreen::orientationChanged, this, &RScreen::updateFacts);
    }
    updateFacts();
}

RScreen::Facts RScreen::currentFacts() const
{
    Facts facts;
    if (!m_window || !m_screen)
        return facts;
    facts.logicalDpi = m_screen->logicalDotsPerInch();
    facts.physicalDpi = m_screen->physicalDotsPerInch();
    facts.devicePixelRatio = m_window->effectiveDevicePixelRatio();
    facts.size = m_screen->size();
    facts.orientation = m_screen->orientation();
    facts.autoZoomFactor = tamble::client::autoZoomFactor(facts.logicalDpi, m_designDpi);
    return facts;
}

// All values are stored before the first signal, so that no handler sees a mixture of two screens.
void RScreen::updateFacts()
{
    const Facts before = std::exchange(m_facts, currentFacts());
    if (m_facts.logicalDpi != before.logicalDpi)
        Q_EMIT logicalDpiChanged();
    if (m_facts.physicalDpi != before.physicalDpi)
        Q_EMIT physicalDpiChanged();
    if (m_facts.devicePixelRatio != before.devicePixelRatio)
        Q_EMIT devicePixelRatioChanged();
    if (m_facts.size != before.size)
        Q_EMIT screenSizeChanged();
    if (m_facts.orientation != before.orientation)
        Q_EMIT orientationChanged();
    if (m_facts.autoZoomFactor != before.autoZoomFactor)
        Q_EMIT autoZoomFactorChanged();
}

} // namespace tamble::client
