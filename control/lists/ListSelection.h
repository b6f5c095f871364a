#pragma once

#include "lists/RowRanges.h"

namespace tamble::client {

/// The selected rows of a list, and the row from which Shift extends them.
class ListSelection
{
public:
    enum Mode {
        None,
        Single,
        Multiple,
    };

    Mode mode() const { return m_mode; }
    /// What the mode does not allow is no longer selected.
    void setMode(Mode mode);
    const RowRanges &rows() const { return m_rows; }
    /// Takes as much of `rows` as the mode allows: the first one, or none.
    void setRows(const RowRanges &rows);

    /// Selects this row and no other.
    void select(int row);
    /// Selects a row in addition, or no longer. What is selected otherwise stays, unless it can be one only.
    void toggle(int row);
    /// Selects from the last row that was selected or toggled to this one; `keepsOthers` leaves selected what is
    /// elsewhere. Without such a row `from` is it.
    void extendTo(int row, int from, bool keepsOthers);
    /// Selects from one row to the other, whichever is lower. Where it can be one only, that is `to`.
    void selectRange(int from, int to);
    void clear();

    /// The list has changed; see followed().
    void follow(std::span<const RowChange> leaving, std::span<const RowChange> coming);
    /// The list has other rows, among which `rows` are those that were selected.
    void replaceRows(const RowRanges &rows);

    friend bool operator==(const ListSelection &, const ListSelection &) = default;

private:
    RowRanges m_rows;
    int m_anchor = -1;
    Mode m_mode = Single;
};

} // namespace tamble::client
