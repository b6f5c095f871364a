#include "controls/RTintedImage.h"

#include "controls/TintMaterial.h"
#include "scenegraph/SoftwarePicture.h"

#include <QtGui/QPainter>
#include <QtQml/QQmlContext>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickWindow>
#include <QtQuick/QSGGeometryNode>
#include <QtQuick/QSGImageNode>
#include <QtQuick/private/qquickimage_p_p.h>
#include <QtQuick/private/qsgcontext_p.h>

namespace tamble::client {

namespace {

QQuickImagePrivate *privateOf(RTintedImage *image)
{
    return static_cast<QQuickImagePrivate *>(QQuickItemPrivate::get(image));
}

// Later versions of Qt read no file without an engine: one that no page has made takes that of what is around it.
void takeContext(QQuickItem &image)
{
    for (const QQuickItem *item = image.parentItem(); item && !qmlContext(&image); item = item->parentItem()) {
        if (QQmlContext *context = qmlContext(item))
            QQmlEngine::setContextForObject(&image, context);
    }
}

} // namespace

void RTintedImage::setTinted(bool tinted)
{
    if (m_tinted == tinted)
        return;
    m_tinted = tinted;
    update();
    Q_EMIT tintedChanged();
}

void RTintedImage::setTint(const QColor &tint)
{
    if (m_tint == tint)
        return;
    m_tint = tint;
    update();
    Q_EMIT tintChanged();
}

void RTintedImage::setEnlargement(qreal enlargement)
{
    if (m_enlargement == enlargement)
        return;
    m_enlargement = enlargement;
    if (isComponentComplete() && !source().isEmpty())
        load();
    Q_EMIT enlargementChanged();
}

void RTintedImage::load()
{
    takeContext(*this);
    const qreal screenRatio = window() ? window()->effectiveDevicePixelRatio() : qApp->devicePixelRatio();
    if (m_enlargement > 1.0 && screenRatio <= 1.0) {
        const QQmlContext *context = qmlContext(this);
        QUrl file = context ? context->resolvedUrl(source()) : source();
        qreal fileRatio = 1.0;
        resolve2xLocalFile(file, m_enlargement, &file, &fileRatio);
        if (fileRatio > 1.0) {
            privateOf(this)->devicePixelRatio = fileRatio;
            loadPixmap(file, UseProviderOptions);
            return;
        }
    }
    QQuickImage::load();
}

QSGNode *RTintedImage::updatePaintNode(QSGNode *old, UpdatePaintNodeData *data)
{
    if (m_nodeIsTinted != m_tinted) {
        delete old;
        old = nullptr;
        m_nodeIsTinted = m_tinted;
    }
    if (!m_tinted)
        return QQuickImage::updatePaintNode(old, data);
    return isDrawnInSoftware(*this) ? updatePaintedNode(old) : updateTintedNode(old, data);
}

// The image's own node, which knows about fill modes, mirroring and atlas textures, with another material.
QSGNode *RTintedImage::updateTintedNode(QSGNode *old, UpdatePaintNodeData *data)
{
    QSGNode *imageNode = QQuickImage::updatePaintNode(old, data);
    if (!imageNode)
        return nullptr;
    auto *node = static_cast<QSGGeometryNode *>(imageNode);
    auto *material = dynamic_cast<TintMaterial *>(node->material());
    if (!material) {
        material = new TintMaterial;
        node->setFlag(QSGNode::OwnsMaterial, false); // of the image's own one
        node->setMaterial(material);
        node->setOpaqueMaterial(nullptr);
        node->setFlag(QSGNode::OwnsMaterial);
    }
    QQuickImagePrivate *image = privateOf(this);
#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
    QQuickTextureFactory *picture = image->pix.textureFactory();
#else
    QQuickTextureFactory *picture = image->currentPix->textureFactory();
#endif
    QSGTexture *texture = image->sceneGraphRenderContext()->textureForFactory(picture, window());
    const bool textureChanged = material->setTexture(texture);
    const bool colorChanged = material->setColor(m_tint);
    if (textureChanged || colorChanged)
        node->markDirty(QSGNode::DirtyMaterial);
    return node;
}

// Without shaders the picture itself is coloured.
QSGNode *RTintedImage::updatePaintedNode(QSGNode *old)
{
    QImage picture = image().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    if (picture.isNull() || width() <= 0.0 || height() <= 0.0) {
        delete old;
        return nullptr;
    }
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(picture.rect(), m_tint);
    painter.end();

    auto *node = old ? static_cast<QSGImageNode *>(old) : window()->createImageNode();
    node->setOwnsTexture(true);
    node->setTexture(window()->createTextureFromImage(picture));
    node->setFiltering(QSGTexture::Linear);
    node->setRect((width() - paintedWidth()) / 2, (height() - paintedHeight()) / 2, paintedWidth(), paintedHeight());
    return node;
}

} // namespace tamble::client
