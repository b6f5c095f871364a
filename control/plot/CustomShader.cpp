#include "plot/CustomShader.h"

#include "plot/CustomMaterial.h"
#include "scenegraph/UniformWriter.h"

#include <cstring>

namespace tamble::client {

CustomShader::CustomShader()
{
    setShaderFileName(VertexStage, QStringLiteral(":/shaders/curve.vert.qsb"));
    setShaderFileName(FragmentStage, QStringLiteral(":/shaders/curve.frag.qsb"));
}

bool CustomShader::updateUniformData(RenderState &state, QSGMaterial *newMaterial, QSGMaterial *oldMaterial)
{
    bool written = writeMatrixAndOpacity(state, offsetof(CurveUniformBlock, opacity));
    auto *material = static_cast<CustomMaterial *>(newMaterial);
    if (newMaterial != oldMaterial || material->isDirty()) {
        writeFields(state.uniformData()->data(), material->fields());
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
