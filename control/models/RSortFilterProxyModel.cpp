#include "models/RSortFilterProxyModel.h"

#include "base/ControlLog.h"
#include "models/SortFilterParts.h"

#include <QtQml/QJSEngine>

#include <algorithm>
#include <utility>

namespace tamble::client {

namespace {

// Functions that change what they are asked about are asked again so often.
constexpr int MaximumRounds = 16;

RowMatcher::Syntax syntaxOf(RSortFilterProxyModel::Syntax syntax)
{
    switch (syntax) {
    case RSortFilterProxyModel::Wildcard:
        return RowMatcher::Syntax::Wildcard;
    case RSortFilterProxyModel::RegularExpression:
        return RowMatcher::Syntax::Expression;
    case RSortFilterProxyModel::FixedString:
        break;
    }
    return RowMatcher::Syntax::Fixed;
}

} // namespace

RSortFilterProxyModel::RSortFilterProxyModel(QObject *parent)
    : QSortFilterProxyModel(parent)
    , m_parts(std::make_unique<Parts>([this](const QString &text) { warnOfPage(this, text); }))
{
    using Model = RSortFilterProxyModel;
    setFilterCaseSensitivity(Qt::CaseInsensitive);
    setSortCaseSensitivity(Qt::CaseInsensitive);
    for (const auto signal : {&Model::sortOrderChanged, &Model::sortEnabledChanged})
        connect(this, signal, this, &Model::sortByOrder);
    for (const auto signal : {&Model::sortRoleNameChanged, &Model::naturalSortChanged})
        connect(this, signal, this, &Model::sortAnew);
    connect(this, &Model::sortCaseSensitivityChanged, this, &Model::sortAnew);
    connect(this, &Model::sortLocaleAwareChanged, this, &Model::sortAnew);
    connect(this, &Model::sortRoleChanged, this, &Model::sortAnew);
    for (const auto signal : {&Model::filterPatternChanged, &Model::filterSyntaxChanged})
        connect(this, signal, this, &Model::readPattern);
    for (const auto signal : {&Model::filterRoleNamesChanged, &Model::filterInvertedChanged})
        connect(this, signal, this, &Model::filterAnew);
    connect(this, &Model::filterCaseSensitivityChanged, this, &Model::filterAnew);
    connect(this, &Model::filterRoleChanged, this, &Model::filterAnew);

    // What the inherited properties and functions do to the rows; all else tells the count when it is through.
    for (const auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(this, signal, this, &Model::tellCountLater);
    lookUpRoles(nullptr);
    sortByOrder();
}

RSortFilterProxyModel::~RSortFilterProxyModel() = default;

QJSValue RSortFilterProxyModel::filterExpression() const
{
    return m_parts->expressions.filter();
}

void RSortFilterProxyModel::setFilterExpression(const QJSValue &expression)
{
    if (filterExpression().strictlyEquals(expression))
        return;
    m_parts->expressions.setFilter(expression);
    Q_EMIT filterExpressionChanged();
    m_parts->mustFilter = true;
    settle();
}

QJSValue RSortFilterProxyModel::sortExpression() const
{
    return m_parts->expressions.sort();
}

void RSortFilterProxyModel::setSortExpression(const QJSValue &expression)
{
    if (sortExpression().strictlyEquals(expression))
        return;
    m_parts->expressions.setSort(expression);
    Q_EMIT sortExpressionChanged();
    m_parts->mustFilter = m_parts->mustSort = true;
    settle();
}

QVariant RSortFilterProxyModel::get(int row) const
{
    const QModelIndex source = mapToSource(index(row, 0));
    return source.isValid() ? QVariant(roleValues(source)) : QVariant();
}

int RSortFilterProxyModel::sourceRow(int row) const
{
    return mapToSource(index(row, 0)).row();
}

int RSortFilterProxyModel::proxyRow(int sourceRow) const
{
    return sourceModel() ? mapFromSource(sourceModel()->index(sourceRow, 0)).row() : -1;
}

int RSortFilterProxyModel::indexOf(const QString &roleName, const QVariant &value) const
{
    const int role = roleName.isEmpty() ? int(Qt::DisplayRole) : m_parts->roles.find(sourceModel(), roleName);
    for (int row = 0; row < rowCount(); ++row) {
        if (index(row, 0).data(role) == value)
            return row;
    }
    return -1;
}

void RSortFilterProxyModel::invalidate()
{
    m_parts->order.keys().clear();
    m_parts->expressions.change(0, m_parts->expressions.rows() - 1);
    lookUpRoles(sourceModel());
    m_parts->mustFilter = m_parts->mustSort = true;
    settle();
}

void RSortFilterProxyModel::setSourceModel(QAbstractItemModel *source)
{
    Parts &parts = *m_parts;
    // The model that this one derives from is not ready for another source while it tells of one.
    if (parts.isSettingSource) {
        parts.nextSource = source;
        return;
    }
    if (source != sourceModel()) {
        parts.isSettingSource = true;
        exchangeSource(source);
        parts.isSettingSource = false;
    }
    if (const auto next = std::exchange(parts.nextSource, std::nullopt))
        setSourceModel(*next);
    else
        settle();
}

void RSortFilterProxyModel::exchangeSource(QAbstractItemModel *source)
{
    m_parts->watch.stop();
    if (source)
        m_parts->watch.watchAhead(
            *source, [this, source] { lookUpRoles(source); }, [this] { return dynamicSortFilter(); });
    forget(source);
    QSortFilterProxyModel::setSourceModel(source);
    if (source) {
        const auto onOtherColumns = [this] {
            m_parts->mustFilter = m_parts->mustSort = true;
            settle();
        };
        const auto onGone = [this] {
            beginResetModel();
            m_parts->watch.stop();
            forget(nullptr);
            endResetModel();
            settle();
        };
        m_parts->watch.watchBehind(
            *source, [this] { settle(); }, onOtherColumns, onGone);
    }
}

void RSortFilterProxyModel::classBegin()
{
    m_parts->isHeld = true;
}

void RSortFilterProxyModel::componentComplete()
{
    m_parts->isHeld = false;
    settle();
}

bool RSortFilterProxyModel::filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const
{
    if (!QSortFilterProxyModel::filterAcceptsRow(sourceRow, sourceParent))
        return false;
    if (!sourceParent.isValid() && !m_parts->expressions.shows(sourceRow))
        return false;
    if (m_parts->matcher.isOpen())
        return true;
    const QModelIndex index = sourceModel()->index(sourceRow, 0, sourceParent);
    const auto matches = [&](int role) { return m_parts->matcher.matches(index.data(role).toString()); };
    const QList<int> &roles = m_parts->filterRoles;
    return std::any_of(roles.begin(), roles.end(), matches) != m_filterInverted;
}

// The model that this one derives from inserts rows by searching, so equals have an order, too. For a descending one it
// asks with the rows swapped.
bool RSortFilterProxyModel::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    Parts &parts = *m_parts;
    int result = 0;
    if (parts.expressions.sorts())
        result = left.parent().isValid() ? 0 : parts.expressions.compare(left.row(), right.row());
    else if (parts.order.hasRole())
        result = parts.order.compare(left, right);
    else
        return left.row() < right.row();
    if (result != 0)
        return result < 0;
    return QSortFilterProxyModel::sortOrder() == Qt::DescendingOrder ? left.row() > right.row()
                                                                     : left.row() < right.row();
}

void RSortFilterProxyModel::forget(const QAbstractItemModel *source)
{
    m_parts->order.keys().clear();
    m_parts->expressions.reset(source ? source->rowCount() : 0);
    lookUpRoles(source);
}

void RSortFilterProxyModel::lookUpRoles(const QAbstractItemModel *source)
{
    Parts &parts = *m_parts;
    const int role = m_sortRoleName.isEmpty() ? sortRole() : parts.roles.find(source, m_sortRoleName);
    // A role of the inherited property may go without a name.
    parts.order.setRole(role, role != Qt::DisplayRole || (source && source->roleNames().contains(Qt::DisplayRole)));
    parts.filterRoles.clear();
    for (const QString &name : std::as_const(m_filterRoleNames))
        parts.filterRoles.append(parts.roles.find(source, name));
    if (parts.filterRoles.isEmpty())
        parts.filterRoles.append(filterRole());
}

void RSortFilterProxyModel::sortByOrder()
{
    const bool isDescending = m_sortEnabled && m_sortOrder == Qt::DescendingOrder;
    sort(m_sortEnabled ? 0 : -1, isDescending ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void RSortFilterProxyModel::sortAnew()
{
    const auto plain = isSortLocaleAware() ? KeyOrder::Texts::Locale : KeyOrder::Texts::Plain;
    m_parts->order.setKeyOrder(KeyOrder(m_naturalSort ? KeyOrder::Texts::Natural : plain, sortCaseSensitivity()));
    lookUpRoles(sourceModel());
    m_parts->mustSort = true;
    settle();
}

void RSortFilterProxyModel::readPattern()
{
    const bool isValid = m_parts->matcher.setPattern(m_filterPattern, syntaxOf(m_filterSyntax));
    if (std::exchange(m_filterValid, isValid) != isValid)
        Q_EMIT filterValidChanged();
    m_parts->mustFilter = true;
    settle();
}

void RSortFilterProxyModel::filterAnew()
{
    m_parts->matcher.setCaseSensitivity(filterCaseSensitivity());
    lookUpRoles(sourceModel());
    m_parts->mustFilter = true;
    settle();
}

// Makes the rows what they should be. Functions and those who listen may change source and properties on the way.
void RSortFilterProxyModel::settle()
{
    Parts &parts = *m_parts;
    parts.isUnsettled = true;
    if (parts.isSettling)
        return;
    parts.isSettling = true;
    for (int round = 1; parts.isUnsettled && round <= MaximumRounds; ++round) {
        parts.isUnsettled = false;
        askExpressions(round == MaximumRounds);
        if (std::exchange(parts.mustFilter, false))
            invalidateRowsFilter();
        if (std::exchange(parts.mustSort, false))
            QSortFilterProxyModel::invalidate();
    }
    parts.isSettling = false;
    tellCount();
}

void RSortFilterProxyModel::askExpressions(bool isLastTime)
{
    Parts &parts = *m_parts;
    if (parts.isHeld || !parts.expressions.areSet())
        return;
    // A model that no page knows has no engine either.
    QJSEngine *engine = qjsEngine(this);
    if (engine) {
        // A model that was changed while it told of a change tells of both in a surprising order.
        const int rows = sourceModel() ? sourceModel()->rowCount() : 0;
        if (parts.expressions.rows() != rows)
            parts.expressions.reset(rows);
        const auto rowObject = [this, engine](int row) {
            const QAbstractItemModel *source = sourceModel();
            return engine->toScriptValue(source ? roleValues(source->index(row, 0)) : QVariantMap());
        };
        const auto report = [this](const QString &text) { warnOfPage(this, text); };
        const RowExpressions::Outcome outcome = parts.expressions.ask(*engine, rowObject, report);
        parts.mustFilter |= outcome.otherRowsPass;
        parts.mustSort |= outcome.otherOrder;
        parts.isUnsettled |= !outcome.complete;
    }
    if (!engine || (isLastTime && parts.isUnsettled)) {
        if (engine && !std::exchange(parts.saidEndless, true))
            warnOfPage(this, QStringLiteral("an expression changes the model that it is asked about"));
        parts.expressions.giveUp();
        parts.mustFilter = parts.mustSort = true;
    }
}

void RSortFilterProxyModel::tellCount()
{
    const int rows = rowCount();
    if (std::exchange(m_count, rows) != rows)
        Q_EMIT countChanged();
}

// Not at once: those who listen may set another source, which the model that this one derives from does not survive
// while it tells of rows.
void RSortFilterProxyModel::tellCountLater()
{
    if (std::exchange(m_parts->willTellCount, true))
        return;
    const auto tell = [this] {
        m_parts->willTellCount = false;
        tellCount();
    };
    QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
}

} // namespace tamble::client
