#include "base/RPopupBase.h"

namespace tamble::client {

RPopupBase::RPopupBase(QObject *parent)
    : QQuickPopup(parent)
    , m_origin(*this)
{}

// The template hides it when nothing of this is left.
RPopupBase::~RPopupBase()
{
    setVisible(false);
}

void RPopupBase::setVisible(bool visible)
{
    if (visible && !isVisible() && parentItem()) {
        m_origin.rememberFocus(*parentItem());
        m_origin.followOwner(*parentItem());
    }
    QQuickPopup::setVisible(visible);
}

} // namespace tamble::client
