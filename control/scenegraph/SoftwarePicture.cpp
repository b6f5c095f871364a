#include "scenegraph/SoftwarePicture.h"

#include "scenegraph/PictureCanvas.h"
#include "scenegraph/PictureShape.h"

#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickWindow>
#include <QtQuick/QSGClipNode>
#include <QtQuick/QSGImageNode>
#include <QtQuick/QSGTexture>

#include <utility>

namespace tamble::client {

namespace {

/// How far, in pixels, lines along an item's edges may go beyond it.
constexpr double margin = 8.0;

QRectF visibleArea(const QQuickItem &item, const QSGNode &shapes)
{
    if (shapes.type() == QSGNode::ClipNodeType)
        return static_cast<const QSGClipNode &>(shapes).clipRect();
    return item.boundingRect().adjusted(-margin, -margin, margin, margin);
}

void paint(const QSGNode &node, PictureCanvas &canvas)
{
    if (const auto *shape = dynamic_cast<const PictureShape *>(&node))
        shape->paint(canvas);
    for (const QSGNode *child = node.firstChild(); child; child = child->nextSibling())
        paint(*child, canvas);
}

} // namespace

bool isDrawnInSoftware(const QQuickItem &item)
{
    const QQuickWindow *window = item.window();
    return window && window->rendererInterface()->graphicsApi() == QSGRendererInterface::Software;
}

SoftwarePicture::SoftwarePicture() = default;
SoftwarePicture::~SoftwarePicture() = default;

void SoftwarePicture::show(const QQuickItem &item)
{
    PictureCanvas canvas(visibleArea(item, *m_shapes), item.window()->effectiveDevicePixelRatio());
    paint(*m_shapes, canvas);
    if (canvas.image().isNull()) {
        delete std::exchange(m_picture, nullptr);
        m_texture.reset();
        return;
    }
    if (!m_picture) {
        m_picture = item.window()->createImageNode();
        m_picture->setFiltering(QSGTexture::Linear);
        appendChildNode(m_picture);
    }
    std::unique_ptr<QSGTexture> texture(item.window()->createTextureFromImage(canvas.image()));
    m_picture->setTexture(texture.get());
    m_picture->setRect(canvas.area());
    m_picture->setSourceRect(QRectF(canvas.image().rect()));
    m_texture = std::move(texture);
}

} // namespace tamble::client
