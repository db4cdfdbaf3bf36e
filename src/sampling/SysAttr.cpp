#include "sampling/SysAttr.h"

#include <algorithm>
#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

namespace SysAttr {
namespace {

// Reads at most `cap` bytes; -1 on failure. O_NONBLOCK keeps a FIFO or other
// odd file planted in a snapshot from stalling the tick.
ssize_t readSmall(const char *path, char *buffer, size_t cap)
{
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
    if (p == end)
        return std::nullopt;
    quint64 value = 0;
    for (; p < end; ++p) {
        if (*p < '0' || *p > '9')
            return std::nullopt;
        if (value > (quint64(1) << 62)) // far beyond anything the kernel reports
            return std::nullopt;
        value = value * 10 + quint64(*p - '0');
    }
    return negative ? -qint64(value) : qint64(value);
}

std::optional<qint64> readLong(const QString &path)
{
    return readLong(native(path).constData());
}

std::optional<QByteArray> readBytes(const QString &path, qsizetype maxBytes)
{
    QByteArray data(maxBytes, Qt::Uninitialized);
    const ssize_t n = readSmall(native(path).constData(), data.data(), size_t(maxBytes));
    if (n < 0)
        return std::nullopt;
    data.truncate(n);
    return data;
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
    return trim ? line.trimmed() : line;
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

bool exists(const QString &path)
{
    return ::access(native(path).constData(), F_OK) == 0;
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
    DIR *d = ::opendir(native(dir).constData());
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

} // namespace SysAttr
