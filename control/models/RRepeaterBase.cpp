#include "models/RRepeaterBase.h"

#include <QtCore/QAbstractItemModel>

namespace tamble::client {

RRepeaterBase::RRepeaterBase(QQuickItem *parent)
    : QQuickRepeater(parent)
{
    connect(this, &QQuickRepeater::modelChanged, this, &RRepeaterBase::followModel);
    connect(this, &QQuickRepeater::itemAdded, this, &RRepeaterBase::collect);
    connect(this, &QQuickRepeater::itemRemoved, this, [this](int, QQuickItem *item) { forget(item); });
}

RRepeaterBase::~RRepeaterBase()
{
    disconnect(this, nullptr, this, nullptr);
    if (m_model)
        m_model->disconnect(this);
}

QQmlListProperty<QObject> RRepeaterBase::items()
{
    const auto count = [](QQmlListProperty<QObject> *property) {
        return static_cast<RRepeaterBase *>(property->object)->m_items.size();
    };
    const auto at = [](QQmlListProperty<QObject> *property, qsizetype index) {
        return static_cast<RRepeaterBase *>(property->object)->m_items.value(index);
    };
    return {this, nullptr, count, at};
}

// The base tells of what comes and goes, but not of moves. It is connected to the model before this.
void RRepeaterBase::followModel()
{
    if (m_model)
        m_model->disconnect(this);
    m_model = model().value<QObject *>();
    if (const auto *rows = qobject_cast<QAbstractItemModel *>(m_model.get())) {
        connect(rows, &QAbstractItemModel::rowsMoved, this, &RRepeaterBase::collect);
        connect(rows, &QAbstractItemModel::layoutChanged, this, &RRepeaterBase::collect);
    } else if (m_model && m_model->inherits("QQmlInstanceModel")) {
        // By name, as the class has no public header.
        connect(m_model, SIGNAL(modelUpdated(QQmlChangeSet, bool)), this, SLOT(collect()));
    }
    collect();
}

void RRepeaterBase::collect()
{
    QList<QObject *> items;
    for (int i = 0; i < count(); ++i) {
        if (QQuickItem *item = itemAt(i))
            items.append(item);
    }
    // Empty lists have nothing that could be compared.
    if (items.isEmpty() ? m_items.isEmpty() : m_items == items)
        return;
    m_items = items;
    Q_EMIT itemsChanged();
}

// Apart, since the base still has the item when all of them go.
void RRepeaterBase::forget(QObject *item)
{
    if (m_items.removeAll(item) > 0)
        Q_EMIT itemsChanged();
}

} // namespace tamble::client
