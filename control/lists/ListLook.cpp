#include "lists/ListLook.h"

#include "base/PartComponents.h"
#include "lists/ListRows.h"
#include "lists/RListRowBase.h"
#include "lists/RListViewBase.h"

#include <QtCore/QMetaProperty>
#include <QtQml/qqml.h>
#include <QtQuick/private/qquickaccessibleattached_p.h>

#include <utility>

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

} // namespace

ListLook::ListLook(RListViewBase &list)
    : m_list(list)
{}

template <typename Action>
void ListLook::forVisibleRows(Action action)
{
    QQmlInstanceModel *model = instanceModelOf(m_list);
    for (QQuickItem *item : m_list.contentItem()->childItems()) {
        // Not by its place: a row may have no width yet.
        const int row = model ? model->indexOf(item, nullptr) : -1;
        if (row >= 0 && m_list.itemAtIndex(row) == item) // not one that waits for its next use
            action(row, *item);
    }
}

void ListLook::showRows()
{
    forVisibleRows([this](int row, QQuickItem &item) { showRow(row, item); });
}

void ListLook::introduceRows()
{
    forVisibleRows([this](int row, QQuickItem &item) { introduceRow(row, item); });
}

void ListLook::introduceRow(int row, QQuickItem &item)
{
    showRow(row, item);
    if (QAccessible::isActive() && qobject_cast<RListRowBase *>(&item))
        beginToSpeak(item);
}

bool ListLook::pointAt(std::optional<QPointF> place)
{
    m_pointer = place;
    return findHoveredRow();
}

bool ListLook::findHoveredRow()
{
    const int row = m_pointer ? m_list.rowAt(*m_pointer) : -1;
    return std::exchange(m_hoveredRow, row) != row;
}

void ListLook::showRow(int row, QQuickItem &item)
{
    if (auto *plain = qobject_cast<RListRowBase *>(&item)) {
        plain->setList(&m_list);
        plain->setText(m_list.rowText(row));
        if (m_list.orientation() == QQuickListView::Vertical)
            plain->setWidth(m_list.width());
    }
    const bool selected = m_list.isSelected(row);
    const bool hovered = row == m_hoveredRow;
    const bool isTold = tell(item, "selected", selected);
    const bool showsHover = tell(item, "hovered", hovered) && hovered;
    showMark(item, selected || showsHover, selected, isTold);
    if (auto *attached = QQuickAccessibleAttached::attachedProperties(&item)) {
        attached->set_selectable(m_list.selectionMode() != RListViewBase::None);
        attached->set_selected(selected);
    }
}

void ListLook::showMark(QQuickItem &item, bool visible, bool selected, bool filled)
{
    static const QString name = QStringLiteral("rowMark");
    auto *mark = item.findChild<QObject *>(name, Qt::FindDirectChildrenOnly);
    if (!mark && visible) {
        const QVariantMap properties{{QStringLiteral("list"), QVariant::fromValue(&m_list)},
                                     {QStringLiteral("parent"), QVariant::fromValue(&item)}};
        mark = PartComponents::of(qmlEngine(&m_list)).make(Part::RowMark, &item, properties);
        if (mark)
            mark->setObjectName(name);
    }
    if (!mark)
        return;
    mark->setProperty("selected", selected);
    mark->setProperty("filled", filled);
    mark->setProperty("visible", visible);
}

} // namespace tamble::client
