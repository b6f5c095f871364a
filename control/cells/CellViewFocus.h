#pragma once

#include <QtQuick/QQuickItem>

namespace tamble::client {

class PlacedCell;

/// Lets the keyboard into and out of a TableView whose delegates are cells: one that gets the focus while no cell is
/// current gives it to the first one that is shown. A TableView would keep it, unseen, and the Tab key with it.
class CellViewFocus : public QObject
{
public:
    /// Made once for each view, as its child.
    static void follow(QQuickItem &view);
    /// The TableView around a cell; null outside of one.
    static QQuickItem *viewOf(const QQuickItem &cell);
    /// A cell has the focus: the view makes it its current one, which it does by itself for arrow keys only.
    static void tell(const PlacedCell &cell);
    static bool isTabKey(const QKeyEvent &event);
    /// The Tab key leads out of the view around a cell; false for other keys, and where there is no view. Some versions
    /// of Qt would walk through all cells.
    static bool leave(const QQuickItem &cell, const QKeyEvent &event);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    explicit CellViewFocus(QQuickItem &view);

    void enter();

    QQuickItem &m_view;
};

} // namespace tamble::client
