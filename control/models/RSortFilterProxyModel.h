#pragma once

#include "base/ControlExport.h"

#include <QtCore/QSortFilterProxyModel>
#include <QtCore/QStringList>
#include <QtCore/QVariant>
#include <QtQml/QJSValue>
#include <QtQml/QQmlParserStatus>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace tamble::client {

/// Sorts and filters the rows of a list model by role names, patterns and functions. Texts compare without case by
/// default, and rows that compare equal keep the order of the source.
///
/// A role name that the source does not have stands for the display role. Names are looked up when the source is set or
/// reset and when it gets its first rows: a `ListModel` has no roles before.
///
/// Functions are asked when the page is complete, and again about rows whose data change. What else they read is not
/// watched: call `invalidate()` when it changes. One that throws lets the row pass.
class TAMBLE_CLIENT_CONTROL_EXPORT RSortFilterProxyModel : public QSortFilterProxyModel, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_NAMED_ELEMENT(RSortFilterProxyModel)
    /// Role that rows are to be sorted by; empty for the display role.
    Q_PROPERTY(QString sortRoleName MEMBER m_sortRoleName NOTIFY sortRoleNameChanged)
    /// Direction of the sorting; descending without a role to sort by is the reverse of the source.
    Q_PROPERTY(int sortOrder MEMBER m_sortOrder NOTIFY sortOrderChanged)
    /// False keeps the order of the source.
    Q_PROPERTY(bool sortEnabled MEMBER m_sortEnabled NOTIFY sortEnabledChanged)
    /// Whether digits in texts count as numbers, "Input 2" before "Input 10". Values that are numbers always do.
    Q_PROPERTY(bool naturalSort MEMBER m_naturalSort NOTIFY naturalSortChanged)
    /// Roles that the pattern is looked for in, of which any may match; empty for the display role.
    Q_PROPERTY(QStringList filterRoleNames MEMBER m_filterRoleNames NOTIFY filterRoleNamesChanged)
    /// Pattern that a part of a row's text must match; empty for all rows, also of an inverted filter.
    Q_PROPERTY(QString filterPattern MEMBER m_filterPattern NOTIFY filterPatternChanged)
    /// How the pattern is read: as it stands, with `*`, `?` and sets in brackets, or as a regular expression.
    Q_PROPERTY(Syntax filterSyntax MEMBER m_filterSyntax NOTIFY filterSyntaxChanged)
    /// Lets the rows through that do not match.
    Q_PROPERTY(bool filterInverted MEMBER m_filterInverted NOTIFY filterInvertedChanged)
    /// Function of an object with the row's roles, true for rows that pass if they match the pattern, too; undefined
    /// for none.
    Q_PROPERTY(QJSValue filterExpression READ filterExpression WRITE setFilterExpression NOTIFY filterExpressionChanged)
    /// Function of two such objects, true when the first comes before the second; it wins over the role. Undefined for
    /// none.
    Q_PROPERTY(QJSValue sortExpression READ sortExpression WRITE setSortExpression NOTIFY sortExpressionChanged)
    /// False while the pattern is ill-formed; the last good one stays in force.
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
    ~RSortFilterProxyModel() override;

    QJSValue filterExpression() const;
    void setFilterExpression(const QJSValue &expression);
    QJSValue sortExpression() const;
    void setSortExpression(const QJSValue &expression);
    bool filterValid() const { return m_filterValid; }
    int count() const { return rowCount(); }

    /// Object with the values of the roles of a row shown, undefined outside.
    Q_INVOKABLE QVariant get(int row) const;
    /// Row of the source that is shown in a row, -1 outside.
    Q_INVOKABLE int sourceRow(int row) const;
    /// Row in which a row of the source is shown, -1 while it is hidden.
    Q_INVOKABLE int proxyRow(int sourceRow) const;
    /// First row shown whose role has the value, -1 for none.
    Q_INVOKABLE int indexOf(const QString &roleName, const QVariant &value) const;
    /// Looks up the roles, asks the functions about all rows, filters and sorts anew.
    Q_INVOKABLE void invalidate();

    void setSourceModel(QAbstractItemModel *source) override;
    void classBegin() override;
    void componentComplete() override;

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

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;

private:
    struct Parts;

    void exchangeSource(QAbstractItemModel *source);
    void forget(const QAbstractItemModel *source);
    void lookUpRoles(const QAbstractItemModel *source);

    void sortByOrder();
    void sortAnew();
    void readPattern();
    void filterAnew();
    void settle();
    void askExpressions(bool isLastTime);
    void tellCount();
    void tellCountLater();

    const std::unique_ptr<Parts> m_parts;
    QString m_sortRoleName;
    int m_sortOrder = Qt::AscendingOrder; // whatever number a page writes; any but the descending order is this
    bool m_sortEnabled = true;
    bool m_naturalSort = true;
    QStringList m_filterRoleNames;
    QString m_filterPattern;
    Syntax m_filterSyntax = FixedString;
    bool m_filterInverted = false;
    bool m_filterValid = true;
    int m_count = 0;
};

} // namespace tamble::client
