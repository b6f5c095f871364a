#pragma once

#include "base/ControlExport.h"
#include "flyouts/RFlyoutWindowBase.h"

#include <QtCore/QPointF>
#include <QtCore/QPointer>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickWindow>

namespace tamble::client {

/// What the mouse or a finger takes hold of to move a flyout, or to give it another size.
class TAMBLE_CLIENT_CONTROL_EXPORT FlyoutHandle : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RFlyoutHandle)
    /// The flyout; null while there is none.
    Q_PROPERTY(tamble::client::RFlyoutWindowBase *flyout MEMBER m_flyout NOTIFY flyoutChanged FINAL)
    Q_PROPERTY(bool resizes READ resizes WRITE setResizes NOTIFY resizesChanged FINAL)

public:
    explicit FlyoutHandle(QQuickItem *parent = nullptr);

    /// Whether it changes the size of the flyout, in place of moving it; false by default. A double click on one that
    /// moves collapses the flyout to its header.
    bool resizes() const { return m_resizes; }
    void setResizes(bool resizes);

Q_SIGNALS:
    void flyoutChanged();
    void resizesChanged();

protected:
    bool eventFilter(QObject *window, QEvent *event) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseUngrabEvent() override;

private:
    QPointF inLayer(const QPointF &scenePoint) const;
    void beginDrag();
    bool endDrag();

    QPointer<RFlyoutWindowBase> m_flyout;
    QPointer<QQuickWindow> m_watched; ///< For Esc during a drag.
    QPointF m_pressed;                ///< In the layer.
    QRectF m_start;                   ///< Of the flyout.
    RFlyoutWindowBase::Arrangement m_arrangement;
    bool m_resizes = false;
    bool m_isPressed = false;
    bool m_isDragging = false;
};

} // namespace tamble::client
