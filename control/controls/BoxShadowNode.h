#pragma once

#include <QtCore/QSizeF>
#include <QtQuick/QSGGeometry>
#include <QtQuick/QSGGeometryNode>
#include <QtQuick/QSGMaterial>

namespace tamble::client {

/// What the shader of a shadow computes with, in pixels; darkness from 0 to 1.
struct BoxShadowValues
{
    float spread = 0.0F;
    float darkness = 0.0F;
    float width = 0.0F;
    float height = 0.0F;

    auto operator<=>(const BoxShadowValues &) const = default;
};

class BoxShadowMaterial : public QSGMaterial
{
public:
    BoxShadowMaterial();

    BoxShadowValues values;

    QSGMaterialType *type() const override;
    QSGMaterialShader *createShader(QSGRendererInterface::RenderMode renderMode) const override;
    int compare(const QSGMaterial *other) const override;
};

/// The shadow of a box whose top left corner is the origin. It is drawn below the box as well.
class BoxShadowNode : public QSGGeometryNode
{
public:
    BoxShadowNode();

    void setShadow(QSizeF box, qreal spread, qreal darkness);

private:
    QSGGeometry m_geometry;
    BoxShadowMaterial m_material;
};

} // namespace tamble::client
