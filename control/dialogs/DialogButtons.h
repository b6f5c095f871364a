#pragma once

#include "dialogs/DialogFooter.h"

#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtQuickTemplates2/private/qquickdialogbuttonbox_p.h>

namespace tamble::client {

/// The buttons of a dialog: the standard ones, of which Enter presses one, and further ones of the page's own.
class DialogButtons
{
public:
    using Flag = QPlatformDialogHelper::StandardButton;

    /// The dialog has parts now.
    void takePlaces(DialogFooter &footer);

    void setStandard(QPlatformDialogHelper::StandardButtons flags);
    /// Null for none, and before the dialog has parts.
    QQuickAbstractButton *standard(Flag flag) const;
    /// What a standard button stands for.
    Flag flagOf(const QQuickAbstractButton *button) const;
    /// The button of the flag `wanted`; for 0 Ok, or else the first one that accepts. Null for none.
    QQuickAbstractButton *ofEnter(int wanted) const;
    /// Shows which button Enter presses; null for none.
    void mark(QQuickAbstractButton *ofEnter);

    void addFurther(QQuickItem &button);
    const QList<QPointer<QQuickItem>> &further() const { return m_further; }

private:
    QQuickDialogButtonBox *box() const;

    QPointer<DialogFooter> m_footer;
    QPointer<QQuickAbstractButton> m_marked; ///< The one that shows that Enter presses it.
    QList<QPointer<QQuickItem>> m_further;
};

} // namespace tamble::client
