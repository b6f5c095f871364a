#include "scenegraph/UniformWriter.h"

#include <QtGui/QMatrix4x4>

#include <cstring>

namespace tamble::client {

bool writeMatrixAndOpacity(QSGMaterialShader::RenderState &state, std::size_t opacityOffset)
{
    char *block = state.uniformData()->data();
    if (state.isMatrixDirty()) {
        const QMatrix4x4 matrix = state.combinedMatrix();
        std::memcpy(block, matrix.constData(), 16 * sizeof(float));
    }
    if (state.isOpacityDirty()) {
        const float opacity = state.opacity();
        std::memcpy(block + opacityOffset, &opacity, sizeof opacity);
    }
    return state.isMatrixDirty() || state.isOpacityDirty();
}

} // namespace tamble::client
