#include "models/SourceRoles.h"

#include <utility>

namespace tamble::client {

SourceRoles::SourceRoles(Report report)
    : m_report(std::move(report))
{}

int SourceRoles::find(const QAbstractItemModel *source, const QString &name)
{
    const int role = source ? source->roleNames().key(name.toUtf8(), -1) : -1;
    if (role >= 0)
        return role;
    // A list has no roles before its first row.
    if (source && source->rowCount() > 0 && !m_unknown.contains(name)) {
        m_unknown.insert(name);
        m_report(QStringLiteral("the source has no role \"%1\"").arg(name));
    }
    return Qt::DisplayRole;
}

QVariantMap roleValues(const QModelIndex &index)
{
    QVariantMap values;
    if (!index.isValid())
        return values;
    const QHash<int, QByteArray> names = index.model()->roleNames();
    for (auto name = names.begin(); name != names.end(); ++name)
        values.insert(QString::fromUtf8(*name), index.data(name.key()));
    return values;
}

} // namespace tamble::client
