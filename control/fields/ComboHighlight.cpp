#include "fields/ComboHighlight.h"

#include "fields/ComboEntries.h"
#include "fields/RComboBoxBase.h"

#include <algorithm>
#include <utility>

namespace tamble::client {

ComboHighlight::ComboHighlight(const RComboBoxBase &box)
    : m_box(box)
{}

void ComboHighlight::begin(int entry, bool byKey)
{
    m_entry = entry;
    m_letters.clear();
    m_pointer.reset();
    m_pointerMayRest = byKey;
}

void ComboHighlight::move(int steps)
{
    const int direction = steps < 0 ? -1 : 1;
    const int last = m_box.count() - 1;
    const int target = m_entry < 0 ? (steps < 0 ? last : 0) : std::clamp(m_entry + steps, 0, last);
    // At the end of the list, or behind disabled ones: the nearest on the way there.
    if (!moveToEnabled(target, direction) && m_entry >= 0 && std::abs(steps) > 1)
        moveToEnabled(target, -direction);
}

void ComboHighlight::moveToFirst()
{
    moveToEnabled(0, 1);
}

void ComboHighlight::moveToLast()
{
    moveToEnabled(m_box.count() - 1, -1);
}

bool ComboHighlight::moveToEnabled(int start, int direction)
{
    for (int i = start; i >= 0 && i < m_box.count(); i += direction) {
        if (m_box.isEntryEnabled(i)) {
            m_entry = i;
            return true;
        }
    }
    return false;
}

void ComboHighlight::type(const QString &letters)
{
    const TypedLetters::Search search = m_letters.type(letters);
    find(search.beginning, search.mayStay ? m_entry : m_entry + 1);
}

void ComboHighlight::find(const QString &beginning, int start)
{
    const int count = m_box.count();
    int found = entryBeginningWith(m_box, beginning, start);
    const int first = found;
    while (found >= 0 && !m_box.isEntryEnabled(found)) {
        found = entryBeginningWith(m_box, beginning, (found + 1) % count);
        if (found == first)
            return;
    }
    if (found >= 0)
        m_entry = found;
}

void ComboHighlight::pointAt(int entry, const QPointF &place)
{
    const bool isFirst = !m_pointer;
    const bool moved = std::exchange(m_pointer, place) != place;
    if (moved && !(isFirst && m_pointerMayRest) && m_box.isEntryEnabled(entry))
        m_entry = entry;
}

} // namespace tamble::client
