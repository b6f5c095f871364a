#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace tamble::client {

/// A table as spreadsheets exchange it: lines of texts with tabs between them. A text with a tab, a line break or a
/// quotation mark in it stands in quotation marks, each one in it doubled.
QString toTabSeparated(const QList<QStringList> &rows);

/// The rows of such a table. A line break at the very end begins no further row; a quotation mark that nothing closes
/// stands for itself.
QList<QStringList> fromTabSeparated(const QString &text);

} // namespace tamble::client
