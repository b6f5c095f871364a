#pragma once

namespace tamble::client {

/// Native code that reads values of an item's style set; see StyleSet::setFollower().
class StyleFollower
{
public:
    /// Every value may be another one.
    virtual void onStyleChanged() = 0;

protected:
    ~StyleFollower() = default;
};

} // namespace tamble::client
