#pragma once

#include "base/ControlExport.h"

#include <QtCore/QSortFilterProxyModel>
#include <QtCore/QStringList>
#include <QtQml/QJSValue>
#include <QtQml/qqmlregistration.h>

namespace tamble::client {

/// Declared in part: `count` and what QSortFilterProxyModel does work, its own other properties have no effect yet.
///
/// Sorts and filters a model by role names, patterns and expressions. Texts compare without case by default.
class TAMBLE_CLIENT_CONTROL_EXPORT RSortFilterProxyModel : public QSortFilterProxyModel
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RSortFilterProxyModel)
    /// Role that rows are to be sorted by; empty for the display role.
    Q_PROPERTY(QString sortRoleName MEMBER m_sortRoleName NOTIFY sortRoleNameChanged)
    /// Direction of the sorting.
    Q_PROPERTY(Qt::SortOrder sortOrder MEMBER m_sortOrder NOTIFY sortOrderChanged)
    /// False keeps the order of the source.
    Q_PROPERTY(bool sortEnabled MEMBER m_sortEnabled NOTIFY sortEnabledChanged)
    /// Whether digits in texts count as numbers: "Input 2" before "Input 10".
    Q_PROPERTY(bool naturalSort MEMBER m_naturalSort NOTIFY naturalSortChanged)
    /// Roles that the pattern is looked for in; empty for the display role.
    Q_PROPERTY(QStringList filterRoleNames MEMBER m_filterRoleNames NOTIFY filterRoleNamesChanged)
    /// Pattern that a row must match; empty for all rows.
    Q_PROPERTY(QString filterPattern MEMBER m_filterPattern NOTIFY filterPatternChanged)
    /// How the pattern is read.
    Q_PROPERTY(Syntax filterSyntax MEMBER m_filterSyntax NOTIFY filterSyntaxChanged)
    /// Lets the rows through that do not match.
    Q_PROPERTY(bool filterInverted MEMBER m_filterInverted NOTIFY filterInvertedChanged)
    /// Function of an object with the row's roles, true for rows that pass; undefined for none.
    Q_PROPERTY(QJSValue filterExpression READ filterExpression WRITE setFilterExpression NOTIFY filterExpressionChanged)
    /// Function of two such objects, true when the first comes before the second; undefined for none.
    Q_PROPERTY(QJSValue sortExpression READ sortExpression WRITE setSortExpression NOTIFY sortExpressionChanged)
    /// False while the pattern cannot be read.
    Q_PROPERTY(bool filterValid READ filterValid NOTIFY filterValidChanged)
    /// Number of rows shown.
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Syntax : int {
        FixedString = 0,
        Wildcard = 1,
        RegularExpression = 2,
    };
    Q_ENUM(Syntax)

    explicit RSortFilterProxyModel(QObject *parent = nullptr);

    QJSValue filterExpression() const { return m_filterExpression; }
    void setFilterExpression(const QJSValue &expression);
    QJSValue sortExpression() const { return m_sortExpression; }
    void setSortExpression(const QJSValue &expression);
    bool filterValid() const { return m_filterValid; }
    int count() const { return rowCount(); }

Q_SIGNALS:
    void sortRoleNameChanged();
    void sortOrderChanged();
    void sortEnabledChanged();
    void naturalSortChanged();
    void filterRoleNamesChanged();
    void filterPatternChanged();
    void filterSyntaxChanged();
    void filterInvertedChanged();
    void filterExpressionChanged();
    void sortExpressionChanged();
    void filterValidChanged();
    void countChanged();

private:
    QString m_sortRoleName;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
    bool m_sortEnabled = true;
    bool m_naturalSort = true;
    QStringList m_filterRoleNames;
    QString m_filterPattern;
    Syntax m_filterSyntax = FixedString;
    bool m_filterInverted = false;
    QJSValue m_filterExpression;
    QJSValue m_sortExpression;
    bool m_filterValid = true;
};

} // namespace tamble::client
