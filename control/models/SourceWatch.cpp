#include "models/SourceWatch.h"

namespace tamble::client {

SourceWatch::SourceWatch(SortKeys &keys, RowExpressions &expressions)
    : m_keys(keys)
    , m_expressions(expressions)
{}

SourceWatch::~SourceWatch()
{
    stop();
}

template <typename Signal, typename Slot>
void SourceWatch::connect(QAbstractItemModel &source, Signal signal, Slot slot)
{
    m_connections.push_back(QObject::connect(&source, signal, std::move(slot)));
}

void SourceWatch::watchAhead(QAbstractItemModel &source, const std::function<void()> &onOtherRoles,
                             const std::function<bool()> &isDynamic)
{
    using Model = QAbstractItemModel;
    connect(source, &Model::dataChanged, [this, isDynamic](const QModelIndex &topLeft, const QModelIndex &bottomRight) {
        if (!topLeft.isValid() || !bottomRight.isValid() || topLeft.parent().isValid())
            return;
        m_keys.change(topLeft.row(), bottomRight.row());
        if (isDynamic())
            m_expressions.change(topLeft.row(), bottomRight.row());
    });
    connect(source, &Model::rowsInserted,
            [this, &source, onOtherRoles](const QModelIndex &parent, int first, int last) {
                if (parent.isValid())
                    return;
                m_keys.insert(first, last);
                m_expressions.insert(first, last);
                if (source.rowCount() == last - first + 1)
                    onOtherRoles();
            });
    connect(source, &Model::rowsRemoved, [this](const QModelIndex &parent, int first, int last) {
        if (parent.isValid())
            return;
        m_keys.remove(first, last);
        m_expressions.remove(first, last);
    });
    const auto beforeOtherOrder = [this, &source] { save(source); };
    const auto afterOtherOrder = [this, &source] { restore(source); };
    connect(source, &Model::rowsAboutToBeMoved, beforeOtherOrder);
    connect(source, &Model::rowsMoved, afterOtherOrder);
    connect(source, &Model::layoutAboutToBeChanged, beforeOtherOrder);
    connect(source, &Model::layoutChanged, afterOtherOrder);
    connect(source, &Model::modelReset, [this, &source, onOtherRoles] {
        m_keys.clear();
        m_expressions.reset(source.rowCount());
        onOtherRoles();
    });
    const auto onColumns = [this] {
        m_keys.clear();
        m_expressions.change(0, m_expressions.rows() - 1);
    };
    connect(source, &Model::columnsInserted, onColumns);
    connect(source, &Model::columnsRemoved, onColumns);
    connect(source, &Model::columnsMoved, onColumns);
}

void SourceWatch::watchBehind(QAbstractItemModel &source, const std::function<void()> &onChange,
                              const std::function<void()> &onOtherColumns, const std::function<void()> &onGone)
{
    using Model = QAbstractItemModel;
    connect(source, &Model::dataChanged, onChange);
    connect(source, &Model::rowsInserted, onChange);
    connect(source, &Model::rowsRemoved, onChange);
    connect(source, &Model::rowsMoved, onChange);
    connect(source, &Model::layoutChanged, onChange);
    connect(source, &Model::modelReset, onChange);
    connect(source, &Model::columnsInserted, onOtherColumns);
    connect(source, &Model::columnsRemoved, onOtherColumns);
    connect(source, &Model::columnsMoved, onOtherColumns);
    connect(source, &QObject::destroyed, onGone);
}

void SourceWatch::stop()
{
    for (const QMetaObject::Connection &connection : m_connections)
        QObject::disconnect(connection);
    m_connections.clear();
    m_saved.clear();
}

void SourceWatch::save(const QAbstractItemModel &source)
{
    m_saved.clear();
    if (!m_expressions.areSet())
        return;
    const int rows = source.rowCount();
    for (int row = 0; row < rows; ++row)
        m_saved.emplace_back(source.index(row, 0));
}

void SourceWatch::restore(const QAbstractItemModel &source)
{
    m_keys.clear();
    std::vector<int> sources(std::size_t(source.rowCount()), -1);
    for (std::size_t before = 0; before < m_saved.size(); ++before) {
        const QPersistentModelIndex &index = m_saved[before];
        if (index.isValid() && !index.parent().isValid() && std::size_t(index.row()) < sources.size())
            sources[std::size_t(index.row())] = int(before);
    }
    m_saved.clear();
    m_expressions.permute(sources);
}

} // namespace tamble::client
