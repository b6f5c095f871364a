#include "fields/FieldParts.h"

#include "fields/FieldEdit.h"

#include <QtQml/QQmlEngine>

namespace tamble::client {

QObject *makeFieldPart(Part part, QQuickItem &field, FieldEdit *edit)
{
    QQmlEngine *engine = qmlEngine(&field);
    if (!engine)
        return nullptr;
    QVariantMap properties{{QStringLiteral("parent"), QVariant::fromValue(&field)},
                           {QStringLiteral("field"), QVariant::fromValue(&field)}};
    if (edit)
        properties.insert(QStringLiteral("edit"), QVariant::fromValue(edit));
    return PartComponents::of(engine).make(part, &field, properties);
}

} // namespace tamble::client
