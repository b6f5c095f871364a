#pragma once

#include "base/TypedLetters.h"
#include "lists/RowByKey.h"

#include <QtCore/QPointF>
#include <QtCore/Qt>

class QKeyEvent;

namespace tamble::client {

class RListViewBase;

/// What keys do to a list: they move through it, select, activate, ask for the menu, and look for a row by its letters.
class ListKeys
{
public:
    explicit ListKeys(RListViewBase &list);

    /// False for a key that is left to others.
    bool handle(const QKeyEvent &event);
    /// The next letter begins another search.
    void forgetLetters() { m_letters.clear(); }

private:
    bool select(const QKeyEvent &event);
    bool find(const QKeyEvent &event);
    ListPosition position() const;
    QPointF menuPlace() const;
    void moveTo(int row, Qt::KeyboardModifiers modifiers);

    RListViewBase &m_list;
    TypedLetters m_letters;
};

} // namespace tamble::client
