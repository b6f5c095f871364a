#pragma once

#include <QtCore/QObject>
#include <QtCore/QUrl>
#include <QtCore/QVariantMap>

#include <array>
#include <cstddef>

class QQmlComponent;
class QQmlEngine;
class QQuickItem;

namespace tamble::client {

/// What native items make of themselves when it is first needed. How a part looks is said in QML.
enum class Part {
    BarBadge,          ///< The short text in the corner of a bar's button.
    BarCountdown,      ///< What shows how long the first of two presses holds.
    NavIcon,           ///< The picture of a button that chooses a page.
    ProgressMarks,     ///< What a progress bar says besides its length.
    ProgressTravel,    ///< What moves a progress bar of unknown length.
    AccordionIcon,     ///< The icon in the header of an accordion's section.
    AccordionSubtitle, ///< The second line there.
    InsertionLine,     ///< Where a dragged section would be put in.
    DragFrame,         ///< The frame around a dragged picture.
    CheckDot,          ///< What tells that a check box is not confirmed.
    CheckIcon,         ///< The sign in a check box.
    ComboField,        ///< What is typed into in an editable combo box.
    ComboMarks,        ///< What tells that a combo box is mixed or not confirmed.
    ControlLine,       ///< The bar of a control's background.
    EntryIcon,         ///< The icon of an entry of a combo box.
    FocusFrame,        ///< The frame of a control's background while it has the focus.
    LabelLine,         ///< The line of a label.
    ToolTip,
    FieldMarks,      ///< The marks of a field: not entered, not confirmed, mixed, not acceptable.
    FieldBubble,     ///< What a field tells whoever types into it.
    FieldHint,       ///< What stands in an empty field.
    FieldButtons,    ///< To clear a field, and to show a hidden text.
    FieldIcon,       ///< The picture in front of a field's text.
    SpinAffixes,     ///< What stands before and after the number of a spin box.
    SpinInvalidLook, ///< The colours of an unacceptable number.
    CellSelection,   ///< The frame and tint of a selected cell.
    CellRefusal,     ///< The mark of a cell that did not take a pasted text.
    MenuRow,         ///< What an entry of a menu looks like.
    MenuLine,        ///< Likewise a separator.
    SubMenu,
    FieldMenu,    ///< The context menu of text fields.
    PaneHeader,   ///< The header of a pane.
    PaneToggle,   ///< What folds a pane, above its header.
    FlyoutHeader, ///< The header of a flyout.
    DialogFrame,  ///< What a dialog shows around what the page puts into it.
    DialogIcon,   ///< The icon in front of its title.
    DialogCloseButton,
    DialogScrollBars, ///< What moves its body.
    DialogVeil,       ///< What covers its body while it waits.
    MessageBoxDialog, ///< The dialog of a message box.
    TabDot,           ///< What tells that what a tab stands for is modified.
    TabMarks,         ///< What stands at the end of a tab.
    RowMark,          ///< The highlight of a row of a list.
    ViewBlur,         ///< The leaving view of a container, while the next one is loading.
    ViewBusy,         ///< What tells that a view is loading.
    RubberBand,
    WorkspaceItemTitle,  ///< The title of an item on a workspace.
    WorkspaceScrollBars, ///< What moves a workspace's view.
};
constexpr std::size_t partCount = std::size_t(Part::WorkspaceScrollBars) + 1; // the last one

/// Names the QML file of a part, for all engines.
void setPartSource(Part part, const QUrl &file);

/// The parts' components, each compiled once per engine, which owns this.
class PartComponents : public QObject
{
public:
    static PartComponents &of(QQmlEngine *engine);

    /// Makes a part that is an item below `parent`, with further initial properties; null outside of QML.
    static QQuickItem *makeItem(Part part, QQuickItem &parent, QVariantMap properties = {});

    /// Shows or hides `item`, a part below `parent` that is made when it first shows, and null until then.
    static void show(QQuickItem *&item, Part part, QQuickItem &parent, bool shown);

    /// Makes a part as a child of `owner`; null, with a log line, when its file has a fault.
    QObject *make(Part part, QObject *owner, const QVariantMap &initialProperties);

private:
    explicit PartComponents(QQmlEngine *engine);

    QQmlEngine *m_engine;
    std::array<QQmlComponent *, partCount> m_components{}; // children
};

} // namespace tamble::client
