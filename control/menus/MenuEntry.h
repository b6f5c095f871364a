#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVariant>

namespace tamble::client {

/// What a page says about one entry of a menu.
struct MenuEntry
{
    QString text;
    QString iconKey;
    QString shortcut; ///< As it is shown.
    bool enabled = true;
    bool checkable = false;
    bool checked = false;
    bool separator = false; ///< A line, not an entry.
    QVariantList items;     ///< Those of a sub-menu.
    QVariant source;        ///< The map that the page gave.
};

/// The entries of a list of maps with the names of the members above; other names are left alone, and a text in place
/// of a map is an entry with that text.
QList<MenuEntry> menuEntries(const QVariant &model);

/// A key as people write it, such as "Ctrl+C", from a text or the number of a standard key; empty for no key.
QString shortcutText(const QVariant &shortcut);

} // namespace tamble::client
