#include "plot/CustomMaterial.h"

#include "plot/CustomShader.h"

#include <functional>

namespace tamble::client {

CustomMaterial::CustomMaterial()
{
    setFlag(Blending);
    setFlag(NoBatching); // its shader has no variant for merged batches
}

void CustomMaterial::setFields(const CustomMaterialFields &fields)
{
    if (m_fields == fields)
        return;
    m_fields = fields;
    m_dirty = true;
}

void CustomMaterial::setColor(const QColor &color)
{
    CustomMaterialFields fields = m_fields;
    fields.red = float(color.redF());
    fields.green = float(color.greenF());
    fields.blue = float(color.blueF());
    fields.alpha = float(color.alphaF());
    setFields(fields);
}

QSGMaterialType *CustomMaterial::type() const
{
    static QSGMaterialType sharedType;
    return &sharedType;
}

QSGMaterialShader *CustomMaterial::createShader(QSGRendererInterface::RenderMode) const
{
    return new CustomShader;
}

int CustomMaterial::compare(const QSGMaterial *other) const
{
    if (this == other)
        return 0;
    return std::less<const QSGMaterial *>()(this, other) ? -1 : 1;
}

} // namespace tamble::client
