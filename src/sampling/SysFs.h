#pragma once
// Small, cheap readers for /proc and /sys files, and the one place the
// readers touch those trees. Nothing here throws or blocks for long: a
// missing or unreadable file gives nullopt (or an empty list), reads are
// capped in size, and O_NONBLOCK keeps a FIFO planted in a snapshot from
// stalling the tick.

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

// The path in the file system's encoding, for the hot-path overloads.
inline QByteArray native(const QString &path) { return path.toLocal8Bit(); }

// The file's text as one decimal integer (blanks and one newline allowed
// around it; a sign is allowed). A number beyond the signed 64-bit range
// (the kernel's all-ones "unknown", for one) is refused.
std::optional<qint64> readLong(const char *nativePath);
inline std::optional<qint64> readLong(const QByteArray &nativePath) { return readLong(nativePath.constData()); }
std::optional<qint64> readLong(const QString &path);

// The first line without its newline (at most 512 bytes are read). `trim`
// makes it text for people: surrounding blanks stripped and control
// characters taken out (see printable). Without it the line comes back as
// the file has it, for codes where every byte counts (SMC type names such
// as "ui8 ").
std::optional<QString> readLine(const QString &path, bool trim = true);

// `text` without control characters (C0, DEL and C1), so that a name taken
// from the kernel can be printed to a terminal as it stands: tabs and line
// breaks become spaces, the rest are dropped.
QString printable(const QString &text);

// Writes `text` to an attribute; false when it cannot be written.
bool writeText(const QString &path, const QByteArray &text);
bool isWritable(const QString &path);

// Entry names of a folder (no "." or ".."), in natural order, so hwmon2
// comes before hwmon10; empty when the folder cannot be read.
QStringList entries(const QString &dir);

// Target of a symbolic link as written in the link; empty when `path` is
// not a link.
QString linkTarget(const QString &path);

// Whether `path` exists, following links.
bool exists(const QString &path);
// Whether `path` itself exists, without following a final link (a device
// link counts even when what it points at is not there).
bool linkOrFileExists(const QString &path);

// value * 10 + the decimal digit c; false, leaving value undefined, when
// that takes more than 64 bits. Every decimal parser here grows its numbers
// through this, so none of them ever wraps.
inline bool appendDigit(quint64 &value, char c)
{
    return !__builtin_mul_overflow(value, 10u, &value) && !__builtin_add_overflow(value, quint64(c - '0'), &value);
}

// Parses a decimal unsigned integer from [begin, end); nullopt on garbage
// and on numbers beyond 64 bits.
std::optional<quint64> parseUnsigned(const char *begin, const char *end);

// A file that is read again on every tick. Under /proc and /sys the
// descriptor stays open and every read starts over at offset 0, which makes
// the kernel produce the contents afresh and saves the path lookup; anywhere
// else (fixture trees, snapshots) the file is opened anew each time, since
// it may have been replaced in between.
class KeptFile {
public:
    KeptFile() = default;
    explicit KeptFile(const QString &path);
    ~KeptFile();
    KeptFile(KeptFile &&other) noexcept;
    KeptFile &operator=(KeptFile &&other) noexcept;
    KeptFile(const KeptFile &) = delete;
    KeptFile &operator=(const KeptFile &) = delete;

    // The whole file into `buffer` (reused; up to `maxBytes`). False, with
    // an empty buffer, when it cannot be read.
    bool read(QByteArray &buffer, qsizetype maxBytes = 1 << 20);

private:
    void close();

    QByteArray m_native;
    int m_fd = -1;
    bool m_keep = false;
};

// Natural "less than": runs of digits compare by value.
bool naturalLess(const QString &a, const QString &b);

// For names like "temp12_input": the number between `prefix` and `suffix`,
// or -1 when the name has another shape.
int indexedName(const QString &name, QLatin1StringView prefix, QLatin1StringView suffix);

// Every path handed to the functions above (and to KeptFile) is passed to
// the recorder while one is set. `sulkbox capture` uses it to save exactly
// the files the readers read. Set it before reading starts, from one thread.
using Recorder = void (*)(const char *nativePath);
void setRecorder(Recorder recorder);

} // namespace SysFs
