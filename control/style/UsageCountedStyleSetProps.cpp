#include "style/UsageCountedStyleSetProps.h"

#include "style/StyleEngine.h"

namespace tamble::client {

void UsageCountedStyleSetProps::invalidate()
{
    StyleSetProps::invalidate();
    m_missingKeys.clear();
}

void UsageCountedStyleSetProps::announceChange()
{
    Q_EMIT propsChanged();
    // What a user does may destroy or move others, which leave whichever of the two lists they are in.
    PropsUserList waiting;
    waiting.swap(m_users);
    while (!waiting.empty()) {
        PropsUser &user = waiting.front();
        waiting.pop_front();
        m_users.push_back(user);
        user.onPropsChanged();
    }
}

void UsageCountedStyleSetProps::noteMissing(const QString &key)
{
    m_missingKeys.insert(key);
    StyleEngine::instance()->noteMissingKey();
}

} // namespace tamble::client
