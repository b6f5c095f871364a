#include "lists/ListRows.h"

#include <QtQml/QJSValue>
#include <QtQmlModels/private/qqmlchangeset_p.h>
#include <QtQmlModels/private/qqmldelegatemodel_p.h>
// Headers of Qt use a keyword that the module does without.
#define emit Q_EMIT
#include <QtQuick/private/qquickitemview_p_p.h>
#undef emit

#include <algorithm>

namespace tamble::client {

namespace {

std::vector<RowChange> rowChanges(const QList<QQmlChangeSet::Change> &changes)
{
    std::vector<RowChange> rows;
    for (const QQmlChangeSet::Change &change : changes)
        rows.push_back({change.index, change.count, change.moveId, change.offset});
    return rows;
}

/// A member of a row that is an object or a map; anything else is its own text.
QVariant memberOf(const QVariant &row, const QString &name)
{
    if (row.metaType() == QMetaType::fromType<QJSValue>())
        return memberOf(row.value<QJSValue>().toVariant(), name);
    if (const auto *object = row.value<QObject *>())
        return object->property(name.toUtf8().constData());
    return row.typeId() == QMetaType::QVariantMap ? row.toMap().value(name) : row;
}

} // namespace

// Qt does not export what the sanitizer would compare types with.
[[gnu::no_sanitize("vptr")]] QQmlInstanceModel *instanceModelOf(QQuickItemView &view)
{
    return static_cast<QQuickItemViewPrivate *>(QQuickItemPrivate::get(&view))->model;
}

void ListRows::setModel(QQmlInstanceModel *model)
{
    if (m_model == model)
        return;
    if (m_model)
        m_model->disconnect(this);
    m_model = model;
    watchItemModel();
    if (model) {
        connect(model, &QQmlInstanceModel::modelUpdated, this, &ListRows::onUpdated);
        connect(model, &QQmlInstanceModel::itemReused, this, &ListRows::reused);
    }
}

// Connected after the list's own model, so what that makes of a sorting comes between the two signals.
void ListRows::watchItemModel()
{
    const QAbstractItemModel *itemModel = m_model ? m_model->abstractItemModel() : nullptr;
    if (m_itemModel == itemModel)
        return;
    if (m_itemModel)
        m_itemModel->disconnect(this);
    m_itemModel = itemModel;
    m_isSorting = false;
    if (!itemModel)
        return;
    connect(itemModel, &QAbstractItemModel::dataChanged, this, &ListRows::textsChanged);
    connect(itemModel, &QAbstractItemModel::layoutAboutToBeChanged, this, [this] {
        m_isSorting = true;
        Q_EMIT aboutToBeSorted();
    });
    connect(itemModel, &QAbstractItemModel::layoutChanged, this, [this] {
        m_isSorting = false;
        Q_EMIT sorted();
    });
}

void ListRows::onUpdated(const QQmlChangeSet &change, bool reset)
{
    watchItemModel();
    if (m_isSorting)
        return;
    if (reset)
        Q_EMIT replaced();
    else if (!change.removes().isEmpty() || !change.inserts().isEmpty())
        Q_EMIT changed(rowChanges(change.removes()), rowChanges(change.inserts()));
    else
        Q_EMIT textsChanged();
}

QString ListRows::text(int row, const QString &role) const
{
    if (row < 0 || row >= count())
        return {};
    const QVariant value = m_model->variantValue(row, role);
    return (value.isValid() ? value : memberOf(m_model->variantValue(row, QStringLiteral("modelData")), role))
        .toString();
}

int ListRows::rowBeginningWith(const QString &beginning, const QString &role, int start) const
{
    const int count = this->count();
    for (int i = 0; i < count; ++i) {
        const int row = (std::max(start, 0) + i) % count;
        if (text(row, role).startsWith(beginning, Qt::CaseInsensitive))
            return row;
    }
    return -1;
}

QPersistentModelIndex ListRows::modelIndex(int row) const
{
    const auto *model = qobject_cast<QQmlDelegateModel *>(m_model);
    return model ? QPersistentModelIndex(model->modelIndex(row).toModelIndex()) : QPersistentModelIndex();
}

} // namespace tamble::client
