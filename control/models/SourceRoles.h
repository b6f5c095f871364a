#pragma once

#include <QtCore/QAbstractItemModel>
#include <QtCore/QSet>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <functional>

namespace tamble::client {

/// Finds roles by their names. A name that a model with rows does not have is reported once.
class SourceRoles
{
public:
    using Report = std::function<void(const QString &text)>;

    explicit SourceRoles(Report report);

    /// The display role for an unknown name.
    int find(const QAbstractItemModel *source, const QString &name);

private:
    Report m_report;
    QSet<QString> m_unknown;
};

/// Values of a row by the names of their roles.
QVariantMap roleValues(const QModelIndex &index);

} // namespace tamble::client
