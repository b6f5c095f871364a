#include "fields/ComboEntries.h"

#include <QtCore/QtMath>
#include <QtQml/QJSValue>
#include <QtQmlModels/private/qqmlchangeset_p.h>
#include <QtQmlModels/private/qqmlobjectmodel_p.h>
#include <QtQuickTemplates2/private/qquickcombobox_p.h>

#include <algorithm>

namespace tamble::client {

namespace {

/// Scripts hand over objects as values of their own.
QVariant withoutScript(const QVariant &value)
{
    return value.metaType() == QMetaType::fromType<QJSValue>() ? value.value<QJSValue>().toVariant() : value;
}

} // namespace

QVariant entryValue(const QQuickComboBox &box, int index)
{
    const QVariant value = box.valueAt(index);
    return value.isValid() || !box.valueRole().isEmpty() ? value : QVariant(box.textAt(index));
}

QVariant entryData(const QQuickComboBox &box, int index, const QString &role)
{
    QQmlInstanceModel *model = box.delegateModel();
    return model && !role.isEmpty() && index >= 0 && index < box.count() ? model->variantValue(index, role)
                                                                         : QVariant();
}

bool namesAnything(const QVariant &value)
{
    const QVariant plain = withoutScript(value);
    const bool isNumber = plain.typeId() == QMetaType::Double || plain.typeId() == QMetaType::Float;
    return !plain.isNull() && !(isNumber && qIsNaN(plain.toDouble()));
}

int entryWithValue(const QQuickComboBox &box, const QVariant &value, int likely)
{
    const QVariant wanted = withoutScript(value);
    const auto matches = [&](int index) { return withoutScript(entryValue(box, index)) == wanted; };
    const int count = box.count();
    if (likely >= 0 && likely < count && matches(likely))
        return likely;
    for (int i = 0; i < count; ++i) {
        if (matches(i))
            return i;
    }
    return -1;
}

int entryBeginningWith(const QQuickComboBox &box, const QString &beginning, int start)
{
    const int count = box.count();
    for (int i = 0; i < count; ++i) {
        const int index = (std::max(start, 0) + i) % count;
        if (box.textAt(index).startsWith(beginning, Qt::CaseInsensitive))
            return index;
    }
    return -1;
}

int entryAfter(const QQmlChangeSet &change, int index)
{
    int moveId = -1;
    int offset = 0;
    int place = index;
    // One after the other: each is numbered as those before it have left the list.
    for (const QQmlChangeSet::Change &removed : change.removes()) {
        if (place >= removed.end()) {
            place -= removed.count;
        } else if (place >= removed.start()) {
            if (!removed.isMove())
                return -1;
            moveId = removed.moveId;
            offset = place - removed.start() + removed.offset;
            place = -1;
        }
    }
    for (const QQmlChangeSet::Change &inserted : change.inserts()) {
        const bool isMeant = moveId >= 0 && inserted.moveId == moveId && offset >= inserted.offset &&
                             offset < inserted.offset + inserted.count;
        if (isMeant)
            place = inserted.start() + offset - inserted.offset;
        else if (place >= inserted.start())
            place += inserted.count;
    }
    return place;
}

} // namespace tamble::client
