#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>

class QQmlChangeSet;
class QQuickComboBox;

namespace tamble::client {

// What the model of a combo box says about its entries, which are numbered from 0; and where they are found. Searches
// read one entry after the other and keep nothing.

/// What stands for an entry: its `valueRole`, or else its text.
QVariant entryValue(const QQuickComboBox &box, int index);

/// Data of an entry; not valid for an empty role.
QVariant entryData(const QQuickComboBox &box, int index, const QString &role);

/// Whether a value names anything: undefined, null and NaN do not.
bool namesAnything(const QVariant &value);

/// The first entry with a value, -1 for none; `likely` is looked at before all others.
int entryWithValue(const QQuickComboBox &box, const QVariant &value, int likely);

/// The first entry from `start` on, going on at the beginning, whose text begins so in either case; -1 for none.
int entryBeginningWith(const QQuickComboBox &box, const QString &beginning, int start);

/// Where an entry stands after a change of the model; -1 when it is gone.
int entryAfter(const QQmlChangeSet &change, int index);

} // namespace tamble::client
