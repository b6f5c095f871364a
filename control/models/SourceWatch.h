#pragma once

#include "models/RowExpressions.h"
#include "models/SortKey.h"

#include <QtCore/QAbstractItemModel>
#include <QtCore/QPersistentModelIndex>

#include <functional>
#include <vector>

namespace tamble::client {

/// Keeps what is known of rows in step with their model.
///
/// A proxy looks at its rows when the model tells a change. So what is known has to follow before the proxy listens,
/// and what follows from it has to wait until the proxy is through.
class SourceWatch
{
public:
    SourceWatch(SortKeys &keys, RowExpressions &expressions);
    ~SourceWatch();
    Q_DISABLE_COPY_MOVE(SourceWatch)

    /// Call it before the proxy connects itself. `onOtherRoles` is told when names may have other roles; `isDynamic`
    /// says whether changed values count.
    void watchAhead(QAbstractItemModel &source, const std::function<void()> &onOtherRoles,
                    const std::function<bool()> &isDynamic);
    /// Call it afterwards. `onChange` is told of everything, `onOtherColumns` of columns and `onGone` of the end.
    void watchBehind(QAbstractItemModel &source, const std::function<void()> &onChange,
                     const std::function<void()> &onOtherColumns, const std::function<void()> &onGone);
    void stop();

private:
    template <typename Signal, typename Slot>
    void connect(QAbstractItemModel &source, Signal signal, Slot slot);
    void save(const QAbstractItemModel &source);
    void restore(const QAbstractItemModel &source);

    SortKeys &m_keys;
    RowExpressions &m_expressions;
    std::vector<QMetaObject::Connection> m_connections;
    std::vector<QPersistentModelIndex> m_saved;
};

} // namespace tamble::client
