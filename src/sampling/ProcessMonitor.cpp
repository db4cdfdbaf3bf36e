#include "sampling/ProcessMonitor.h"

#include "sampling/SysFs.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <chrono>
#include <cstring>
#include <thread>

#include <dirent.h>
#include <fcntl.h>
#include <time.h>
#include <unistd.h>

namespace {

double monotonicSeconds()
{
    timespec ts{};
    clock_gettime(CLOCK_MONOTONIC, &ts);
    return double(ts.tv_sec) + double(ts.tv_nsec) / 1e9;
}

void realSleep(double seconds)
{
    std::this_thread::sleep_for(std::chrono::duration<double>(seconds));
}

// Fields of /proc/[pid]/stat counted from the state field (the first after
// the command name): utime, stime, starttime, rss.
constexpr int fieldUtime = 11;
constexpr int fieldStime = 12;
constexpr int fieldStartTime = 19;
constexpr int fieldRss = 21;

bool allDigits(const char *s)
{
    if (!*s)
        return false;
    for (; *s; ++s)
        if (*s < '0' || *s > '9')
            return false;
    return true;
}

} // namespace

ProcessMonitor::ProcessMonitor(SystemRoots roots)
    : ProcessMonitor(std::move(roots), Options{})
{
}

ProcessMonitor::ProcessMonitor(SystemRoots roots, Options options)
    : m_roots(std::move(roots))
    , m_options(std::move(options))
{
    if (!m_options.clock)
        m_options.clock = &monotonicSeconds;
    if (!m_options.sleep)
        m_options.sleep = &realSleep;
    if (const long tck = sysconf(_SC_CLK_TCK); tck > 0)
        m_clockTicks = double(tck);
    if (const long page = sysconf(_SC_PAGESIZE); page > 0)
        m_pageSize = double(page);
}

double ProcessMonitor::memTotalBytes()
{
    if (m_memTotal > 0)
        return m_memTotal;
    if (!SysFs::readInto(m_roots.proc + QLatin1StringView("/meminfo"), m_buffer, 64 * 1024))
        return 0;
    const qsizetype at = m_buffer.indexOf("MemTotal:");
    if (at < 0)
        return 0;
    const qsizetype end = m_buffer.indexOf('\n', at);
    const QByteArray line = m_buffer.mid(at + 9, end < 0 ? -1 : end - at - 9).trimmed();
    bool ok = false;
    const double kib = line.left(line.indexOf(' ') < 0 ? line.size() : line.indexOf(' ')).toDouble(&ok);
    if (ok && kib > 0)
        m_memTotal = kib * 1024.0;
    return m_memTotal;
}

std::optional<double> ProcessMonitor::uptimeTicks()
{
    if (!SysFs::readInto(m_roots.proc + QLatin1StringView("/uptime"), m_buffer, 4096))
        return std::nullopt;
    const qsizetype space = m_buffer.indexOf(' ');
    bool ok = false;
    const double seconds = m_buffer.left(space < 0 ? m_buffer.size() : space).trimmed().toDouble(&ok);
    if (!ok || seconds < 0)
        return std::nullopt;
    return seconds * m_clockTicks;
}

bool ProcessMonitor::scan(std::vector<Entry> &out)
{
    out.clear();
    DIR *dir = ::opendir(QFile::encodeName(m_roots.proc).constData());
    if (!dir)
        return false;
    const int dirFd = ::dirfd(dir);
    char path[64];
    char buf[4096];
    while (const dirent *ent = ::readdir(dir)) {
        if (!allDigits(ent->d_name) || std::strlen(ent->d_name) > 10)
            continue;
        std::snprintf(path, sizeof path, "%s/stat", ent->d_name);
        const int fd = ::openat(dirFd, path, O_RDONLY | O_CLOEXEC | O_NONBLOCK);
        if (fd < 0)
            continue; // gone since the listing
        // One read: the kernel hands over the whole line at once when the
        // buffer is large enough, and a second call just to see the end of
        // the file would cost as much again.
        ssize_t n;
        do {
            n = ::read(fd, buf, sizeof buf - 1);
        } while (n < 0 && errno == EINTR);
        ::close(fd);
        if (n <= 0)
            continue; // exited while we read

        // "pid (name) state ppid ...": the name may hold spaces and
        // parentheses, so it ends at the last ')'.
        const char *open = static_cast<const char *>(std::memchr(buf, '(', size_t(n)));
        const char *close = static_cast<const char *>(memrchr(buf, ')', size_t(n)));
        if (!open || !close || close < open)
            continue;
        Entry e;
        e.pid = std::atoi(ent->d_name);
        e.nameLength = int(std::min<ptrdiff_t>(close - open - 1, sizeof e.name));
        std::memcpy(e.name, open + 1, size_t(e.nameLength));

        quint64 utime = 0, stime = 0;
        int field = -1;
        bool ok = true;
        const char *p = close + 1;
        const char *end = buf + n;
        while (p < end && field < fieldRss) {
            while (p < end && *p == ' ')
                ++p;
            if (p >= end || *p == '\n')
                break;
            const char *start = p;
            while (p < end && *p != ' ' && *p != '\n')
                ++p;
            ++field;
            if (field != fieldUtime && field != fieldStime && field != fieldStartTime && field != fieldRss)
                continue;
            // rss may be negative in theory; anything but digits reads as 0.
            const auto value = SysFs::parseUnsigned(start, p);
            if (!value && field != fieldRss) {
                ok = false;
                break;
            }
            const quint64 v = value.value_or(0);
            if (field == fieldUtime)
                utime = v;
            else if (field == fieldStime)
                stime = v;
            else if (field == fieldStartTime)
                e.startTime = v;
            else
                e.rssPages = v;
        }
        if (!ok || field < fieldRss)
            continue;
        e.ticks = utime + stime;
        out.push_back(e);
    }
    ::closedir(dir);
    return true;
}

