#pragma once

#include "base/ControlExport.h"
#include "base/ItemListening.h"

#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickItem>

namespace tamble::client {

/// Keeps what has the keyboard focus in sight while the interface of the window around it gets another size, which
/// would move it out of the views that scroll it, or one of these views does; what the user has scrolled out of sight
/// stays there in a view of another size. It shows nothing itself.
class TAMBLE_CLIENT_CONTROL_EXPORT FocusReveal : public QQuickItem, private QQuickItemChangeListener
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RFocusReveal)
    /// Whether all sizes are at rest; true by default. Set to false before they change, which has the views scroll
    /// once everything has its new place.
    Q_PROPERTY(bool settled READ isSettled WRITE setSettled NOTIFY settledChanged FINAL)

public:
    explicit FocusReveal(QQuickItem *parent = nullptr);
    ~FocusReveal() override;

    bool isSettled() const { return m_isSettled; }
    void setSettled(bool settled);

Q_SIGNALS:
    void settledChanged();

protected:
    void updatePolish() override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    void itemGeometryChanged(QQuickItem *view, QQuickGeometryChange change, const QRectF &before) override;
    void itemDestroyed(QQuickItem *view) override;
    void reveal();
    void listen(bool on);
    void followFocus();

    QPointer<QQuickWindow> m_window; ///< Whose focus is followed.
    QList<QQuickItem *> m_views;     ///< Around what has the focus, the innermost first.
    bool m_isSettled = true;
    bool m_isPending = false; ///< Whether it is seen to with the next polishing.
};

} // namespace tamble::client
