#pragma once

#include <QtCore/QSharedPointer>
#include <QtCore/QVariantAnimation>
#include <QtGui/QImage>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickItemGrabResult>

namespace tamble::client {

/// Picture of an item, in a frame above everything else in its window. It begins where the item is, and lives as long
/// as the window unless it is deleted.
class DragGhost : public QQuickItem
{
    Q_OBJECT

public:
    /// Above popups and whatever else a window holds.
    static constexpr qreal aboveEverything = 2'000'000.0;

    /// `pictured` is in a window. `opacity` is that of the picture, 0 to 1; the frame is opaque.
    DragGhost(QQuickItem &pictured, qreal opacity);

    /// Stands this far from where it began, in pixels of the scene.
    void moveBy(const QPointF &way);
    /// Goes back to where it began, in 150 ms, and deletes itself.
    void sendBack();

protected:
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data) override;

private:
    void takePicture(QQuickItem &pictured);
    void makeFrame(QQuickItem &pictured);

    QSharedPointer<QQuickItemGrabResult> m_grab;
    QImage m_picture;
    QPointF m_home;
    QVariantAnimation m_return;
    qreal m_pictureOpacity;
    bool m_pictureChanged = false;
};

} // namespace tamble::client
