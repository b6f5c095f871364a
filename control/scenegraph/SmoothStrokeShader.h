#pragma once

#include "base/ControlExport.h"

#include <QtQuick/QSGMaterialShader>

#include <cstddef>

namespace tamble::client {

class SmoothStrokeMaterial;

/// Uniform block of the stroke shaders as the GPU reads it (std140).
struct StrokeUniformBlock
{
    float matrix[16];
    float color[4]; ///< multiplied by its alpha
    float opacity;
    float reach;
};
static_assert(offsetof(StrokeUniformBlock, color) == 64);
static_assert(offsetof(StrokeUniformBlock, opacity) == 80);
static_assert(offsetof(StrokeUniformBlock, reach) == 84);
static_assert(sizeof(StrokeUniformBlock) == 88);

/// Shader of SmoothStrokeMaterial: its stages come from the resources under ":/shaders/".
class TAMBLE_CLIENT_CONTROL_EXPORT SmoothStrokeShader : public QSGMaterialShader
{
public:
    SmoothStrokeShader();

    /// Writes what differs from the previous render pass; returns whether it wrote.
    bool updateUniformData(RenderState &state, QSGMaterial *newMaterial, QSGMaterial *oldMaterial) override;

    /// Writes colour and reach into a uniform block of at least 88 bytes and leaves matrix and opacity alone.
    static void writeFields(char *uniformBlock, const SmoothStrokeMaterial &material);
};

} // namespace tamble::client
