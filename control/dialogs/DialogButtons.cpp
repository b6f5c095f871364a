#include "dialogs/DialogButtons.h"

#include <utility>

namespace tamble::client {

void DialogButtons::takePlaces(DialogFooter &footer)
{
    m_footer = &footer;
    for (const QPointer<QQuickItem> &button : std::as_const(m_further)) {
        if (button)
            button->setParentItem(&footer.furtherRow());
    }
}

QQuickDialogButtonBox *DialogButtons::box() const
{
    return m_footer ? m_footer->standardBox() : nullptr;
}

void DialogButtons::setStandard(QPlatformDialogHelper::StandardButtons flags)
{
    if (QQuickDialogButtonBox *holder = box())
        holder->setStandardButtons(flags);
}

QQuickAbstractButton *DialogButtons::standard(Flag flag) const
{
    const QQuickDialogButtonBox *holder = box();
    return holder ? holder->standardButton(flag) : nullptr;
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
    const QQuickDialogButtonBox *holder = box();
    for (int i = 0; holder && i < holder->count(); ++i) {
        auto *button = qobject_cast<QQuickAbstractButton *>(holder->itemAt(i));
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
    if (m_footer)
        button.setParentItem(&m_footer->furtherRow());
}

} // namespace tamble::client
