#pragma once

#include "style/PropsUser.h"
#include "style/StyleSetProps.h"

#include <set>

namespace tamble::client {

/// Values that all style sets of one path share, with the keys that were asked for in vain. Its users and the style
/// engine hold it by shared pointers, whose count is the usage count.
class TAMBLE_CLIENT_CONTROL_EXPORT UsageCountedStyleSetProps : public StyleSetProps
{
    Q_OBJECT

public:
    using StyleSetProps::StyleSetProps;

    void addUser(PropsUser &user) { m_users.push_back(user); }
    /// Tells the users and whoever listens to propsChanged().
    void announceChange();

    /// In alphabetical order, since the values were last invalidated.
    const std::set<QString> &missingKeys() const { return m_missingKeys; }

    void invalidate() override;

protected:
    void noteMissing(const QString &key) override;

private:
    PropsUserList m_users;
    std::set<QString> m_missingKeys;
};

} // namespace tamble::client