void ProcessMonitor::remember(const std::vector<Entry> &entries, double time)
{
    m_prev.clear();
    m_prev.reserve(entries.size() * 2);
    for (const Entry &e : entries)
        m_prev[e.pid] = {e.ticks, e.startTime};
    m_prevTime = time;
}

QList<ProcInfo> ProcessMonitor::topByCPU(int limit)
{
    // The process list belongs to the machine we run on.
    if (!m_roots.live || limit <= 0)
        return {};

    double now = m_options.clock();
    const double gap = now - m_prevTime;
    // A baseline much older than the usual spacing of calls (the panel was
    // closed) would give a long-term average rather than what is busy now.
    const double staleAfter = std::clamp(2.5 * m_lastGap, 10.0, 75.0);
    if (m_prevTime < 0 || !(gap > 0) || gap > staleAfter) {
        const bool hadPrevious = m_prevTime >= 0;
        const std::optional<double> uptime = uptimeTicks();
        if (!scan(m_entries)) {
            m_prev.clear();
            m_prevTime = -1;
            m_lastCount = 0;
            return {};
        }
        remember(m_entries, now);
        m_prevUptimeTicks = uptime.value_or(-1);
        if (hadPrevious && gap > 0)
            m_lastGap = std::min(gap, 30.0);
        m_options.sleep(baselinePause);
        now = m_options.clock();
    } else {
        m_lastGap = std::min(gap, 30.0);
    }

    const std::optional<double> uptime = uptimeTicks();
    if (!scan(m_entries)) {
        m_prev.clear();
        m_prevTime = -1;
        m_lastCount = 0;
        return {};
    }
    m_lastCount = int(m_entries.size());
    const double dt = now - m_prevTime;
    const double memTotal = memTotalBytes();

    struct Row {
        double cpu;
        double mem;
        const Entry *entry;
    };
    std::vector<Row> rows;
    rows.reserve(m_entries.size());
    for (const Entry &e : m_entries) {
        quint64 delta = 0;
        const auto prev = m_prev.find(e.pid);
        if (prev != m_prev.end() && prev->second.startTime == e.startTime) {
            delta = e.ticks >= prev->second.ticks ? e.ticks - prev->second.ticks : 0;
        } else if (m_prevUptimeTicks >= 0 && double(e.startTime) >= m_prevUptimeTicks) {
            delta = e.ticks; // started within the interval (or a reused pid)
        }
        const double cpu = dt > 0 ? double(delta) / m_clockTicks / dt * 100.0 : 0.0;
        const double mem = memTotal > 0 ? std::min(double(e.rssPages) * m_pageSize / memTotal * 100.0, 100.0) : 0.0;
        rows.push_back({cpu, mem, &e});
    }
    const size_t count = std::min(rows.size(), size_t(limit));
    std::partial_sort(rows.begin(), rows.begin() + ptrdiff_t(count), rows.end(), [](const Row &a, const Row &b) {
        if (a.cpu != b.cpu)
            return a.cpu > b.cpu;
        if (a.mem != b.mem)
            return a.mem > b.mem;
        return a.entry->pid < b.entry->pid;
    });

    QList<ProcInfo> list;
    list.reserve(qsizetype(count));
    for (size_t i = 0; i < count; ++i) {
        const Entry &e = *rows[i].entry;
        list.append(ProcInfo(e.pid, SysFs::printable(QString::fromUtf8(e.name, e.nameLength)), rows[i].cpu, rows[i].mem));
    }

    remember(m_entries, now);
    m_prevUptimeTicks = uptime.value_or(-1);
    return list;
}
