#pragma once

#include <QtQuick/QSGMaterialShader>

#include <cstddef>

namespace tamble::client {

/// Writes the matrix, which begins the uniform block of every material here, and the opacity at its place in bytes, as
/// far as they have changed; returns whether they have.
bool writeMatrixAndOpacity(QSGMaterialShader::RenderState &state, std::size_t opacityOffset);

} // namespace tamble::client
