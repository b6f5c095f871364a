#pragma once

#include "base/ControlExport.h"

#include <QtGui/QColor>
#include <QtQuick/QSGMaterial>

namespace tamble::client {

/// What a curve's filled area is drawn with; the colour is not multiplied by its alpha.
struct CustomMaterialFields
{
    float centerX = 0.0f;
    float centerY = 0.0f;
    float zoom = 0.0f;
    qint32 limit = 0;
    float red = 0.0f;
    float green = 0.0f;
    float blue = 0.0f;
    float alpha = 0.0f;

    bool operator==(const CustomMaterialFields &) const = default;
};

/// Blended flat colour that the vertices of a curve's area modulate: each texture coordinate carries the saturation of
/// its vertex as the product of its two components.
class TAMBLE_CLIENT_CONTROL_EXPORT CustomMaterial : public QSGMaterial
{
public:
    CustomMaterial();

    const CustomMaterialFields &fields() const { return m_fields; }
    /// Changed fields make the material dirty; the node has to be marked as well.
    void setFields(const CustomMaterialFields &fields);
    /// Sets the four colour fields and keeps the others.
    void setColor(const QColor &color);

    /// Whether fields changed since the shader last wrote them; true for a new material.
    bool isDirty() const { return m_dirty; }
    void clearDirty() { m_dirty = false; }

    QSGMaterialType *type() const override;
    QSGMaterialShader *createShader(QSGRendererInterface::RenderMode renderMode) const override;
    /// 0 for the same object only, so that the areas of two curves are never drawn in one batch.
    int compare(const QSGMaterial *other) const override;

private:
    CustomMaterialFields m_fields;
    bool m_dirty = true;
};

} // namespace tamble::client
