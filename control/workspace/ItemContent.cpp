#include "workspace/ItemContent.h"

namespace tamble::client {

void ItemContent::setComponent(QQmlComponent *component)
{
    m_component = component;
    delete m_made;
}

void ItemContent::show(bool isShown, QQuickItem &owner)
{
    if (isShown && m_component && !m_made && m_component->isReady()) {
        QQuickItem *host = m_item ? m_item.data() : &owner;
        const QVariantMap properties{{QStringLiteral("parent"), QVariant::fromValue(host)}};
        QObject *made = m_component->createWithInitialProperties(properties, m_component->creationContext());
        m_made = qobject_cast<QQuickItem *>(made);
        if (made)
            made->setParent(&owner);
    }
    if (m_item)
        m_item->setVisible(isShown);
    else if (m_made)
        m_made->setVisible(isShown);
}

} // namespace tamble::client
