#include "sampling/SysFs.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <limits>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace SysFs {

namespace {

std::atomic<Recorder> g_recorder{nullptr};

inline void note(const char *nativePath)
{
    if (const Recorder r = g_recorder.load(std::memory_order_relaxed))
        r(nativePath);
}

} // namespace

namespace {

// Reads at most `cap` bytes; -1 on failure. O_NONBLOCK keeps a FIFO or other
// odd file planted in a snapshot from stalling the tick.
ssize_t readSmall(const char *path, char *buffer, size_t cap)
{
    note(path);
    const int fd = ::open(path, O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0)
        return -1;
    size_t total = 0;
    while (total < cap) {
        const ssize_t got = ::read(fd, buffer + total, cap - total);
        if (got < 0) {
            if (errno == EINTR)
                continue;
            ::close(fd);
            return -1;
        }
        if (got == 0)
            break;
        total += size_t(got);
    }
    ::close(fd);
    return ssize_t(total);
}

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

} // namespace

std::optional<qint64> readLong(const char *nativePath)
{
    char buffer[64];
    const ssize_t n = readSmall(nativePath, buffer, sizeof buffer);
    if (n <= 0 || size_t(n) == sizeof buffer) // empty, or too long to be one number
        return std::nullopt;
    const char *p = buffer;
    const char *end = buffer + n;
    while (p < end && isBlank(*p))
        ++p;
    while (end > p && isBlank(end[-1]))
        --end;
    bool negative = false;
    if (p < end && (*p == '-' || *p == '+')) {
        negative = *p == '-';
        ++p;
    }
    if (p == end || isBlank(*p)) // no blank between the sign and the digits
        return std::nullopt;
    // The magnitude may reach 2^63 only for the most negative value; beyond
    // a signed 64-bit number it is refused, never wrapped.
    const quint64 limit = negative ? quint64(1) << 63 : (quint64(1) << 63) - 1;
    const std::optional<quint64> value = parseUnsigned(p, end);
    if (!value || *value > limit)
        return std::nullopt;
    if (negative)
        return *value == quint64(1) << 63 ? std::numeric_limits<qint64>::min() : -qint64(*value);
    return qint64(*value);
}

std::optional<qint64> readLong(const QString &path)
{
    return readLong(native(path).constData());
}

std::optional<QString> readLine(const QString &path, bool trim)
{
    char buffer[512];
    const ssize_t n = readSmall(native(path).constData(), buffer, sizeof buffer);
    if (n < 0)
        return std::nullopt;
    qsizetype len = 0;
    while (len < n && buffer[len] != '\n' && buffer[len] != '\0')
        ++len;
    const QString line = QString::fromUtf8(buffer, len);
    return trim ? printable(line).trimmed() : line;
}

QString printable(const QString &text)
{
    const auto isControl = [](QChar c) { return c.unicode() < 0x20 || (c.unicode() >= 0x7f && c.unicode() <= 0x9f); };
    if (std::none_of(text.cbegin(), text.cend(), isControl))
        return text;
    QString out;
    out.reserve(text.size());
    for (const QChar c : text) {
        if (c == u'\t' || c == u'\n' || c == u'\r')
            out.append(u' ');
        else if (!isControl(c))
            out.append(c);
    }
    return out;
}

bool writeText(const QString &path, const QByteArray &text)
{
    const int fd = ::open(native(path).constData(), O_WRONLY | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0)
        return false;
    const ssize_t n = ::write(fd, text.constData(), size_t(text.size()));
    ::close(fd);
    return n == text.size();
}

bool isWritable(const QString &path)
{
    return ::access(native(path).constData(), W_OK) == 0;
}

bool naturalLess(const QString &a, const QString &b)
{
    qsizetype i = 0, j = 0;
    while (i < a.size() && j < b.size()) {
        if (a[i].isDigit() && b[j].isDigit()) {
            qsizetype ie = i, je = j;
            while (ie < a.size() && a[ie].isDigit())
                ++ie;
            while (je < b.size() && b[je].isDigit())
                ++je;
            const qulonglong x = a.mid(i, ie - i).toULongLong();
            const qulonglong y = b.mid(j, je - j).toULongLong();
            if (x != y)
                return x < y;
            i = ie;
            j = je;
            continue;
        }
        if (a[i] != b[j])
            return a[i] < b[j];
        ++i;
        ++j;
    }
    return a.size() - i < b.size() - j;
}

QStringList entries(const QString &dir)
{
    QStringList names;
    const QByteArray path = native(dir);
    note(path.constData());
    DIR *d = ::opendir(path.constData());
    if (!d)
        return names;
    while (const dirent *e = ::readdir(d)) {
        if (e->d_name[0] == '.' && (e->d_name[1] == '\0' || (e->d_name[1] == '.' && e->d_name[2] == '\0')))
            continue;
        names.append(QString::fromLocal8Bit(e->d_name));
    }
    ::closedir(d);
    std::sort(names.begin(), names.end(), naturalLess);
    return names;
}

