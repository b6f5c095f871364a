#pragma once

#include "scrolling/Positioners.h"

#include <QtCore/QPointer>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickItem>

#include <QtQuickTemplates2/private/qquickdialogbuttonbox_p.h>

namespace tamble::client {

/// Buttons of a dialog: further ones of the page's at its beginning, the standard ones at its end. Without room for both
/// the page's stand above. Its height is 0 without any.
class DialogFooter : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RDialogFooterBase)
    Q_PROPERTY(QQuickDialogButtonBox *standardBox READ standardBox WRITE setStandardBox FINAL)

public:
    explicit DialogFooter(QQuickItem *parent = nullptr);

    /// Who holds the standard buttons.
    QQuickDialogButtonBox *standardBox() const { return m_standardBox; }
    void setStandardBox(QQuickDialogButtonBox *box);
    /// Who holds the further ones.
    QQuickItem &furtherRow();

    /// Lays them out in a dialog of this width at most; both in pixels.
    void layOut(qreal maximumWidth, qreal unit);

Q_SIGNALS:
    /// What is in it has another size now.
    void buttonsChanged();

private:
    QPointer<QQuickDialogButtonBox> m_standardBox;
    QQuickRow *m_standardRow = nullptr;
    QQuickRow *m_furtherRow = nullptr; // made for the first button
};

} // namespace tamble::client
