#pragma once

#include "base/ControlExport.h"

#include <QtQuick/QSGMaterialShader>

#include <cstddef>

namespace tamble::client {

struct CustomMaterialFields;

/// Uniform block of the curve shaders as the GPU reads it (std140).
struct CurveUniformBlock
{
    float matrix[16];
    float opacity;
    float zoom;
    float center[2];
    qint32 limit;
    float red;
    float green;
    float blue;
    float alpha;
};
static_assert(offsetof(CurveUniformBlock, opacity) == 64);
static_assert(offsetof(CurveUniformBlock, zoom) == 68);
static_assert(offsetof(CurveUniformBlock, center) == 72);
static_assert(offsetof(CurveUniformBlock, limit) == 80);
static_assert(offsetof(CurveUniformBlock, red) == 84);
static_assert(sizeof(CurveUniformBlock) == 100);

/// Shader of `CustomMaterial`: its vertex and fragment stages come from the resources under ":/shaders/".
class TAMBLE_CLIENT_CONTROL_EXPORT CustomShader : public QSGMaterialShader
{
public:
    CustomShader();

    /// Writes what differs from the previous render pass; returns whether it wrote.
    bool updateUniformData(RenderState &state, QSGMaterial *newMaterial, QSGMaterial *oldMaterial) override;

    /// Writes a material's fields into a uniform block of at least 100 bytes and leaves matrix and opacity alone.
    static void writeFields(char *uniformBlock, const CustomMaterialFields &fields);
};

} // namespace tamble::client
