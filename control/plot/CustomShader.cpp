#include "plot/CustomShader.h"

#include "plot/CustomMaterial.h"

#include <QtGui/QMatrix4x4>

#include <cstring>

namespace tamble::client {

CustomShader::CustomShader()
{
    setShaderFileName(VertexStage, QStringLiteral(":/shaders/curve.vert.qsb"));
    setShaderFileName(FragmentStage, QStringLiteral(":/shaders/curve.frag.qsb"));
}

bool CustomShader::updateUniformData(RenderState &state, QSGMaterial *newMaterial, QSGMaterial *oldMaterial)
{
    char *block = state.uniformData()->data();
    bool written = false;
    if (state.isMatrixDirty()) {
        const QMatrix4x4 matrix = state.combinedMatrix();
        std::memcpy(block, matrix.constData(), sizeof(CurveUniformBlock::matrix));
        written = true;
    }
    if (state.isOpacityDirty()) {
        const float opacity = state.opacity();
        std::memcpy(block + offsetof(CurveUniformBlock, opacity), &opacity, sizeof opacity);
        written = true;
    }
    auto *material = static_cast<CustomMaterial *>(newMaterial);
    if (newMaterial != oldMaterial || material->isDirty()) {
        writeFields(block, material->fields());
        material->clearDirty();
        written = true;
    }
    return written;
}

void CustomShader::writeFields(char *uniformBlock, const CustomMaterialFields &fields)
{
    CurveUniformBlock block;
    std::memcpy(&block, uniformBlock, sizeof block);
    block.zoom = fields.zoom;
    block.center[0] = fields.centerX;
    block.center[1] = fields.centerY;
    block.limit = fields.limit;
    block.red = fields.red;
    block.green = fields.green;
    block.blue = fields.blue;
    block.alpha = fields.alpha;
    std::memcpy(uniformBlock, &block, sizeof block);
}

} // namespace tamble::client
