#include "flyouts/RFlyoutLayer.h"

#include "flyouts/RFlyoutWindowBase.h"

namespace tamble::client {

bool RFlyoutLayer::focusNext()
{
    return RFlyoutWindowBase::focusNext(*this);
}

} // namespace tamble::client
