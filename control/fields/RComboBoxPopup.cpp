#include "fields/RComboBoxPopup.h"

#include "fields/RComboBoxBase.h"

namespace tamble::client {

RComboBoxPopup::RComboBoxPopup(QObject *parent)
    : QQuickPopup(parent)
    , m_origin(*this)
{
    connect(this, &QQuickPopup::visibleChanged, this, [this] {
        if (RComboBoxBase *box = comboBox())
            box->onListVisible(isVisible());
    });
}

void RComboBoxPopup::setVisible(bool visible)
{
    RComboBoxBase *box = comboBox();
    if (visible && box && !box->canOpen())
        return;
    if (visible && box && !isVisible()) {
        m_origin.rememberFocus(*box, box);
        m_origin.followOwner(*box);
        if (!box->hasActiveFocus())
            box->forceActiveFocus(Qt::PopupFocusReason);
    }
    QQuickPopup::setVisible(visible);
}

RComboBoxBase *RComboBoxPopup::comboBox() const
{
    // Not by the meta-object, which the box keeps while it is being destroyed.
    return dynamic_cast<RComboBoxBase *>(parentItem());
}

} // namespace tamble::client