int indexedName(const QString &name, QLatin1StringView prefix, QLatin1StringView suffix)
{
    if (!name.startsWith(prefix) || !name.endsWith(suffix))
        return -1;
    const qsizetype len = name.size() - prefix.size() - suffix.size();
    if (len <= 0 || len > 6)
        return -1;
    int value = 0;
    for (qsizetype k = prefix.size(); k < prefix.size() + len; ++k) {
        if (!name[k].isDigit())
            return -1;
        value = value * 10 + name[k].digitValue();
    }
    return value;
}


// Reads the whole of `fd` from offset 0 into `buffer`. pread from 0 makes
// the kernel produce a /proc or /sys file afresh, also on a kept descriptor.
bool readAllFrom(int fd, QByteArray &buffer, qsizetype maxBytes)
{
    qsizetype total = 0;
    bool ok = true;
    for (;;) {
        if (buffer.capacity() < total + 4096)
            buffer.reserve(std::max<qsizetype>(total * 2, total + 4096));
        buffer.resize(buffer.capacity());
        const qsizetype want = std::min<qsizetype>(buffer.size() - total, maxBytes - total);
        if (want <= 0)
            break;
        const ssize_t got = ::pread(fd, buffer.data() + total, size_t(want), off_t(total));
        if (got < 0) {
            if (errno == EINTR)
                continue;
            ok = false;
            break;
        }
        if (got == 0)
            break;
        total += got;
    }
    buffer.resize(ok ? total : 0);
    return ok;
}

bool readInto(const QString &path, QByteArray &buffer, qsizetype maxBytes)
{
    const QByteArray native = SysFs::native(path);
    note(native.constData());
    buffer.resize(0);
    const int fd = ::open(native.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0)
        return false;
    const bool ok = readAllFrom(fd, buffer, maxBytes);
    ::close(fd);
    return ok;
}

std::optional<QByteArray> readFile(const QString &path, qsizetype maxBytes)
{
    QByteArray data;
    if (!readInto(path, data, maxBytes))
        return std::nullopt;
    return data;
}

QString linkTarget(const QString &path)
{
    const QByteArray p = native(path);
    note(p.constData());
    char target[4096];
    const ssize_t n = ::readlink(p.constData(), target, sizeof target);
    if (n <= 0 || size_t(n) >= sizeof target)
        return {};
    return QString::fromLocal8Bit(target, n);
}

bool exists(const QString &path)
{
    const QByteArray p = native(path);
    note(p.constData());
    return ::access(p.constData(), F_OK) == 0;
}

bool linkOrFileExists(const QString &path)
{
    const QByteArray p = native(path);
    note(p.constData());
    struct stat st {};
    return ::lstat(p.constData(), &st) == 0;
}

void setRecorder(Recorder recorder)
{
    g_recorder.store(recorder, std::memory_order_release);
}

std::optional<quint64> parseUnsigned(const char *begin, const char *end)
{
    while (begin < end && (*begin == ' ' || *begin == '\t'))
        ++begin;
    if (begin == end)
        return std::nullopt;
    quint64 v = 0;
    for (const char *p = begin; p < end; ++p) {
        if (*p < '0' || *p > '9' || !appendDigit(v, *p))
            return std::nullopt;
    }
    return v;
}

KeptFile::KeptFile(const QString &path)
    : m_native(native(path))
    , m_keep(m_native.startsWith("/proc/") || m_native.startsWith("/sys/"))
{
}

KeptFile::~KeptFile()
{
    close();
}

KeptFile::KeptFile(KeptFile &&other) noexcept
    : m_native(std::move(other.m_native))
    , m_fd(std::exchange(other.m_fd, -1))
    , m_keep(other.m_keep)
{
}

KeptFile &KeptFile::operator=(KeptFile &&other) noexcept
{
    if (this != &other) {
        close();
        m_native = std::move(other.m_native);
        m_fd = std::exchange(other.m_fd, -1);
        m_keep = other.m_keep;
    }
    return *this;
}

void KeptFile::close()
{
    if (m_fd >= 0)
        ::close(m_fd);
    m_fd = -1;
}

bool KeptFile::read(QByteArray &buffer, qsizetype maxBytes)
{
    buffer.resize(0);
    if (m_native.isEmpty())
        return false;
    note(m_native.constData());
    // A kept descriptor can go stale (the device behind a /sys file went
    // away); one fresh open is tried before giving up.
    for (int attempt = 0; attempt < 2; ++attempt) {
        const bool reopened = m_fd < 0;
        if (m_fd < 0) {
            m_fd = ::open(m_native.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
            if (m_fd < 0)
                return false;
        }
        const bool ok = readAllFrom(m_fd, buffer, maxBytes);
        if (!m_keep || !ok)
            close();
        if (ok)
            return true;
        if (reopened)
            return false;
    }
    return false;
}

} // namespace SysFs
