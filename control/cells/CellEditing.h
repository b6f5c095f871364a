#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>

class QKeyEvent;
class QQuickItem;

namespace tamble::client {

class RCellBase;

/// Leads into editing the control of a cell, and out of it.
class CellEditing : public QObject
{
public:
    explicit CellEditing(RCellBase &cell);

    /// Whether there is anything to edit in a control.
    static bool takesKeys(const QQuickItem &control);

    bool isUnderWay() const { return m_editor; }
    /// This has the focus in the control, or nothing has. Whether that begins or ends editing.
    bool setEditor(QQuickItem *editor);
    /// Whether the key is one that ends editing; a text that is refused stays open.
    bool leaveBy(QKeyEvent &event);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    RCellBase &m_cell;
    QPointer<QObject> m_editor;
};

} // namespace tamble::client
