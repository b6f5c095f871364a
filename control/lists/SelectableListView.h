#pragma once

#include "base/ControlExport.h"
#include "lists/ListRows.h"
#include "lists/ListSelection.h"

#include <QtCore/QList>
#include <QtCore/QPersistentModelIndex>
#include <QtCore/QVariant>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/private/qquicklistview_p.h>

#include <functional>
#include <memory>

namespace tamble::client {

/// List of whose rows some are selected. The selection and the current row follow their rows when the model changes,
/// and rows that leave the model leave the selection.
class TAMBLE_CLIENT_CONTROL_EXPORT SelectableListView : public QQuickListView
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(SelectionMode selectionMode READ selectionMode WRITE setSelectionMode NOTIFY selectionModeChanged FINAL)
    Q_PROPERTY(
        QList<int> selectedIndexes READ selectedIndexes WRITE setSelectedIndexes NOTIFY selectedIndexesChanged FINAL)

public:
    enum SelectionMode : int {
        None = ListSelection::None,         ///< Rows can be moved to and activated only.
        Single = ListSelection::Single,     ///< One row, or none.
        Multiple = ListSelection::Multiple, ///< Any rows.
    };
    Q_ENUM(SelectionMode)

    explicit SelectableListView(QQuickItem *parent = nullptr);
    ~SelectableListView() override;

    /// How many rows can be selected; `Single` by default.
    SelectionMode selectionMode() const { return SelectionMode(m_selection.mode()); }
    void setSelectionMode(SelectionMode mode);
    /// The selected rows in ascending order, numbered from 0. Rows that are not there are left out. What the user
    /// selects stays until the page sets other rows, or a bound expression changes.
    QList<int> selectedIndexes() const { return m_selection.rows().rows(); }
    void setSelectedIndexes(const QList<int> &rows);

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

    /// Like currentIndex, which the view brings up to date later.
    int currentRow() const { return m_currentRow; }
    /// Where the current row was that has left the model; -1 while there is another.
    int formerRow() const { return m_formerRow; }
    bool hasSelection() const { return !m_selection.rows().isEmpty(); }
    using SelectionChange = std::function<void(ListSelection &)>;
    /// The user, who is then at the row `current`, selects others. The list may be gone by then.
    void editSelection(int current, const SelectionChange &change);

Q_SIGNALS:
    void selectionModeChanged();
    void selectedIndexesChanged();
    /// The user has selected other rows: all that are selected now.
    void selectionEdited(const QVariant &indexes);

protected:
    const ListRows &listRows() const { return m_rows; }
    /// Whether the view has a model of the page whose rows are not known yet.
    bool isTakingModel() const { return m_knownModel != model(); }

    /// The rows in view are another model's.
    virtual void introduceRows() = 0;
    /// Whether they are selected is to be seen at once.
    virtual void showRows() = 0;
    /// Rows have left, come or moved, are all others, or stand in another order.
    virtual void rowsChange(std::span<const RowChange> leaving, std::span<const RowChange> coming) = 0;
    virtual void rowsReplacement() = 0;
    virtual void rowsSorting() = 0;

    void componentComplete() override;

private:
    /// What is found again after the model has sorted its rows.
    struct BeforeSorting
    {
        QList<QPersistentModelIndex> selection; ///< None when that stays as it is.
        QPersistentModelIndex current;
    };

    void takeModel();
    void onRowsChanged(const std::vector<RowChange> &leaving, const std::vector<RowChange> &coming);
    void onRowsReplaced();
    void onAboutToBeSorted();
    void onSorted();
    void onCurrentIndexChanged();
    bool changeSelection(const SelectionChange &change);

    QVariant m_knownModel; ///< The page's model whose rows these are.
    ListRows m_rows;
    ListSelection m_selection;
    std::unique_ptr<BeforeSorting> m_beforeSorting; ///< While the model sorts.
    int m_currentRow = -1;
    int m_formerRow = -1;
};

} // namespace tamble::client
