#pragma once

#include <QtQuick/QSGNode>

#include <memory>

class QQuickItem;
class QSGImageNode;
class QSGTexture;

namespace tamble::client {

/// Whether the item's window is drawn by Qt Quick's software renderer, which shows no geometry of our own.
bool isDrawnInSoftware(const QQuickItem &item);

/// What an item hands to the software renderer: a picture of the nodes that it would hand to another one. These nodes,
/// all of which are PictureShapes or groups of them, stay outside of the scene graph.
///
/// A picture rather than a render node, which would have to draw all of its rectangle again over what is there already
/// when only a part of the ground below was drawn anew.
class SoftwarePicture : public QSGNode
{
public:
    SoftwarePicture();
    ~SoftwarePicture() override;

    /// To be called as an item's updatePaintNode(): `update` takes the node of the last frame, or null, and returns the
    /// node for this one.
    template <typename Update>
    static QSGNode *updated(const QQuickItem &item, QSGNode *oldNode, Update update);

private:
    void show(const QQuickItem &item);

    std::unique_ptr<QSGNode> m_shapes;
    std::unique_ptr<QSGTexture> m_texture;
    QSGImageNode *m_picture = nullptr; // a child
};

template <typename Update>
QSGNode *SoftwarePicture::updated(const QQuickItem &item, QSGNode *oldNode, Update update)
{
    if (!isDrawnInSoftware(item))
        return update(oldNode);
    std::unique_ptr<SoftwarePicture> picture(oldNode ? static_cast<SoftwarePicture *>(oldNode) : new SoftwarePicture);
    picture->m_shapes.reset(update(picture->m_shapes.release()));
    if (!picture->m_shapes)
        return nullptr;
    picture->show(item);
    return picture.release();
}

} // namespace tamble::client
