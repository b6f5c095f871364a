#include "pointer/OverrideCursors.h"

#include <QtGui/QGuiApplication>

#include <algorithm>

namespace tamble::client {

OverrideCursors &OverrideCursors::instance()
{
    static OverrideCursors cursors;
    return cursors;
}

void OverrideCursors::set(const void *owner, const QCursor &cursor)
{
    if (const auto entry = find(owner); entry != m_entries.end())
        entry->cursor = cursor;
    else
        m_entries.append({owner, cursor});
    show();
}

void OverrideCursors::remove(const void *owner)
{
    if (const auto entry = find(owner); entry != m_entries.end()) {
        m_entries.erase(entry);
        show();
    }
}

QList<OverrideCursors::Entry>::iterator OverrideCursors::find(const void *owner)
{
    return std::find_if(m_entries.begin(), m_entries.end(),
                        [owner](const Entry &entry) { return entry.owner == owner; });
}

/// Takes one place in the application's stack at most, so that it is given back once, whatever was removed before.
void OverrideCursors::show()
{
    if (!qGuiApp)
        return;
    const bool isShown = std::exchange(m_isShown, !m_entries.isEmpty());
    if (m_entries.isEmpty()) {
        if (isShown)
            QGuiApplication::restoreOverrideCursor();
        return;
    }
    const QCursor &cursor = m_entries.constLast().cursor;
    const QCursor *top = QGuiApplication::overrideCursor();
    if (!isShown)
        QGuiApplication::setOverrideCursor(cursor);
    else if (top && *top == m_shown) // one that somebody else has put above stays
        QGuiApplication::changeOverrideCursor(cursor);
    else
        return;
    m_shown = cursor;
}

} // namespace tamble::client
