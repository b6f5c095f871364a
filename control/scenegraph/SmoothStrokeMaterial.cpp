#include "scenegraph/SmoothStrokeMaterial.h"

#include "scenegraph/SmoothStrokeShader.h"

#include <functional>

namespace tamble::client {

SmoothStrokeMaterial::SmoothStrokeMaterial()
{
    setFlag(Blending);
    setFlag(NoBatching);
}

bool SmoothStrokeMaterial::setColor(const QColor &color)
{
    if (m_color == color)
        return false;
    m_color = color;
    m_dirty = true;
    return true;
}

bool SmoothStrokeMaterial::setReach(float reach)
{
    if (m_reach == reach)
        return false;
    m_reach = reach;
    m_dirty = true;
    return true;
}

QSGMaterialType *SmoothStrokeMaterial::type() const
{
    static QSGMaterialType sharedType;
    return &sharedType;
}

QSGMaterialShader *SmoothStrokeMaterial::createShader(QSGRendererInterface::RenderMode) const
{
    return new SmoothStrokeShader;
}

int SmoothStrokeMaterial::compare(const QSGMaterial *other) const
{
    if (this == other)
        return 0;
    return std::less<const QSGMaterial *>()(this, other) ? -1 : 1;
}

} // namespace tamble::client
