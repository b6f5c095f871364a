#pragma once

#include <QtCore/QList>
#include <QtGui/QCursor>

namespace tamble::client {

/// Cursors that hold for the whole application, each of its owner, of which the one that was added last is seen. They
/// go in any order, while the application knows but a stack.
class OverrideCursors
{
public:
    static OverrideCursors &instance();

    /// Adds the cursor of an owner, or changes it.
    void set(const void *owner, const QCursor &cursor);
    void remove(const void *owner);

private:
    struct Entry
    {
        const void *owner;
        QCursor cursor;
    };

    OverrideCursors() = default;
    QList<Entry>::iterator find(const void *owner);
    void show();

    QList<Entry> m_entries;
    QCursor m_shown;
    bool m_isShown = false;
};

} // namespace tamble::client
