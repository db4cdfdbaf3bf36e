#include "sampling/MemoryMonitor.h"

#include "sampling/SysFs.h"

#include <QCoreApplication>
#include <QPointer>
#include <QThread>
#include <QThreadPool>

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <unistd.h>
#include <vector>

namespace {

enum Field {
    MemTotal,
    MemFree,
    MemAvailable,
    Buffers,
    Cached,
    SReclaimable,
    SUnreclaim,
    Unevictable,
    KernelStack,
    PageTables,
    SwapTotal,
    SwapFree,
    Zswap,
    FieldCount
};

// The field a meminfo key names, decided by its length and then at most
// three comparisons; -1 for the ~40 keys we do not read.
int fieldOf(const char *name, qsizetype length)
{
    auto is = [name, length](const char *key) { return std::memcmp(name, key, size_t(length)) == 0; };
    switch (length) {
    case 5:
        return is("Zswap") ? Zswap : -1;
    case 6:
        return is("Cached") ? Cached : -1;
    case 7:
        return is("MemFree") ? MemFree : is("Buffers") ? Buffers : -1;
    case 8:
        return is("MemTotal") ? MemTotal : is("SwapFree") ? SwapFree : -1;
    case 9:
        return is("SwapTotal") ? SwapTotal : -1;
    case 10:
        return is("SUnreclaim") ? SUnreclaim : is("PageTables") ? PageTables : -1;
    case 11:
        return is("Unevictable") ? Unevictable : is("KernelStack") ? KernelStack : -1;
    case 12:
        return is("MemAvailable") ? MemAvailable : is("SReclaimable") ? SReclaimable : -1;
    default:
        return -1;
    }
}

// Fills `kb` from meminfo's "Name:   1234 kB" lines; `seen` marks what was
// found. Lines it does not know, or cannot parse, are skipped; the first line
// of a key counts. Reading stops once every key has been found (about half
// way down on current kernels).
void parseMeminfo(const QByteArray &text, double (&kb)[FieldCount], bool (&seen)[FieldCount])
{
    const char *p = text.constData();
    const char *const end = p + text.size();
    int missing = FieldCount;
    while (p < end && missing > 0) {
        const char *eol = static_cast<const char *>(std::memchr(p, '\n', size_t(end - p)));
        if (!eol)
            eol = end;
        const char *colon = static_cast<const char *>(std::memchr(p, ':', size_t(eol - p)));
        const int f = colon ? fieldOf(p, colon - p) : -1;
        if (f >= 0 && !seen[f]) {
            const char *v = colon + 1;
            while (v < eol && *v == ' ')
                ++v;
            const char *digitsEnd = v;
            while (digitsEnd < eol && *digitsEnd >= '0' && *digitsEnd <= '9')
                ++digitsEnd;
            const bool whole = digitsEnd == eol || *digitsEnd == ' ';
            if (const auto value = whole ? SysFs::parseUnsigned(v, digitsEnd) : std::nullopt) {
                kb[f] = double(*value);
                seen[f] = true;
                --missing;
            }
        }
        p = eol + 1;
    }
}

constexpr double kiB = 1024.0;
constexpr double GiB = 1024.0 * 1024.0 * 1024.0;
constexpr qint64 chunkLimit = 256LL * 1024 * 1024;
constexpr int zramRescanEvery = 60; // readings between looks for new zram devices

} // namespace

MemoryMonitor::MemoryMonitor(SystemRoots roots)
    : m_roots(std::move(roots))
    , m_meminfo(m_roots.proc + QStringLiteral("/meminfo"))
{
}

void MemoryMonitor::rescanZram()
{
    m_zramStats.clear();
    const QString block = m_roots.sys + QStringLiteral("/block/");
    for (const QString &name : SysFs::entries(block)) {
        if (name.startsWith(QLatin1String("zram")))
            m_zramStats.emplace_back(block + name + QStringLiteral("/mm_stat"));
    }
}

double MemoryMonitor::zramInUse()
{
    if (--m_readsUntilRescan <= 0) {
        rescanZram();
        m_readsUntilRescan = zramRescanEvery;
    }
    // mm_stat: orig_data_size compr_data_size mem_used_total ...; the third
    // figure is what the device really takes from RAM, allocator overhead
    // included.
    double sum = 0;
    for (SysFs::KeptFile &stat : m_zramStats) {
        if (!stat.read(m_zramBuffer, 4096))
            continue;
        const char *p = m_zramBuffer.constData();
        const char *const end = p + m_zramBuffer.size();
        for (int field = 0; field < 3; ++field) {
            while (p < end && (*p == ' ' || *p == '\t'))
                ++p;
            const char *start = p;
            while (p < end && *p >= '0' && *p <= '9')
                ++p;
            if (p == start)
                break;
            if (field == 2) {
                if (const auto bytes = SysFs::parseUnsigned(start, p))
                    sum += double(*bytes);
            }
        }
    }
    return sum;
}

