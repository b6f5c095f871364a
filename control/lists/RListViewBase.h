#pragma once

#include "base/ControlExport.h"
#include "base/SpokenControl.h"
#include "base/TypedLetters.h"
#include "lists/ListRows.h"
#include "lists/ListSelection.h"

#include <QtCore/QBasicTimer>
#include <QtCore/QElapsedTimer>
#include <QtCore/QPersistentModelIndex>
#include <QtGui/QColor>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/private/qquicklistview_p.h>

#include <functional>
#include <optional>

namespace tamble::client {

/// List whose rows can be selected: by clicks, with Ctrl and Shift, and by keys. The selection follows its rows when
/// the model changes, and rows that leave the model leave the selection.
///
/// A finger's tap selects like a click; where several rows can be selected it toggles its row, since fingers hold no
/// Ctrl. A press on a control inside a row counts as one on the row as well.
///
/// Rows are highlighted behind the delegate. A delegate with a writable `selected` or `hovered` of type bool is told
/// both, so that it can take the colours of texts on the highlight; any other has a frame around selected rows instead.
///
/// Keys: Up, Down, PageUp, PageDown, Home and End move to another row and select it, with Shift from the row where that
/// began, with Ctrl not at all. Space selects the current row, Ctrl+Space toggles it, Ctrl+A selects all rows and Esc
/// none. Enter activates the current row, the Menu key asks for its menu, and letters lead to the row that begins so.
class TAMBLE_CLIENT_CONTROL_EXPORT RListViewBase : public QQuickListView,
                                                   public SpokenControl,
                                                   private QAccessible::ActivationObserver
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RListViewBase)
    Q_PROPERTY(QString textRole READ textRole WRITE setTextRole NOTIFY textRoleChanged FINAL)
    Q_PROPERTY(SelectionMode selectionMode READ selectionMode WRITE setSelectionMode NOTIFY selectionModeChanged FINAL)
    Q_PROPERTY(
        QList<int> selectedIndexes READ selectedIndexes WRITE setSelectedIndexes NOTIFY selectedIndexesChanged FINAL)
    /// What the list is about, for people who cannot see it.
    Q_PROPERTY(QString label MEMBER m_label NOTIFY labelChanged FINAL)
    /// Text shown while there is no row.
    Q_PROPERTY(QString placeholderText MEMBER m_placeholderText NOTIFY placeholderTextChanged FINAL)
    /// Whether letters lead to a row; true by default.
    Q_PROPERTY(bool typeAhead MEMBER m_typeAhead NOTIFY typeAheadChanged FINAL)
    /// Whether the arrows lead from the last row to the first one, and back; false by default.
    Q_PROPERTY(bool loop READ isWrapEnabled WRITE setWrapEnabled NOTIFY keyNavigationWrapsChanged FINAL)
    Q_PROPERTY(bool hoverEnabled READ isHoverEnabled WRITE setHoverEnabled NOTIFY hoverEnabledChanged FINAL)
    /// Of the style: `ssColor` of texts; of the highlight `ssBackgroundItemSelected` and `ssForegroundItemSelected`,
    /// where the pointer is `ssBackgroundItemHover` and `ssForegroundItemHover`.
    Q_PROPERTY(QColor ssColor MEMBER m_ssColor NOTIFY ssColorChanged FINAL)
    Q_PROPERTY(
        QColor ssBackgroundItemSelected MEMBER m_ssBackgroundItemSelected NOTIFY ssBackgroundItemSelectedChanged FINAL)
    Q_PROPERTY(
        QColor ssForegroundItemSelected MEMBER m_ssForegroundItemSelected NOTIFY ssForegroundItemSelectedChanged FINAL)
    Q_PROPERTY(QColor ssBackgroundItemHover MEMBER m_ssBackgroundItemHover NOTIFY ssBackgroundItemHoverChanged FINAL)
    Q_PROPERTY(QColor ssForegroundItemHover MEMBER m_ssForegroundItemHover NOTIFY ssForegroundItemHoverChanged FINAL)

public:
    enum SelectionMode : int {
        None = ListSelection::None,         ///< Rows can be moved to and activated only.
        Single = ListSelection::Single,     ///< One row, or none.
        Multiple = ListSelection::Multiple, ///< Any rows.
    };
    Q_ENUM(SelectionMode)

    explicit RListViewBase(QQuickItem *parent = nullptr);
    ~RListViewBase() override;

    /// The role of the model that rows without a delegate show; "display" by default. Of maps and objects it is a
    /// member, and simple values are shown as they are.
    QString textRole() const { return m_textRole; }
    void setTextRole(const QString &role);
    /// How many rows can be selected; `Single` by default.
    SelectionMode selectionMode() const { return SelectionMode(m_selection.mode()); }
    void setSelectionMode(SelectionMode mode);
    /// The selected rows in ascending order, numbered from 0. Rows that are not there are left out. What the user
    /// selects stays until the page sets other rows, or a bound expression changes.
    QList<int> selectedIndexes() const { return m_selection.rows().rows(); }
    void setSelectedIndexes(const QList<int> &rows);
    /// Whether the row below the pointer is highlighted.
    bool isHoverEnabled() const { return acceptHoverEvents(); }
    void setHoverEnabled(bool enabled);

    /// Selects this row and no other.
    Q_INVOKABLE void select(int index);
    /// Selects a row, or no longer.
    Q_INVOKABLE void toggle(int index);
    /// Selects the rows from one to the other; where there can be one only, the second one.
    Q_INVOKABLE void selectRange(int from, int to);
    /// Selects nothing.
    Q_INVOKABLE void clearSelection();
    /// Whether a row is selected.
    Q_INVOKABLE bool isSelected(int index) const { return m_selection.rows().contains(index); }

    /// A tool presses a row.
    void press(const QQuickItem &row);

    QAccessible::Role spokenRole() const override { return QAccessible::List; }
    QString spokenName() const override { return m_label.isEmpty() ? m_placeholderText : m_label; }
    void addSpokenStates(QAccessible::State &state) const override;

