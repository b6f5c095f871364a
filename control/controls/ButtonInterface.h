#pragma once

#include <QtQuick/private/qaccessiblequickitem_p.h>

namespace tamble::client {

class RButtonBase;

/// What assistive tools see of a button, read from it when they ask; nothing is kept per button.
///
/// A name or a description that the page attaches counts before the button's own, and so does its answer to a press.
class ButtonInterface : public QAccessibleQuickItem
{
public:
    explicit ButtonInterface(RButtonBase *button);

    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override;
    void doAction(const QString &action) override;

private:
    /// Null while the item is being destroyed, which is told as well.
    RButtonBase *button() const;
};

/// The name that the page attaches, or else the text without its mnemonic.
QString accessibleNameOf(const RButtonBase &button);

/// Whether the page has hidden the button from assistive tools.
bool isIgnoredByTools(const RButtonBase &button);

/// Has Qt make the interfaces, as soon as somebody asks for one. Once is enough, more does no harm.
void installButtonInterfaces();

} // namespace tamble::client
