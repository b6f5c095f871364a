#include "lists/SelectableListView.h"

#include "base/SpokenControl.h"

#include <QtCore/QPointer>

#include <algorithm>
#include <utility>

namespace tamble::client {

namespace {

/// Where a row stood that is among those that leave.
int formerPlace(int row, const std::vector<RowChange> &leaving)
{
    for (const RowChange &change : leaving) {
        if (row >= change.first + change.count)
            row -= change.count;
        else if (row >= change.first)
            return change.first;
    }
    return row;
}

} // namespace

SelectableListView::SelectableListView(QQuickItem *parent)
    : QQuickListView(parent)
{
    connect(this, &QQuickItemView::modelChanged, this, &SelectableListView::takeModel);
    connect(this, &QQuickItemView::currentIndexChanged, this, &SelectableListView::onCurrentIndexChanged);
    connect(&m_rows, &ListRows::changed, this, &SelectableListView::onRowsChanged);
    connect(&m_rows, &ListRows::replaced, this, &SelectableListView::onRowsReplaced);
    connect(&m_rows, &ListRows::aboutToBeSorted, this, &SelectableListView::onAboutToBeSorted);
    connect(&m_rows, &ListRows::sorted, this, &SelectableListView::onSorted);
    connect(&m_rows, &ListRows::textsChanged, this, &QQuickItem::polish);
    connect(&m_rows, &ListRows::reused, this, &QQuickItem::polish);
}

SelectableListView::~SelectableListView()
{
    // Rows go after this, and the view says so.
    disconnect(this, nullptr, this, nullptr);
    m_rows.disconnect(this);
}

void SelectableListView::componentComplete()
{
    QQuickListView::componentComplete();
    takeModel();
    m_currentRow = currentIndex();
}

void SelectableListView::setSelectionMode(SelectionMode mode)
{
    if (selectionMode() == mode)
        return;
    const QPointer<SelectableListView> guard(this);
    changeSelection([mode](ListSelection &selection) { selection.setMode(ListSelection::Mode(mode)); });
    if (guard)
        Q_EMIT selectionModeChanged();
}

void SelectableListView::setSelectedIndexes(const QList<int> &rows)
{
    RowRanges wanted(rows);
    if (isComponentComplete())
        wanted = wanted.part(0, m_rows.count());
    changeSelection([&wanted](ListSelection &selection) { selection.setRows(wanted); });
}

void SelectableListView::select(int index)
{
    if (index >= 0 && index < m_rows.count())
        changeSelection([index](ListSelection &selection) { selection.select(index); });
}

void SelectableListView::toggle(int index)
{
    if (index >= 0 && index < m_rows.count())
        changeSelection([index](ListSelection &selection) { selection.toggle(index); });
}

void SelectableListView::selectRange(int from, int to)
{
    const int last = m_rows.count() - 1;
    if (last < 0 || std::max(from, to) < 0 || std::min(from, to) > last)
        return;
    changeSelection(
        [&](ListSelection &selection) { selection.selectRange(std::clamp(from, 0, last), std::clamp(to, 0, last)); });
}

void SelectableListView::clearSelection()
{
    changeSelection([](ListSelection &selection) { selection.clear(); });
}

/// Whether other rows are selected, which is then said; the list may be gone afterwards.
bool SelectableListView::changeSelection(const SelectionChange &change)
{
    const RowRanges before = m_selection.rows();
    change(m_selection);
    if (m_selection.rows() == before)
        return false;
    polish();
    announce(*this, QAccessible::Selection);
    Q_EMIT selectedIndexesChanged();
    return true;
}

void SelectableListView::editSelection(int current, const SelectionChange &change)
{
    const QPointer<SelectableListView> guard(this);
    const bool isChanged = changeSelection(change);
    // A tool that is told of the change asks for the rows' states at once.
    if (isChanged && guard && QAccessible::isActive())
        showRows();
    if (isChanged && guard)
        Q_EMIT selectionEdited(QVariant::fromValue(selectedIndexes()));
    if (guard && current < m_rows.count())
        setCurrentIndex(current);
}

void SelectableListView::takeModel()
{
    if (!isComponentComplete())
        return;
    m_knownModel = model();
    const bool isFirst = m_rows.count() == 0;
    m_rows.setModel(instanceModelOf(*this));
    const QPointer<SelectableListView> guard(this);
    if (isFirst)
        setSelectedIndexes(selectedIndexes());
    else
        onRowsReplaced();
    if (guard)
        introduceRows();
}

void SelectableListView::onRowsChanged(const std::vector<RowChange> &leaving, const std::vector<RowChange> &coming)
{
    if (isTakingModel())
        return;
    rowsChange(leaving, coming);
    const int current = m_currentRow;
    m_currentRow = followedRow(current, leaving, coming);
    const QPointer<SelectableListView> guard(this);
    changeSelection([&](ListSelection &selection) { selection.follow(leaving, coming); });
    if (!guard || current < 0 || m_currentRow >= 0)
        return;
    // Enter must not use the row that has come to stand in the place of the one that the user saw.
    forceLayout();
    setCurrentIndex(-1);
    if (guard)
        m_formerRow = formerPlace(current, leaving);
}

void SelectableListView::onRowsReplaced()
{
    if (isTakingModel())
        return;
    rowsReplacement();
    const QPointer<SelectableListView> guard(this);
    clearSelection();
    if (guard)
        polish();
}

void SelectableListView::onAboutToBeSorted()
{
    m_beforeSorting = std::make_unique<BeforeSorting>();
    if (m_currentRow >= 0)
        m_beforeSorting->current = m_rows.modelIndex(m_currentRow);
    const QList<int> selected = selectedIndexes();
    if (selected.size() == m_rows.count()) // stays so
        return;
    for (const int row : selected)
        m_beforeSorting->selection.append(m_rows.modelIndex(row));
}

void SelectableListView::onSorted()
{
    rowsSorting();
    const BeforeSorting before = m_beforeSorting ? *std::exchange(m_beforeSorting, nullptr) : BeforeSorting();
    const int current = before.current.row();
    const QPointer<SelectableListView> guard(this);
    if (!before.selection.isEmpty()) {
        QList<int> selected;
        for (const QPersistentModelIndex &index : before.selection)
            selected.append(index.row());
        changeSelection([&selected](ListSelection &selection) { selection.replaceRows(RowRanges(selected)); });
    }
    if (guard && current >= 0)
        setCurrentIndex(current);
    if (guard)
        polish();
}

void SelectableListView::onCurrentIndexChanged()
{
    m_currentRow = currentIndex();
    m_formerRow = -1;
}

} // namespace tamble::client
