#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QUrl>

#include <optional>

namespace tamble::client {

/// No sheet is longer. A longer file was named by mistake, and one without end would fill the memory.
constexpr qint64 maximumSheetBytes = qint64(16) << 20;

/// The path of the file or resource behind `url`, which may be relative to `baseUrl`; empty when it is neither.
QString sheetPath(const QUrl &url, const QUrl &baseUrl);

/// Whether there is a sheet to read: a regular file or a resource. A pipe or a device is none, for reading it may never
/// end.
bool isSheetFile(const QString &path);

/// The bytes of the sheet at `path`, or one more than maximumSheetBytes of a longer file. Nothing when there is no
/// sheet or it cannot be opened; `error` then tells why.
std::optional<QByteArray> readSheetFile(const QString &path, QString *error = nullptr);

} // namespace tamble::client
