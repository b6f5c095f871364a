#pragma once

#include "base/ControlExport.h"
#include "base/SpokenControl.h"
#include "cells/CellMoves.h"
#include "cells/PlacedCell.h"

#include <QtCore/QBasicTimer>
#include <QtCore/QPointer>

#include <memory>

namespace tamble::client {

class CellEditing;

/// One cell of a table, which holds a control. In an RCellContainer that places it; elsewhere, as the delegate of a
/// TableView, it has the size that its own `gridProperties` give it.
///
/// The current cell has the keyboard focus, and its control only while it is edited; but a button has the focus of its
/// cell. Outside of a container the current index of an enclosing TableView follows the focus.
///
/// Keys: Enter and F2 start editing or press, a typed character starts editing with it. While editing, Esc takes back,
/// Enter confirms and moves down, Shift+Enter up, Tab confirms and moves right. Menu or Shift+F10: context menu.
class TAMBLE_CLIENT_CONTROL_EXPORT RCellBase : public tamble::client::PlacedCell,
                                               public SpokenControl,
                                               private QAccessible::ActivationObserver
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RCellBase)
    /// What the cell is about, for people who cannot see it, such as "Gain of channel 3".
    Q_PROPERTY(QString label READ label WRITE setLabel NOTIFY labelChanged)
    Q_PROPERTY(bool selected READ isSelected WRITE setSelected NOTIFY selectedChanged)
    /// False while several devices differ in what the cell shows ("mixed"); true by default.
    Q_PROPERTY(bool consistent MEMBER m_consistent NOTIFY consistentChanged)
    Q_PROPERTY(bool current READ isCurrent WRITE setCurrent NOTIFY currentChanged)
    /// Shows what it shows and is never edited; false by default.
    Q_PROPERTY(bool readOnly READ isReadOnly WRITE setReadOnly NOTIFY readOnlyChanged)
    Q_PROPERTY(bool locked READ isLocked NOTIFY lockedChanged)
    Q_PROPERTY(QQuickItem *control READ control WRITE setControl NOTIFY controlChanged)
    /// Whether there is the raster's `padding` at both sides of the control; false by default.
    Q_PROPERTY(bool controlPadded READ isControlPadded WRITE setControlPadded NOTIFY controlPaddedChanged)
    /// Whether Enter belongs to the control while it is edited, and Ctrl+Enter confirms; false by default.
    Q_PROPERTY(bool multiLine MEMBER m_multiLine NOTIFY multiLineChanged)
    Q_PROPERTY(bool editing READ isEditing NOTIFY editingChanged)
    Q_PROPERTY(QString refusal READ refusal NOTIFY refusalChanged)

public:
    explicit RCellBase(QQuickItem *parent = nullptr);
    ~RCellBase() override;

    QString label() const { return m_label; }
    void setLabel(const QString &label);
    /// Whether the page has the cell framed and tinted; false by default.
    bool isSelected() const { return m_selected; }
    void setSelected(bool selected);
    /// Whether this is the current cell. The container says so; in a TableView it is a required property, which the
    /// view sets.
    bool isCurrent() const { return m_current; }
    void setCurrent(bool current);
    bool isReadOnly() const { return m_readOnly; }
    void setReadOnly(bool readOnly);
    /// Whether nothing here can be edited, since the cell or its container is read-only.
    bool isLocked() const;
    /// The control in the cell, which fills it; null by default.
    QQuickItem *control() const { return m_control; }
    void setControl(QQuickItem *control);
    bool isControlPadded() const { return m_controlPadded; }
    void setControlPadded(bool padded);
    /// Whether the control is being edited.
    bool isEditing() const;
    bool isMultiLine() const { return m_multiLine; }
    /// Why a pasted text was not taken; empty otherwise. The cell shows it until it is edited or something is pasted.
    QString refusal() const { return m_refusal; }
    void setRefusal(const QString &reason);

    /// The content as text, as it is copied; a cell with one has a function of this name.
    Q_INVOKABLE QString cellText() const { return {}; }
    /// Takes a pasted text as if it had been typed and entered, and says why not: empty when it was taken. A cell that
    /// takes texts has a function of this name; this one takes none.
    Q_INVOKABLE QString takeText(const QString &text);
    /// Gives the focus to the control; false when there is nothing to edit.
    Q_INVOKABLE bool edit();
    /// Takes the focus back from the control; what is typed and not entered then depends on that.
    Q_INVOKABLE void endEditing();

    /// The cell's own answers to cellText() and takeText().
    QString textToCopy() const;
    QString pasteText(const QString &text);

    // What the container says.
    /// The container's part in `locked` has changed.
    void followLock();
    /// Moves the current cell of the container.
    void stepBy(CellMove move);
    /// Part of the container's selection.
    void setHighlighted(bool highlighted);

    QAccessible::Role spokenRole() const override { return QAccessible::Cell; }
    QString spokenName() const override;
    QString spokenDescription(const QString &given) const override;
    void addSpokenStates(QAccessible::State &state) const override;
    bool pressBySpeech() override;

Q_SIGNALS:
    void labelChanged();
    void selectedChanged();
    void consistentChanged();
    void currentChanged();
    void readOnlyChanged();
    void lockedChanged();
    void controlChanged();
    void controlPaddedChanged();
    void multiLineChanged();
    void editingChanged();
    void refusalChanged();
    /// The user wants to use the cell: by Enter, F2, a double click, or a click on the button in it. `index` is that of
    /// the tab that was chosen in a tab bar, elsewhere −1.
    void activated(int index);
    /// A right click, a long press or the Menu key; `position` is in the cell's coordinates. A field that is edited has
    /// a menu of its own.
    void contextMenuRequested(const QPointF &position);

protected:
    bool childMouseEventFilter(QQuickItem *item, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseUngrabEvent() override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void containerChange() override;
    void contentMove() override;

private:
    void accessibilityActiveChanged(bool active) override;
    void followFocus();
    void nameControl();
    void updateFrames();
    void takeFocus();
    void use();

    QPointer<QQuickItem> m_control;
    std::unique_ptr<CellEditing> m_editing; // made when the control is first edited
    QQuickItem *m_focusFrame = nullptr;     // these three: children, made when they are first shown
    QQuickItem *m_selectionFrame = nullptr;
    QQuickItem *m_refusalMark = nullptr;
    QString m_label;
    QString m_refusal;
    QBasicTimer m_longPress;
    QPointF m_pressedAt;
    bool m_selected = false;
    bool m_consistent = true;
    bool m_current = false;
    bool m_readOnly = false;
    bool m_controlPadded = false;
    bool m_multiLine = false;
    bool m_highlighted = false;
};

} // namespace tamble::client
