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

} // namespace SysFs
