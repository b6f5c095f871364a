#include "dialogs/DialogFields.h"

#include "fields/FieldEdit.h"

#include <QtCore/QList>
#include <QtCore/QPointer>

namespace tamble::client {

namespace {

void collectFields(const QQuickItem &item, QList<QPointer<FieldEdit>> &found)
{
    for (FieldEdit *edit : item.findChildren<FieldEdit *>(QString(), Qt::FindDirectChildrenOnly))
        found.append(edit);
    const QList<QQuickItem *> children = item.childItems();
    for (const QQuickItem *child : children)
        collectFields(*child, found);
}

// Guarded: what is entered may change the page.
QList<QPointer<FieldEdit>> fieldsBelow(const QQuickItem &body)
{
    QList<QPointer<FieldEdit>> found;
    collectFields(body, found);
    return found;
}

bool canBeTyped(const FieldEdit &field)
{
    return field.canEdit() && field.editor()->isVisible();
}

} // namespace

FieldEdit *firstField(const QQuickItem &body)
{
    for (const QPointer<FieldEdit> &field : fieldsBelow(body)) {
        if (canBeTyped(*field))
            return field;
    }
    return nullptr;
}

FieldEdit *enterFields(const QQuickItem &body)
{
    for (const QPointer<FieldEdit> &field : fieldsBelow(body)) {
        if (!field || !canBeTyped(*field))
            continue;
        if (!field->isAcceptable())
            return field;
        if (field->isEdited())
            field->enter();
    }
    return nullptr;
}

void cancelFields(const QQuickItem &body)
{
    for (const QPointer<FieldEdit> &field : fieldsBelow(body)) {
        if (field)
            field->cancel();
    }
}

} // namespace tamble::client