MemorySample MemoryMonitor::read()
{
    m_available = 0;
    if (!m_meminfo.read(m_buffer, 256 * 1024))
        return {};
    double kb[FieldCount] = {};
    bool seen[FieldCount] = {};
    parseMeminfo(m_buffer, kb, seen);
    if (!seen[MemTotal] || kb[MemTotal] <= 0)
        return {};

    MemorySample s;
    s.total = kb[MemTotal] * kiB;
    // Kernels before 3.14 have no MemAvailable; free, buffers and the
    // reclaimable caches are the closest estimate there.
    const double availableKb = seen[MemAvailable]
        ? kb[MemAvailable]
        : kb[MemFree] + kb[Buffers] + kb[Cached] + kb[SReclaimable];
    m_available = std::min(availableKb * kiB, s.total);
    s.used = s.total - m_available;
    s.cached = (kb[Buffers] + kb[Cached] + kb[SReclaimable]) * kiB;
    s.wired = (kb[Unevictable] + kb[SUnreclaim] + kb[KernelStack] + kb[PageTables]) * kiB;
    s.compressed = kb[Zswap] * kiB + zramInUse();
    s.swapTotal = kb[SwapTotal] * kiB;
    s.swapUsed = std::max(kb[SwapTotal] - kb[SwapFree], 0.0) * kiB;
    s.deriveFreeAndPressure();
    return s;
}

namespace MemoryCleaner {

double target(const MemorySample &before, double memAvailable)
{
    for (const double figure : {before.total, before.free, before.cached, memAvailable}) {
        if (!std::isfinite(figure))
            return 0;
    }
    double t = std::min(before.total * 0.4, before.free + std::min(before.cached, 3 * GiB));
    t = std::min(t, 6 * GiB);
    t = std::min(t, memAvailable * 0.8);
    return std::max(t, 0.0);
}

QList<qint64> chunkSizes(double target)
{
    QList<qint64> sizes;
    if (!(target > 0))
        return sizes;
    double allocated = 0;
    while (allocated < target) {
        const double chunk = std::floor(std::min(target - allocated, double(chunkLimit)));
        if (chunk < 1)
            break;
        sizes.append(qint64(chunk));
        allocated += chunk;
    }
    return sizes;
}

namespace {

// Allocates the blocks and makes every page of them resident, then gives
// everything back. A failed allocation ends the phase early.
void squeeze(double bytes)
{
    // One write per page: 16 KiB apart where pages are that large, closer
    // on the usual 4 KiB pages so that the whole block really is resident.
    const long pageSize = ::sysconf(_SC_PAGESIZE);
    const qint64 stride = pageSize > 0 ? std::min<qint64>(pageSize, 16384) : 4096;
    std::vector<char *> blocks;
    for (const qint64 size : chunkSizes(bytes)) {
        auto *block = static_cast<char *>(std::malloc(size_t(size)));
        if (!block)
            break;
        for (qint64 offset = 0; offset < size; offset += stride)
            block[offset] = 1;
        try {
            blocks.push_back(block);
        } catch (...) {
            std::free(block);
            break;
        }
    }
    for (char *block : blocks)
        std::free(block);
}

} // namespace

void freeUp(QObject *context, std::function<void(double)> completion, SystemRoots roots)
{
    // Copies of a QPointer may travel between threads; it is only looked at
    // on the main thread, where `context` lives and dies.
    const QPointer<QObject> guard(context);
    QThreadPool::globalInstance()->start([guard, completion = std::move(completion), roots = std::move(roots)] {
        double freed = 0;
        try {
            MemoryMonitor monitor(roots);
            const MemorySample before = monitor.read();
            squeeze(target(before, monitor.lastAvailable()));
            QThread::usleep(400000); // let the kernel settle before measuring again
            const MemorySample after = monitor.read();
            // A reading that failed on either side says nothing about what was freed.
            if (before.total > 0 && after.total > 0)
                freed = std::max(before.used - after.used, 0.0);
        } catch (...) {
            freed = 0;
        }
        QCoreApplication *app = QCoreApplication::instance();
        if (!app)
            return;
        QMetaObject::invokeMethod(
            app,
            [guard, completion, freed] {
                if (guard && completion)
                    completion(freed);
            },
            Qt::QueuedConnection);
    });
}

} // namespace MemoryCleaner
