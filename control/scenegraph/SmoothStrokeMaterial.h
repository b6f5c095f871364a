#pragma once

#include "base/ControlExport.h"

#include <QtGui/QColor>
#include <QtQuick/QSGMaterial>
#include <QtQuick/QSGMaterialShader>

namespace tamble::client {

/// One colour, smoothed at the edges of a stroke; see StrokeVertex.
///
/// Never merged with other strokes into one batch: merging would copy all of them when one changes.
class TAMBLE_CLIENT_CONTROL_EXPORT SmoothStrokeMaterial : public QSGMaterial
{
public:
    SmoothStrokeMaterial();

    const QColor &color() const { return m_color; }
    /// These tell whether the value differs; the node then has to be marked.
    bool setColor(const QColor &color);
    /// Reach of the stroke in device pixels, see StrokeWidth.
    float reach() const { return m_reach; }
    bool setReach(float reach);

    /// Whether something changed since the shader last wrote it; true for a new material.
    bool isDirty() const { return m_dirty; }
    void clearDirty() { m_dirty = false; }

    QSGMaterialType *type() const override;
    QSGMaterialShader *createShader(QSGRendererInterface::RenderMode renderMode) const override;
    int compare(const QSGMaterial *other) const override;

private:
    QColor m_color = Qt::transparent;
    float m_reach = 0.0f;
    bool m_dirty = true;
};

} // namespace tamble::client
