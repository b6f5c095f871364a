#include "fields/FieldSpeech.h"

#include "fields/FieldEdit.h"

#include <QtQuick/private/qquickaccessibleattached_p.h>

namespace tamble::client {

QString FieldSpeech::spokenDescription(const QString &given) const
{
    const QString hint = spokenHint();
    QString description = given == hint ? m_givenDescription : given;
    // The hint of a mixed field says just that.
    if (description.isEmpty() && spokenName() != hint && !(m_edit && !m_edit->isConsistent()))
        description = hint;
    return m_edit ? m_edit->description(description) : description;
}

void FieldSpeech::keepDescription(QObject &field)
{
    const auto *attached = QQuickAccessibleAttached::attachedProperties(&field);
    if (!attached)
        return;
    const auto keep = [this, attached] {
        if (attached->description() != spokenHint())
            m_givenDescription = attached->description();
    };
    keep();
    QObject::connect(attached, &QQuickAccessibleAttached::descriptionChanged, &field, keep);
}

} // namespace tamble::client
