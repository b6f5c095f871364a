#pragma once

#include <QtGui/QColor>
#include <QtGui/QVector4D>
#include <QtQuick/QSGMaterial>

class QSGTexture;

namespace tamble::client {

/// One colour in the shape of a picture: the picture's own colours do not count, only its alpha.
///
/// Pictures of one colour that share a texture, as small ones share the scene graph's atlas, are drawn together.
class TintMaterial : public QSGMaterial
{
public:
    TintMaterial();

    /// Each tells whether it changed anything; the node has to be marked then.
    bool setTexture(QSGTexture *texture);
    bool setColor(const QColor &color);

    QSGTexture *texture() const { return m_texture; }
    /// Red, green and blue multiplied by alpha.
    const QVector4D &premultipliedColor() const { return m_color; }

    QSGMaterialType *type() const override;
    QSGMaterialShader *createShader(QSGRendererInterface::RenderMode renderMode) const override;
    int compare(const QSGMaterial *other) const override;

private:
    QSGTexture *m_texture = nullptr; // the scene graph's
    QVector4D m_color;
};

} // namespace tamble::client
