#include "controls/TintMaterial.h"

#include "scenegraph/UniformWriter.h"

#include <QtQuick/QSGMaterialShader>
#include <QtQuick/QSGTexture>

#include <cstring>
#include <utility>

namespace tamble::client {

namespace {

// The uniform block of the tint shaders as the GPU reads it (std140).
struct UniformBlock
{
    float matrix[16];
    float tint[4];
    float opacity;
};
static_assert(offsetof(UniformBlock, tint) == 64);
static_assert(offsetof(UniformBlock, opacity) == 80);

class TintShader : public QSGMaterialShader
{
public:
    TintShader()
    {
        setShaderFileName(VertexStage, QStringLiteral(":/shaders/tint.vert.qsb"));
        setShaderFileName(FragmentStage, QStringLiteral(":/shaders/tint.frag.qsb"));
    }

    bool updateUniformData(RenderState &state, QSGMaterial *newMaterial, QSGMaterial *) override
    {
        writeMatrixAndOpacity(state, offsetof(UniformBlock, opacity));
        const QVector4D color = static_cast<TintMaterial *>(newMaterial)->premultipliedColor();
        const float tint[] = {color.x(), color.y(), color.z(), color.w()};
        std::memcpy(state.uniformData()->data() + offsetof(UniformBlock, tint), tint, sizeof tint);
        return true;
    }

    void updateSampledImage(RenderState &state, int, QSGTexture **texture, QSGMaterial *newMaterial,
                            QSGMaterial *) override
    {
        QSGTexture *picture = static_cast<TintMaterial *>(newMaterial)->texture();
        picture->setFiltering(QSGTexture::Linear);
        picture->commitTextureOperations(state.rhi(), state.resourceUpdateBatch());
        *texture = picture;
    }
};

} // namespace

TintMaterial::TintMaterial()
{
    setFlag(Blending);
}

bool TintMaterial::setTexture(QSGTexture *texture)
{
    return std::exchange(m_texture, texture) != texture;
}

bool TintMaterial::setColor(const QColor &color)
{
    const float alpha = float(color.alphaF());
    const QVector4D premultiplied(float(color.redF()) * alpha, float(color.greenF()) * alpha,
                                  float(color.blueF()) * alpha, alpha);
    return std::exchange(m_color, premultiplied) != premultiplied;
}

QSGMaterialType *TintMaterial::type() const
{
    static QSGMaterialType sharedType;
    return &sharedType;
}

QSGMaterialShader *TintMaterial::createShader(QSGRendererInterface::RenderMode) const
{
    return new TintShader;
}

int TintMaterial::compare(const QSGMaterial *other) const
{
    const auto *material = static_cast<const TintMaterial *>(other);
    const qint64 key = m_texture->comparisonKey();
    const qint64 otherKey = material->m_texture->comparisonKey();
    if (key != otherKey)
        return key < otherKey ? -1 : 1;
    for (int i = 0; i < 4; ++i) {
        if (m_color[i] != material->m_color[i])
            return m_color[i] < material->m_color[i] ? -1 : 1;
    }
    return 0;
}

} // namespace tamble::client
