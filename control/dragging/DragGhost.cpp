#include "dragging/DragGhost.h"

#include "base/PartComponents.h"

#include <QtCore/QEasingCurve>
#include <QtGui/QPainter>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickWindow>
#include <QtQuick/QSGImageNode>

#include <utility>

namespace tamble::client {

namespace {

constexpr int returnMs = 150;
/// What graphics cards take, in pixels.
constexpr int longestEdge = 4096;

QImage madeFainter(const QImage &picture, qreal opacity)
{
    QImage fainter(picture.size(), QImage::Format_ARGB32_Premultiplied);
    fainter.fill(Qt::transparent);
    QPainter painter(&fainter);
    painter.setOpacity(opacity);
    painter.drawImage(0, 0, picture);
    return fainter;
}

} // namespace

DragGhost::DragGhost(QQuickItem &pictured, qreal opacity)
    : QQuickItem(pictured.window()->contentItem())
    , m_pictureOpacity(opacity)
{
    setParent(parentItem());
    setFlag(ItemHasContents);
    setZ(aboveEverything);
    const QRectF place = parentItem()->mapRectFromItem(&pictured, pictured.boundingRect());
    m_home = place.topLeft();
    setPosition(m_home);
    setSize(place.size());
    takePicture(pictured);
    makeFrame(pictured);
}

void DragGhost::moveBy(const QPointF &way)
{
    setPosition(m_home + way);
}

void DragGhost::sendBack()
{
    m_return.setDuration(returnMs);
    m_return.setEasingCurve(QEasingCurve::OutCubic);
    m_return.setStartValue(position());
    m_return.setEndValue(m_home);
    connect(&m_return, &QVariantAnimation::valueChanged, this,
            [this](const QVariant &place) { setPosition(place.toPointF()); });
    connect(&m_return, &QVariantAnimation::finished, this, &QObject::deleteLater);
    m_return.start();
}

void DragGhost::takePicture(QQuickItem &pictured)
{
    const QSizeF size = QSizeF(this->size() * window()->effectiveDevicePixelRatio());
    QSize pixels = size.boundedTo(QSizeF(longestEdge, longestEdge)).toSize();
    if (pixels.isEmpty() || !window()->isVisible())
        return;
    m_grab = pictured.grabToImage(pixels);
    if (!m_grab)
        return;
    connect(m_grab.get(), &QQuickItemGrabResult::ready, this, [this] {
        // Empty where the item has gone meanwhile.
        if (m_grab->image().isNull())
            return;
        m_picture = madeFainter(m_grab->image(), m_pictureOpacity);
        m_pictureChanged = true;
        update();
    });
}

void DragGhost::makeFrame(QQuickItem &pictured)
{
    QQmlEngine *engine = nullptr;
    for (const QQuickItem *item = &pictured; item && !engine; item = item->parentItem())
        engine = qmlEngine(item);
    const QVariantMap properties{{QStringLiteral("parent"), QVariant::fromValue<QQuickItem *>(this)}};
    if (engine)
        PartComponents::of(engine).make(Part::DragFrame, this, properties);
}

QSGNode *DragGhost::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *)
{
    auto *node = static_cast<QSGImageNode *>(oldNode);
    if (m_picture.isNull()) {
        delete node;
        return nullptr;
    }
    if (!node) {
        node = window()->createImageNode();
        node->setOwnsTexture(true);
        node->setFiltering(QSGTexture::Linear);
        m_pictureChanged = true;
    }
    if (std::exchange(m_pictureChanged, false))
        node->setTexture(window()->createTextureFromImage(m_picture));
    node->setRect(boundingRect());
    return node;
}

} // namespace tamble::client
