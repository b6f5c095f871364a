// How a sort and filter model comes to rest: functions of the page are asked, and may change what they are asked about.

#include "base/ControlLog.h"
#include "models/SortFilterParts.h"

#include <QtQml/QJSEngine>

#include <utility>

namespace tamble::client {

namespace {

// Functions that change what they are asked about are asked again so often.
constexpr int MaximumRounds = 16;

} // namespace

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
