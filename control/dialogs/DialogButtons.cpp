#include "dialogs/DialogButtons.h"

#include <utility>

namespace tamble::client {

void DialogButtons::takePlaces(QQuickDialogButtonBox &standardBox, QQuickItem *furtherRow)
{
    m_standardBox = &standardBox;
    m_furtherRow = furtherRow;
    for (const QPointer<QQuickItem> &button : std::as_const(m_further)) {
        if (button)
            button->setParentItem(furtherRow);
    }
}

void DialogButtons::setStandard(QPlatformDialogHelper::StandardButtons flags)
{
    if (m_standardBox)
        m_standardBox->setStandardButtons(flags);
}

QQuickAbstractButton *DialogButtons::standard(Flag flag) const
{
    return m_standardBox ? m_standardBox->standardButton(flag) : nullptr;
}

DialogButtons::Flag DialogButtons::flagOf(const QQuickAbstractButton *button) const
{
    for (int bit = QPlatformDialogHelper::FirstButton; bit <= QPlatformDialogHelper::LastButton; bit <<= 1) {
        if (standard(Flag(bit)) == button)
            return Flag(bit);
    }
    return QPlatformDialogHelper::NoButton;
}

QQuickAbstractButton *DialogButtons::ofEnter(int wanted) const
{
    if (wanted != 0)
        return standard(Flag(wanted));
    if (QQuickAbstractButton *ok = standard(QPlatformDialogHelper::Ok))
        return ok;
    for (int i = 0; m_standardBox && i < m_standardBox->count(); ++i) {
        auto *button = qobject_cast<QQuickAbstractButton *>(m_standardBox->itemAt(i));
        const auto role = QPlatformDialogHelper::buttonRole(flagOf(button));
        if (role == QPlatformDialogHelper::AcceptRole || role == QPlatformDialogHelper::YesRole)
            return button;
    }
    return nullptr;
}

void DialogButtons::mark(QQuickAbstractButton *ofEnter)
{
    if (m_marked == ofEnter)
        return;
    for (QQuickAbstractButton *button : {m_marked.get(), ofEnter}) {
        if (button)
            button->setProperty("pressedByEnter", button == ofEnter);
    }
    m_marked = ofEnter;
}

void DialogButtons::addFurther(QQuickItem &button)
{
    button.setProperty("enterClicks", true);
    m_further.append(&button);
    if (m_furtherRow)
        button.setParentItem(m_furtherRow);
}

} // namespace tamble::client
