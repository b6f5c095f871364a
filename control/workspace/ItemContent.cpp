#include "workspace/ItemContent.h"

#include "base/PageItem.h"

namespace tamble::client {

void ItemContent::setComponent(QQmlComponent *component)
{
    m_component = component;
    delete m_made;
}

void ItemContent::show(bool isShown, QQuickItem &owner)
{
    if (isShown && m_component && !m_made)
        m_made = makePageItem(*m_component, m_item ? *m_item : owner, owner);
    if (m_item)
        m_item->setVisible(isShown);
    else if (m_made)
        m_made->setVisible(isShown);
}

} // namespace tamble::client
