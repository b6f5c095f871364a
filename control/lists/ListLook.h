#pragma once

#include <QtCore/QPointF>

#include <optional>

class QQuickItem;

namespace tamble::client {

class RListViewBase;

/// What the rows in view show: their texts, and the highlight of those that are selected and of the one below the
/// pointer.
class ListLook
{
public:
    explicit ListLook(RListViewBase &list);

    /// Brings all rows in view up to date.
    void showRows();
    /// Likewise where all of them are new, or assistive tools have begun to listen.
    void introduceRows();
    /// A row has come into view.
    void introduceRow(int row, QQuickItem &item);

    /// Where the pointer is, in the list's coordinates, if it is above; true when that is another row.
    bool pointAt(std::optional<QPointF> place);
    /// The rows may have moved below the pointer; true when another one is there.
    bool findHoveredRow();

private:
    template <typename Action>
    void forVisibleRows(Action action);
    void showRow(int row, QQuickItem &item);
    void showMark(QQuickItem &item, bool visible, bool selected, bool filled);

    RListViewBase &m_list;
    std::optional<QPointF> m_pointer; ///< In the list's coordinates, while it is above.
    int m_hoveredRow = -1;
};

} // namespace tamble::client
