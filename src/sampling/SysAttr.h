#pragma once
// Helpers for the small attribute files of /sys that the slow-tick readers
// (battery, sensors, power) read many times per tick: one open, one read into
// a stack buffer, one close. Nothing here throws or blocks on a regular file;
// a missing, unreadable or malformed file gives nullopt.

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

namespace SysAttr {

// The path in the file system's encoding, for the hot-path overloads.
inline QByteArray native(const QString &path) { return path.toLocal8Bit(); }

// The file's text as one decimal integer (blanks and one newline allowed
// around it; a sign is allowed).
std::optional<qint64> readLong(const char *nativePath);
inline std::optional<qint64> readLong(const QByteArray &nativePath) { return readLong(nativePath.constData()); }
std::optional<qint64> readLong(const QString &path);

// The first line without its newline. `trim` also strips surrounding blanks;
// keep them where they matter (SMC type names such as "ui8 ").
std::optional<QString> readLine(const QString &path, bool trim = true);

// The raw bytes, at most `maxBytes`.
std::optional<QByteArray> readBytes(const QString &path, qsizetype maxBytes = 4096);

// Writes `text` to an attribute; false when it cannot be written.
bool writeText(const QString &path, const QByteArray &text);

bool isWritable(const QString &path);
bool exists(const QString &path);

// Entry names of a folder (no "." or ".."), in natural order, so hwmon2
// comes before hwmon10; empty when the folder cannot be read.
QStringList entries(const QString &dir);

// Natural "less than": runs of digits compare by value.
bool naturalLess(const QString &a, const QString &b);

// For names like "temp12_input": the number between `prefix` and `suffix`,
// or -1 when the name has another shape.
int indexedName(const QString &name, QLatin1StringView prefix, QLatin1StringView suffix);

} // namespace SysAttr
