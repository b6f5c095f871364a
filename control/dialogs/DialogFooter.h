#pragma once

#include "scrolling/Positioners.h"

#include <QtCore/QPointer>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickItem>
#include <QtQuick/private/qquickitemchangelistener_p.h>
#include <QtQuickTemplates2/private/qquickdialogbuttonbox_p.h>

namespace tamble::client {

/// Buttons of a dialog: further ones of the page's at its beginning, the standard ones at its end. Without room for
/// both the page's stand above. Its height is 0 without any.
class DialogFooter : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RDialogFooterBase)
    Q_PROPERTY(QQuickDialogButtonBox *standardBox READ standardBox WRITE setStandardBox FINAL)

public:
    explicit DialogFooter(QQuickItem *parent = nullptr);
    ~DialogFooter() override;

    /// Who holds the standard buttons; set once.
    QQuickDialogButtonBox *standardBox() const { return m_standardBox; }
    void setStandardBox(QQuickDialogButtonBox *box);
    /// Who holds the further ones.
    QQuickItem &furtherRow();
    /// Who is told when what is in it asks for another width; null for nobody.
    void setListener(QQuickItemChangeListener *listener);

    /// Lays them out in a dialog of this width at most; both in pixels.
    void layOut(qreal maximumWidth, qreal unit);

private:
    QQuickItemChangeListener *m_listener = nullptr;
    QPointer<QQuickDialogButtonBox> m_standardBox;
    QPointer<QQuickRow> m_standardRow;
    QQuickRow *m_furtherRow = nullptr; // made for the first button
};

} // namespace tamble::client
