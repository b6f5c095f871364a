#include "lists/RListViewBase.h"

#include "base/PartComponents.h"
#include "lists/RListRowBase.h"

#include <QtCore/QMetaProperty>
#include <QtCore/QPointer>
#include <QtQml/qqml.h>
#include <QtQuick/private/qquickaccessibleattached_p.h>

#include <algorithm>
#include <utility>

// What a list selects and shows. Keys are in RListKeys.cpp, the pointer in RListPointer.cpp.

namespace tamble::client {

namespace {

/// Writes a flag of a delegate; false for one that has none of the name. A required one is the model's.
bool tell(QObject &row, const char *flag, bool value)
{
    const QMetaObject *type = row.metaObject();
    const QMetaProperty property = type->property(type->indexOfProperty(flag));
    return property.isWritable() && !property.isRequired() && property.typeId() == QMetaType::Bool &&
           property.write(&row, value);
}

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

RListViewBase::RListViewBase(QQuickItem *parent)
    : QQuickListView(parent)
{
    setAcceptedMouseButtons(Qt::LeftButton | Qt::RightButton);
    connect(this, &QQuickItemView::modelChanged, this, &RListViewBase::takeModel);
    connect(this, &QQuickItemView::currentIndexChanged, this, &RListViewBase::onCurrentIndexChanged);
    connect(&m_rows, &ListRows::changed, this, &RListViewBase::onRowsChanged);
    connect(&m_rows, &ListRows::replaced, this, &RListViewBase::onRowsReplaced);
    connect(&m_rows, &ListRows::aboutToBeSorted, this, &RListViewBase::onAboutToBeSorted);
    connect(&m_rows, &ListRows::sorted, this, &RListViewBase::onSorted);
    connect(&m_rows, &ListRows::textsChanged, this, &QQuickItem::polish);
    connect(&m_rows, &ListRows::reused, this, &QQuickItem::polish);
    QAccessible::installActivationObserver(this);
}

RListViewBase::~RListViewBase()
{
    QAccessible::removeActivationObserver(this);
    // Rows go after this, and the view says so.
    disconnect(this, nullptr, this, nullptr);
    m_rows.disconnect(this);
}

void RListViewBase::componentComplete()
{
    QQuickListView::componentComplete();
    takeModel();
    m_currentRow = currentIndex();
    if (QAccessible::isActive())
        beginToSpeak(*this);
}

void RListViewBase::setTextRole(const QString &role)
{
    if (std::exchange(m_textRole, role) == role)
        return;
    polish();
    Q_EMIT textRoleChanged();
}

void RListViewBase::setSelectionMode(SelectionMode mode)
{
    if (selectionMode() == mode)
        return;
    const QPointer<RListViewBase> guard(this);
    changeSelection([mode](ListSelection &selection) { selection.setMode(ListSelection::Mode(mode)); });
    if (guard)
        Q_EMIT selectionModeChanged();
}

void RListViewBase::setSelectedIndexes(const QList<int> &rows)
{
    RowRanges wanted(rows);
    if (isComponentComplete())
        wanted = wanted.part(0, m_rows.count());
    changeSelection([&wanted](ListSelection &selection) { selection.setRows(wanted); });
}

void RListViewBase::setHoverEnabled(bool enabled)
{
    if (isHoverEnabled() == enabled)
        return;
    setAcceptHoverEvents(enabled);
    pointAt(std::nullopt);
    Q_EMIT hoverEnabledChanged();
}

void RListViewBase::select(int index)
{
    if (index >= 0 && index < m_rows.count())
        changeSelection([index](ListSelection &selection) { selection.select(index); });
}

void RListViewBase::toggle(int index)
{
    if (index >= 0 && index < m_rows.count())
        changeSelection([index](ListSelection &selection) { selection.toggle(index); });
}

void RListViewBase::selectRange(int from, int to)
{
    const int last = m_rows.count() - 1;
    if (last < 0 || std::max(from, to) < 0 || std::min(from, to) > last)
        return;
    changeSelection(
        [&](ListSelection &selection) { selection.selectRange(std::clamp(from, 0, last), std::clamp(to, 0, last)); });
}

void RListViewBase::clearSelection()
{
    changeSelection([](ListSelection &selection) { selection.clear(); });
}

/// Whether other rows are selected, which is then said; the list may be gone by then.
bool RListViewBase::changeSelection(const SelectionChange &change)
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

/// Likewise for the user, who is then at the row `current`.
void RListViewBase::editSelection(int current, const SelectionChange &change)
{
    const QPointer<RListViewBase> guard(this);
    const bool isChanged = changeSelection(change);
    // A tool that is told of the change asks for the rows' states at once.
    if (isChanged && guard && QAccessible::isActive())
        forVisibleRows([this](int row, QQuickItem &item) { showRow(row, item); });
    if (isChanged && guard)
        Q_EMIT selectionEdited(QVariant::fromValue(selectedIndexes()));
    if (guard && current < m_rows.count())
        setCurrentIndex(current);
}

void RListViewBase::takeModel()
{
    if (!isComponentComplete())
        return;
    m_knownModel = model();
    const bool isFirst = m_rows.count() == 0;
    m_rows.setModel(instanceModelOf(*this));
    const QPointer<RListViewBase> guard(this);
    if (isFirst)
        setSelectedIndexes(selectedIndexes());
    else
        onRowsReplaced();
    if (guard)
        forVisibleRows([this](int row, QQuickItem &item) { introduceRow(row, item); });
}

void RListViewBase::onRowsChanged(const std::vector<RowChange> &leaving, const std::vector<RowChange> &coming)
{
    if (isTakingModel())
        return;
    const auto follow = [&](int row) {
        return row < 0 ? row : followed(RowRanges(RowRange{row, row}), leaving, coming).first();
    };
    m_press.row = follow(m_press.row);
    m_lastTapped = follow(m_lastTapped);
    const int current = m_currentRow;
    m_currentRow = follow(current);
    const QPointer<RListViewBase> guard(this);
    changeSelection([&](ListSelection &selection) { selection.follow(leaving, coming); });
    if (!guard || current < 0 || m_currentRow >= 0)
        return;
    // Enter must not use the row that has come to stand in the place of the one that the user saw.
    forceLayout();
    setCurrentIndex(-1);
    if (guard)
        m_formerRow = formerPlace(current, leaving);
}

void RListViewBase::onRowsReplaced()
{
    if (isTakingModel())
        return;
    cancelPress();
    m_letters.clear();
    m_lastTapped = -1;
    const QPointer<RListViewBase> guard(this);
    clearSelection();
    if (guard)
        polish();
}

void RListViewBase::onAboutToBeSorted()
{
    m_sortedCurrent = m_currentRow < 0 ? QPersistentModelIndex() : m_rows.modelIndex(m_currentRow);
    m_sortedSelection.clear();
    const QList<int> rows = selectedIndexes();
    if (rows.size() == m_rows.count()) // stays so
        return;
    for (const int row : rows)
        m_sortedSelection.append(m_rows.modelIndex(row));
}

void RListViewBase::onSorted()
{
    cancelPress();
    const int current = std::exchange(m_sortedCurrent, {}).row();
    const QPointer<RListViewBase> guard(this);
    if (!m_sortedSelection.isEmpty()) {
        QList<int> rows;
        for (const QPersistentModelIndex &index : std::exchange(m_sortedSelection, {}))
            rows.append(index.row());
        changeSelection([&rows](ListSelection &selection) { selection.replaceRows(RowRanges(rows)); });
    }
    if (guard && current >= 0)
        setCurrentIndex(current);
    if (guard)
        polish();
}

void RListViewBase::onCurrentIndexChanged()
{
    m_currentRow = currentIndex();
    m_formerRow = -1;
}

void RListViewBase::initItem(int index, QObject *item)
{
    QQuickListView::initItem(index, item);
    auto *row = qobject_cast<QQuickItem *>(item);
    if (row && !isTakingModel())
        introduceRow(index, *row);
}

void RListViewBase::introduceRow(int row, QQuickItem &item)
{
    showRow(row, item);
    if (QAccessible::isActive() && qobject_cast<RListRowBase *>(&item))
        beginToSpeak(item);
}

void RListViewBase::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickListView::geometryChange(newGeometry, oldGeometry);
    polish();
}

void RListViewBase::updatePolish()
{
    QQuickListView::updatePolish();
    findHoveredRow();
    forVisibleRows([this](int row, QQuickItem &item) { showRow(row, item); });
}

template <typename Action>
void RListViewBase::forVisibleRows(Action action)
{
    for (QQuickItem *item : contentItem()->childItems()) {
        const QPointF centre = item->position() + QPointF(item->width(), item->height()) / 2.0;
        const int row = indexAt(centre.x(), centre.y());
        if (row >= 0 && itemAtIndex(row) == item) // not one that waits for its next use
            action(row, *item);
    }
}

void RListViewBase::showRow(int row, QQuickItem &item)
{
    if (auto *plain = qobject_cast<RListRowBase *>(&item)) {
        plain->setList(this);
        plain->setText(m_rows.text(row, m_textRole));
        if (orientation() == Vertical)
            plain->setWidth(width());
    }
    const bool selected = isSelected(row);
    const bool hovered = row == m_hoveredRow;
    const bool isTold = tell(item, "selected", selected);
    const bool showsHover = tell(item, "hovered", hovered) && hovered;
    showMark(item, selected || showsHover, selected, isTold);
    if (auto *attached = QQuickAccessibleAttached::attachedProperties(&item)) {
        attached->set_selectable(selectionMode() != None);
        attached->set_selected(selected);
    }
}

void RListViewBase::showMark(QQuickItem &item, bool visible, bool selected, bool filled)
{
    static const QString name = QStringLiteral("rowMark");
    auto *mark = item.findChild<QObject *>(name, Qt::FindDirectChildrenOnly);
    if (!mark && visible) {
        const QVariantMap properties{{QStringLiteral("list"), QVariant::fromValue(this)},
                                     {QStringLiteral("parent"), QVariant::fromValue(&item)}};
        mark = PartComponents::of(qmlEngine(this)).make(Part::RowMark, &item, properties);
        if (mark)
            mark->setObjectName(name);
    }
    if (!mark)
        return;
    mark->setProperty("selected", selected);
    mark->setProperty("filled", filled);
    mark->setProperty("visible", visible);
}

void RListViewBase::addSpokenStates(QAccessible::State &state) const
{
    state.multiSelectable = selectionMode() == Multiple;
}

void RListViewBase::accessibilityActiveChanged(bool active)
{
    if (!active || !isComponentComplete())
        return;
    beginToSpeak(*this);
    forVisibleRows([this](int row, QQuickItem &item) { introduceRow(row, item); });
}

} // namespace tamble::client
