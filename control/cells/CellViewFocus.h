#pragma once

#include <QtCore/QItemSelectionModel>
#include <QtQuick/QQuickItem>

namespace tamble::client {

/// Lets the keyboard into and out of a TableView whose delegates are cells: one that gets the focus while no cell is
/// current gives it to the first one that is shown. A TableView would keep it, unseen, and the Tab key with it.
class CellViewFocus : public QObject
{
public:
    /// Made once for each view, as its child.
    static void follow(QQuickItem &view);
    /// What a view selects; null for other items.
    static QItemSelectionModel *selectionOf(const QQuickItem &view);
    static bool isTabKey(const QKeyEvent &event);
    /// The Tab key leads out of the view; false for other keys.
    static bool leave(QQuickItem &view, const QKeyEvent &event);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    explicit CellViewFocus(QQuickItem &view);

    void enter();

    QQuickItem &m_view;
};

} // namespace tamble::client
