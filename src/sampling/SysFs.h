#pragma once
// Small, cheap readers for /proc and /sys files. Nothing here throws or
// blocks for long: a missing or unreadable file gives nullopt (or an empty
// list), and reads are capped in size.

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

namespace SysFs {

// The whole file (up to `maxBytes`), or nullopt when it cannot be read.
std::optional<QByteArray> readFile(const QString &path, qsizetype maxBytes = 1 << 20);

// Same, into a caller-owned buffer that is reused between calls (no
// allocation on the hot path once the buffer has grown). Returns false when
// the file cannot be read.
bool readInto(const QString &path, QByteArray &buffer, qsizetype maxBytes = 1 << 20);

// The first line, trimmed.
std::optional<QString> readText(const QString &path);

// The file's text parsed as a decimal integer (surrounding blanks allowed).
std::optional<qint64> readInteger(const QString &path);

// Entry names of a folder (no "." or ".."), sorted; empty when unreadable.
QStringList listDir(const QString &path);

// Target of a symbolic link, resolved against the link's folder (not
// following further links); empty when `path` is not a link.
QString linkTarget(const QString &path);

bool exists(const QString &path);

// Parses a decimal unsigned integer from [begin, end); nullopt on garbage.
std::optional<quint64> parseUnsigned(const char *begin, const char *end);

} // namespace SysFs
