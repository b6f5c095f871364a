#include "scenegraph/SmoothStrokeShader.h"

#include "scenegraph/SmoothStrokeMaterial.h"

#include <QtGui/QMatrix4x4>

#include <cstring>

namespace tamble::client {

SmoothStrokeShader::SmoothStrokeShader()
{
    setShaderFileName(VertexStage, QStringLiteral(":/shaders/stroke.vert.qsb"));
    setShaderFileName(FragmentStage, QStringLiteral(":/shaders/stroke.frag.qsb"));
}

bool SmoothStrokeShader::updateUniformData(RenderState &state, QSGMaterial *newMaterial, QSGMaterial *oldMaterial)
{
    char *block = state.uniformData()->data();
    bool written = false;
    if (state.isMatrixDirty()) {
        const QMatrix4x4 matrix = state.combinedMatrix();
        std::memcpy(block, matrix.constData(), sizeof(StrokeUniformBlock::matrix));
        written = true;
    }
    if (state.isOpacityDirty()) {
        const float opacity = state.opacity();
        std::memcpy(block + offsetof(StrokeUniformBlock, opacity), &opacity, sizeof opacity);
        written = true;
    }
    auto *material = static_cast<SmoothStrokeMaterial *>(newMaterial);
    if (newMaterial != oldMaterial || material->isDirty()) {
        writeFields(block, *material);
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
