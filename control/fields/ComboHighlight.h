#pragma once

#include "base/TypedLetters.h"

#include <QtCore/QPointF>
#include <QtCore/QString>

#include <optional>

namespace tamble::client {

class RComboBoxBase;

/// The entry of an open list that Enter would choose, and where keys, letters and the pointer bring it. Entries that
/// cannot be chosen are passed over.
class ComboHighlight
{
public:
    explicit ComboHighlight(const RComboBoxBase &box);

    /// The entry, -1 for none.
    int entry() const { return m_entry; }
    void setEntry(int entry) { m_entry = entry; }

    /// The list opens at an entry. Opened by a key, it may come to lie below a pointer that rests.
    void begin(int entry, bool byKey);
    /// Goes so many entries down, or up, as far as there are any.
    void move(int steps);
    void moveToFirst();
    void moveToLast();
    /// To the entry that is looked for by typing.
    void type(const QString &letters);
    /// Whether a letter is part of what is being looked for, as a blank may be.
    bool isTyping() const { return m_letters.isUnderWay(); }
    /// To the entry that begins so; stays when none does.
    void find(const QString &beginning, int start);
    /// To an entry below the pointer, unless it is the entry that has moved.
    void pointAt(int entry, const QPointF &place);

private:
    bool moveToEnabled(int start, int direction);

    const RComboBoxBase &m_box;
    TypedLetters m_letters;
    std::optional<QPointF> m_pointer; ///< Where it was last over the list, in the scene.
    int m_entry = -1;
    bool m_pointerMayRest = false;
};

} // namespace tamble::client
