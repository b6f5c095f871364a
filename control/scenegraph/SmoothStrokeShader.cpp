#include "scenegraph/SmoothStrokeShader.h"

#include "scenegraph/SmoothStrokeMaterial.h"
#include "scenegraph/UniformWriter.h"

#include <cstring>

namespace tamble::client {

SmoothStrokeShader::SmoothStrokeShader()
{
    setShaderFileName(VertexStage, QStringLiteral(":/shaders/stroke.vert.qsb"));
    setShaderFileName(FragmentStage, QStringLiteral(":/shaders/stroke.frag.qsb"));
}

bool SmoothStrokeShader::updateUniformData(RenderState &state, QSGMaterial *newMaterial, QSGMaterial *oldMaterial)
{
    bool written = writeMatrixAndOpacity(state, offsetof(StrokeUniformBlock, opacity));
    auto *material = static_cast<SmoothStrokeMaterial *>(newMaterial);
    if (newMaterial != oldMaterial || material->isDirty()) {
        writeFields(state.uniformData()->data(), *material);
        material->clearDirty();
        written = true;
    }
    return written;
}

void SmoothStrokeShader::writeFields(char *uniformBlock, const SmoothStrokeMaterial &material)
{
    const QColor color = material.color();
    const float alpha = float(color.alphaF());
    StrokeUniformBlock block;
    std::memcpy(&block, uniformBlock, sizeof block);
    block.color[0] = float(color.redF()) * alpha;
    block.color[1] = float(color.greenF()) * alpha;
    block.color[2] = float(color.blueF()) * alpha;
    block.color[3] = alpha;
    block.reach = material.reach();
    std::memcpy(uniformBlock, &block, sizeof block);
}

} // namespace tamble::client
