#include "style/UsageCountedStyleSetProps.h"

#include "style/StyleEngine.h"

namespace tamble::client {

void UsageCountedStyleSetProps::invalidate()
{
    StyleSetProps::invalidate();
    m_missingKeys.clear();
}

void UsageCountedStyleSetProps::noteMissing(const QString &key)
{
    m_missingKeys.insert(key);
    StyleEngine::instance()->noteMissingKey();
}

} // namespace tamble::client
