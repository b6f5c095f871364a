#pragma once

#include "lists/RowRanges.h"

#include <QtCore/QAbstractItemModel>
#include <QtCore/QObject>
#include <QtCore/QPersistentModelIndex>
#include <QtCore/QPointer>
#include <QtCore/QString>
#include <QtQmlModels/private/qqmlobjectmodel_p.h>

class QQmlChangeSet;
class QQuickItemView;

namespace tamble::client {

/// The model that a view has made of the page's, or the page's own; null for none.
QQmlInstanceModel *instanceModelOf(QQuickItemView &view);

/// The rows of whatever a page gives a list as its model: their texts, and what becomes of them when it changes.
class ListRows : public QObject
{
    Q_OBJECT

public:
    void setModel(QQmlInstanceModel *model);

    int count() const { return m_model ? m_model->count() : 0; }
    /// Text of a row under `role`. Rows that have no roles are texts themselves.
    QString text(int row, const QString &role) const;
    /// The first row from `start` on, going on at the beginning, whose text begins so in either case; -1 for none.
    int rowBeginningWith(const QString &beginning, const QString &role, int start) const;
    /// A row of an item model, to be found again after that was sorted; not valid for other models.
    QPersistentModelIndex modelIndex(int row) const;

Q_SIGNALS:
    /// Rows have left, come or moved.
    void changed(const std::vector<RowChange> &leaving, const std::vector<RowChange> &coming);
    /// All rows are others.
    void replaced();
    /// The model is about to sort its rows (`aboutToBeSorted`), and has (`sorted`).
    void aboutToBeSorted();
    void sorted();
    /// Rows may have other texts.
    void textsChanged();
    /// An item shows another row than before.
    void reused(int row, QObject *item);

private:
    void watchItemModel();
    void onUpdated(const QQmlChangeSet &change, bool reset);

    QPointer<QQmlInstanceModel> m_model;
    QPointer<const QAbstractItemModel> m_itemModel;
    bool m_isSorting = false;
};

} // namespace tamble::client
