#include "controls/BoxShadowNode.h"

#include "scenegraph/UniformWriter.h"

#include <QtCore/QRectF>
#include <QtQuick/QSGMaterialShader>

#include <cstring>
#include <utility>

namespace tamble::client {

namespace {

// The uniform block of the shadow shaders as the GPU reads it (std140).
struct ShadowUniforms
{
    float matrix[16];
    float opacity;
    float spread;
    float darkness;
    float unused;
    float boxSize[2];
};
static_assert(offsetof(ShadowUniforms, opacity) == 64);
static_assert(offsetof(ShadowUniforms, boxSize) == 80);

class BoxShadowShader : public QSGMaterialShader
{
public:
    BoxShadowShader()
    {
        setShaderFileName(VertexStage, QStringLiteral(":/shaders/shadow.vert.qsb"));
        setShaderFileName(FragmentStage, QStringLiteral(":/shaders/shadow.frag.qsb"));
    }

    bool updateUniformData(RenderState &state, QSGMaterial *newMaterial, QSGMaterial *) override
    {
        writeMatrixAndOpacity(state, offsetof(ShadowUniforms, opacity));
        const BoxShadowValues values = static_cast<BoxShadowMaterial *>(newMaterial)->values;
        const float shape[] = {values.spread, values.darkness};
        const float size[] = {values.width, values.height};
        char *block = state.uniformData()->data();
        std::memcpy(block + offsetof(ShadowUniforms, spread), shape, sizeof shape);
        std::memcpy(block + offsetof(ShadowUniforms, boxSize), size, sizeof size);
        return true;
    }
};

} // namespace

BoxShadowMaterial::BoxShadowMaterial()
{
    setFlag(Blending);
    setFlag(NoBatching); // its shader has no variant for merged batches
}

QSGMaterialType *BoxShadowMaterial::type() const
{
    static QSGMaterialType sharedType;
    return &sharedType;
}

QSGMaterialShader *BoxShadowMaterial::createShader(QSGRendererInterface::RenderMode) const
{
    return new BoxShadowShader;
}

int BoxShadowMaterial::compare(const QSGMaterial *other) const
{
    const auto &theirs = static_cast<const BoxShadowMaterial *>(other)->values;
    return values == theirs ? 0 : values < theirs ? -1 : 1;
}

BoxShadowNode::BoxShadowNode()
    : m_geometry(QSGGeometry::defaultAttributes_TexturedPoint2D(), 4)
{
    setGeometry(&m_geometry);
    setMaterial(&m_material);
}

void BoxShadowNode::setShadow(QSizeF box, qreal spread, qreal darkness)
{
    const BoxShadowValues values{float(spread), float(darkness), float(box.width()), float(box.height())};
    if (std::exchange(m_material.values, values) == values)
        return;
    const QRectF reach = QRectF(QPointF(), box).adjusted(-spread, -spread, spread, spread);
    QSGGeometry::updateTexturedRectGeometry(&m_geometry, reach, QRectF(0.0, 0.0, 1.0, 1.0));
    markDirty(DirtyGeometry | DirtyMaterial);
}

} // namespace tamble::client
