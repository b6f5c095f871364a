#include "models/RSortFilterProxyModel.h"

namespace tamble::client {

RSortFilterProxyModel::RSortFilterProxyModel(QObject *parent)
    : QSortFilterProxyModel(parent)
{
    setFilterCaseSensitivity(Qt::CaseInsensitive);
    setSortCaseSensitivity(Qt::CaseInsensitive);
    for (const auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(this, signal, this, &RSortFilterProxyModel::countChanged);
    connect(this, &QAbstractItemModel::modelReset, this, &RSortFilterProxyModel::countChanged);
    connect(this, &QAbstractItemModel::layoutChanged, this, &RSortFilterProxyModel::countChanged);
}

void RSortFilterProxyModel::setFilterExpression(const QJSValue &expression)
{
    if (m_filterExpression.strictlyEquals(expression))
        return;
    m_filterExpression = expression;
    Q_EMIT filterExpressionChanged();
}

void RSortFilterProxyModel::setSortExpression(const QJSValue &expression)
{
    if (m_sortExpression.strictlyEquals(expression))
        return;
    m_sortExpression = expression;
    Q_EMIT sortExpressionChanged();
}

} // namespace tamble::client
