#include "style/StyleChecker.h"

#include "style/StyleEngine.h"

namespace tamble::client {

StyleChecker::StyleChecker(QQuickItem *parent)
    : QQuickItem(parent)
{
    listen();
}

void StyleChecker::setActive(bool active)
{
    if (m_active == active)
        return;
    if (m_active)
        disconnect(m_connection);
    m_active = active;
    if (m_active)
        listen();
    Q_EMIT activeChanged();
}

void StyleChecker::listen()
{
    m_connection =
        connect(StyleEngine::instance(), &StyleEngine::propertiesPotentiallyMissing, this, &QQuickItem::polish);
    polish();
}

void StyleChecker::updatePolish()
{
    if (m_active)
        StyleEngine::instance()->reportMissingKeys();
}

} // namespace tamble::client
