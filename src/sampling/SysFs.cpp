#include "sampling/SysFs.h"

#include <QDir>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace SysFs {

bool readInto(const QString &path, QByteArray &buffer, qsizetype maxBytes)
{
    const QByteArray native = QFile::encodeName(path);
    const int fd = ::open(native.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0)
        return false;
    buffer.resize(0);
    qsizetype total = 0;
    bool ok = true;
    for (;;) {
        if (buffer.capacity() < total + 4096)
            buffer.reserve(std::max<qsizetype>(total * 2, total + 4096));
        buffer.resize(buffer.capacity());
        const qsizetype want = std::min<qsizetype>(buffer.size() - total, maxBytes - total);
        if (want <= 0)
            break;
        const ssize_t got = ::read(fd, buffer.data() + total, size_t(want));
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
    ::close(fd);
    buffer.resize(ok ? total : 0);
    return ok;
}

std::optional<QByteArray> readFile(const QString &path, qsizetype maxBytes)
{
    QByteArray data;
    if (!readInto(path, data, maxBytes))
        return std::nullopt;
    return data;
}

std::optional<QString> readText(const QString &path)
{
    const auto data = readFile(path, 64 * 1024);
    if (!data)
        return std::nullopt;
    const qsizetype nl = data->indexOf('\n');
    return QString::fromUtf8(nl < 0 ? *data : data->left(nl)).trimmed();
}

std::optional<qint64> readInteger(const QString &path)
{
    const auto text = readText(path);
    if (!text)
        return std::nullopt;
    bool ok = false;
    const qint64 v = text->toLongLong(&ok);
    if (!ok)
        return std::nullopt;
    return v;
}

QStringList listDir(const QString &path)
{
    return QDir(path).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot | QDir::Hidden,
                                QDir::Name);
}

QString linkTarget(const QString &path)
{
    const QFileInfo info(path);
    if (!info.isSymLink())
        return {};
    return info.symLinkTarget();
}

bool exists(const QString &path)
{
    return ::access(QFile::encodeName(path).constData(), F_OK) == 0;
}

std::optional<quint64> parseUnsigned(const char *begin, const char *end)
{
    while (begin < end && (*begin == ' ' || *begin == '\t'))
        ++begin;
    if (begin == end)
        return std::nullopt;
    quint64 v = 0;
    for (const char *p = begin; p < end; ++p) {
        if (*p < '0' || *p > '9')
            return std::nullopt;
        v = v * 10 + quint64(*p - '0');
    }
    return v;
}

KeptFile::KeptFile(const QString &path)
    : m_native(QFile::encodeName(path))
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
    // A kept descriptor can go stale (the device behind a /sys file went
    // away); one fresh open is tried before giving up.
    for (int attempt = 0; attempt < 2; ++attempt) {
        const bool reopened = m_fd < 0;
        if (m_fd < 0) {
            m_fd = ::open(m_native.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
            if (m_fd < 0)
                return false;
        }
        qsizetype total = 0;
        bool ok = true;
        for (;;) {
            if (buffer.capacity() < total + 4096)
                buffer.reserve(std::max<qsizetype>(total * 2, total + 4096));
            buffer.resize(buffer.capacity());
            const qsizetype want = std::min<qsizetype>(buffer.size() - total, maxBytes - total);
            if (want <= 0)
                break;
            const ssize_t got = ::pread(m_fd, buffer.data() + total, size_t(want), off_t(total));
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