Q_SIGNALS:
    void textRoleChanged();
    void selectionModeChanged();
    void selectedIndexesChanged();
    void labelChanged();
    void placeholderTextChanged();
    void typeAheadChanged();
    void hoverEnabledChanged();
    void ssColorChanged();
    void ssBackgroundItemSelectedChanged();
    void ssForegroundItemSelectedChanged();
    void ssBackgroundItemHoverChanged();
    void ssForegroundItemHoverChanged();
    /// The user wants to use a row: by Enter, a double click or a double tap.
    void activated(int index);
    /// The user has selected other rows: all that are selected now.
    void selectionEdited(const QVariant &indexes);
    /// A right click, a long press or the Menu key, on a row that is then selected, or on none: -1. `position` is in
    /// the list's coordinates.
    void contextMenuRequested(int index, const QPointF &position);

protected:
    void componentComplete() override;
    void initItem(int index, QObject *item) override;
    void updatePolish() override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    bool childMouseEventFilter(QQuickItem *item, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseUngrabEvent() override;
    void touchEvent(QTouchEvent *event) override;
    void touchUngrabEvent() override;
    void hoverEnterEvent(QHoverEvent *event) override;
    void hoverMoveEvent(QHoverEvent *event) override;
    void hoverLeaveEvent(QHoverEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    /// A press that may become a click, a double tap or a long press.
    struct Press
    {
        QPointF at;   ///< In the list's coordinates.
        int row = -1; ///< Followed while the model changes.
        bool isOpen = false;
        bool byFinger = false;
    };

    void accessibilityActiveChanged(bool active) override;
    void takeModel();
    void onRowsChanged(const std::vector<RowChange> &leaving, const std::vector<RowChange> &coming);
    void onRowsReplaced();
    void onAboutToBeSorted();
    void onSorted();
    void onCurrentIndexChanged();
    bool isTakingModel() const { return m_knownModel != model(); }

    template <typename Action>
    void forVisibleRows(Action action);
    void introduceRow(int row, QQuickItem &item);
    void showRow(int row, QQuickItem &item);
    void showMark(QQuickItem &item, bool visible, bool selected, bool filled);
    using SelectionChange = std::function<void(ListSelection &)>;
    bool changeSelection(const SelectionChange &change);
    void editSelection(int current, const SelectionChange &change);

    bool handleKey(const QKeyEvent &event);
    std::optional<int> targetOf(const QKeyEvent &event) const;
    int rowsPerPage() const;
    void moveTo(int row, Qt::KeyboardModifiers modifiers);
    bool activateCurrent(const QKeyEvent &event);
    void find(const QString &letters);
    int rowAt(const QPointF &place);
    void beginPress(const QPointF &place, bool byFinger);
    void followPress(const QPointF &place);
    void endPress(const QPointF &place, Qt::KeyboardModifiers modifiers);
    void cancelPress();
    void click(int row, Qt::KeyboardModifiers modifiers, bool byFinger);
    void requestMenu(int row, const QPointF &place);
    QPointF menuPlaceOfCurrent() const;
    void doubleClick(const QPointF &place);
    void pointAt(std::optional<QPointF> place);
    bool findHoveredRow();

    QString m_textRole = QStringLiteral("display");
    QString m_label;
    QString m_placeholderText;
    QColor m_ssColor;
    QColor m_ssBackgroundItemSelected;
    QColor m_ssForegroundItemSelected;
    QColor m_ssBackgroundItemHover;
    QColor m_ssForegroundItemHover;
    QVariant m_knownModel; ///< The page's model whose rows these are.
    ListRows m_rows;
    ListSelection m_selection;
    TypedLetters m_letters;
    Press m_press;
    QBasicTimer m_longPress;
    QElapsedTimer m_lastTap;
    int m_lastTapped = -1; ///< Row of that.
    int m_currentRow = -1; ///< Like currentIndex, which the view brings up to date later.
    int m_formerRow = -1;  ///< Where the current row was that has left the model.
    int m_hoveredRow = -1;
    std::optional<QPointF> m_pointer;               ///< In the list's coordinates, while it is above.
    QList<QPersistentModelIndex> m_sortedSelection; ///< These two while the model sorts its rows.
    QPersistentModelIndex m_sortedCurrent;
    bool m_typeAhead = true;
};

} // namespace tamble::client
