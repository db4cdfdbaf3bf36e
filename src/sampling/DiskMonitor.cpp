#include "sampling/DiskMonitor.h"

#include "sampling/SysFs.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

#include <cerrno>

#include <fcntl.h>
#include <linux/magic.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/statfs.h>
#include <unistd.h>
#include <sys/statvfs.h>
#include <time.h>

namespace {

constexpr double maxRateInterval = 30.0; // seconds; longer gaps give no rate

// How long a tick waits for fresh capacity figures before it uses the last
// known ones, and how long one statvfs may take before its mount is
// considered hung and left to its own thread.
constexpr auto statWait = std::chrono::milliseconds(25);
constexpr auto hungAfter = std::chrono::seconds(2);

double wallClock()
{
    timespec ts{};
    clock_gettime(CLOCK_REALTIME, &ts);
    return double(ts.tv_sec) + double(ts.tv_nsec) / 1e9;
}

std::vector<QByteArrayView> splitFields(QByteArrayView line, char sep)
{
    std::vector<QByteArrayView> out;
    qsizetype start = 0;
    for (qsizetype i = 0; i <= line.size(); ++i) {
        if (i == line.size() || line[i] == sep) {
            if (i > start)
                out.push_back(line.sliced(start, i - start));
            start = i + 1;
        }
    }
    return out;
}

bool hasOption(QByteArrayView options, QByteArrayView name)
{
    for (QByteArrayView opt : splitFields(options, ','))
        if (opt == name)
            return true;
    return false;
}

// Mount points that hold the machine's plumbing rather than the user's
// files: boot and EFI partitions.
bool isHiddenMountPoint(const QString &path)
{
    for (const QLatin1StringView hidden : {QLatin1StringView("/boot"), QLatin1StringView("/efi")}) {
        if (path == hidden || path.startsWith(hidden + u'/'))
            return true;
    }
    return false;
}

int hexValue(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

// udev writes unsafe characters of a label as \xHH.
QString decodeLabel(const QString &name)
{
    const QByteArray raw = QFile::encodeName(name);
    QByteArray out;
    out.reserve(raw.size());
    for (qsizetype i = 0; i < raw.size(); ++i) {
        if (raw[i] == '\\' && i + 3 < raw.size() && raw[i + 1] == 'x') {
            const int hi = hexValue(raw[i + 2]);
            const int lo = hexValue(raw[i + 3]);
            if (hi >= 0 && lo >= 0) {
                out.append(char(hi * 16 + lo));
                i += 3;
                continue;
            }
        }
        out.append(raw[i]);
    }
    return QString::fromUtf8(out);
}

QString resolvedDevice(const QString &path)
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    return canonical.isEmpty() ? QDir::cleanPath(path) : canonical;
}

} // namespace

// ---------------------------------------------------------------------------
// Pure steps

namespace DiskScan {

QString decodeMountField(QByteArrayView field)
{
    QByteArray out;
    out.reserve(field.size());
    for (qsizetype i = 0; i < field.size(); ++i) {
        const char c = field[i];
        if (c == '\\' && i + 3 < field.size()) {
            const char a = field[i + 1], b = field[i + 2], d = field[i + 3];
            if (a >= '0' && a <= '3' && b >= '0' && b <= '7' && d >= '0' && d <= '7') {
                out.append(char((a - '0') * 64 + (b - '0') * 8 + (d - '0')));
                i += 3;
                continue;
            }
        }
        out.append(c);
    }
    return QString::fromUtf8(out);
}

QList<QList<Mount>> volumeCandidates(QByteArrayView mountinfo, QByteArrayView filesystems)
{
    QSet<QByteArray> known, nodev;
    for (QByteArrayView line : splitFields(filesystems, '\n')) {
        const std::vector<QByteArrayView> f = splitFields(line, '\t');
        if (f.empty())
            continue;
        const QByteArray name = f.back().trimmed().toByteArray();
        if (name.isEmpty())
            continue;
        known.insert(name);
        if (f.size() > 1 && f.front().trimmed() == "nodev")
            nodev.insert(name);
    }

    QList<QList<Mount>> groups;
    QHash<QString, qsizetype> groupOf;
    for (QByteArrayView line : splitFields(mountinfo, '\n')) {
        // id parent major:minor root mount-point options [optional...] - type source super-options
        const std::vector<QByteArrayView> f = splitFields(line, ' ');
        size_t dash = 6;
        while (dash < f.size() && f[dash] != "-")
            ++dash;
        if (f.size() < 7 || dash + 2 >= f.size())
            continue;

        Mount m;
        m.device = QString::fromLatin1(f[2]);
        m.root = decodeMountField(f[3]);
        m.mountPoint = decodeMountField(f[4]);
        m.fsType = QString::fromUtf8(f[dash + 1]);
        m.source = decodeMountField(f[dash + 2]);
        m.readOnly = hasOption(f[5], "ro") || (dash + 3 < f.size() && hasOption(f[dash + 3], "ro"));
        if (!m.device.contains(u':') || !m.mountPoint.startsWith(u'/'))
            continue;

        // fuse.sshfs and the like are listed as "fuse".
        const QByteArray type = f[dash + 1].toByteArray();
        const QByteArray base = type.left(type.indexOf('.') < 0 ? type.size() : type.indexOf('.'));
        if (nodev.contains(base) || nodev.contains(type) || base == "squashfs")
            continue;
        // A type the kernel does not list (or no list at all): trust it only
        // when it sits on a device node.
        if (!known.contains(base) && !m.source.startsWith(QLatin1StringView("/dev/")))
            continue;
        if (m.readOnly && m.mountPoint != u"/")
            continue;
        if (isHiddenMountPoint(m.mountPoint))
            continue;

        const auto it = groupOf.constFind(m.device);
        if (it == groupOf.cend()) {
            groupOf.insert(m.device, groups.size());
            groups.append({m});
        } else {
            groups[*it].append(m);
        }
    }

    // Within a file system: "/" first, then a mount of the whole file system
    // over a bind of a sub-folder; otherwise the earliest mount, which is the
    // one the system made (later ones are binds of it).
    for (QList<Mount> &group : groups) {
        std::stable_sort(group.begin(), group.end(), [](const Mount &a, const Mount &b) {
            const auto rank = [](const Mount &m) { return std::pair(m.mountPoint != u"/", m.root != u"/"); };
            return rank(a) < rank(b);
        });
    }
    return groups;
}

QHash<QString, QString> readLabels(const QString &byLabelDir)
{
    QHash<QString, QString> labels;
    if (byLabelDir.isEmpty())
        return labels;
    for (const QString &entry : SysFs::entries(byLabelDir)) {
        const QFileInfo link(byLabelDir + u'/' + entry);
        if (!link.isSymLink())
            continue;
        QString device = link.canonicalFilePath();
        if (device.isEmpty())
            device = QDir::cleanPath(link.symLinkTarget());
        const QString label = decodeLabel(entry);
        if (!device.isEmpty() && !label.trimmed().isEmpty())
            labels.insert(device, label);
    }
    return labels;
}

QHash<QString, DiskBytes> parseDiskStats(QByteArrayView text, QByteArray *names)
{
    QHash<QString, DiskBytes> out;
    for (QByteArrayView line : splitFields(text, '\n')) {
        // major minor name reads merged sectors-read ms writes merged sectors-written ...
        const std::vector<QByteArrayView> f = splitFields(line, ' ');
        if (f.size() < 10)
            continue;
        const auto sectorsRead = SysFs::parseUnsigned(f[5].begin(), f[5].end());
        const auto sectorsWritten = SysFs::parseUnsigned(f[9].begin(), f[9].end());
        constexpr quint64 maxSectors = ~quint64(0) / 512;
        if (!sectorsRead || !sectorsWritten || *sectorsRead > maxSectors || *sectorsWritten > maxSectors)
            continue;
        if (names) {
            names->append(f[2]);
            names->append(' ');
        }
        out.insert(QString::fromUtf8(f[2]), {*sectorsRead * 512, *sectorsWritten * 512});
    }
    return out;
}

std::optional<QSet<QString>> physicalDisks(const QString &sysBlockDir)
{
    if (!SysFs::exists(sysBlockDir))
        return std::nullopt;
    static const QLatin1StringView virtualPrefixes[] = {
        QLatin1StringView("loop"), QLatin1StringView("ram"), QLatin1StringView("zram"),
        QLatin1StringView("dm-"),  QLatin1StringView("md"),  QLatin1StringView("nbd"),
    };
    QSet<QString> disks;
    for (const QString &name : SysFs::entries(sysBlockDir)) {
        if (std::any_of(std::begin(virtualPrefixes), std::end(virtualPrefixes),
                        [&](QLatin1StringView p) { return name.startsWith(p); }))
            continue;
        // Partitions live below their disk, never directly in block/; a
        // real disk has a link to the hardware that carries it.
        if (!SysFs::linkOrFileExists(sysBlockDir + u'/' + name + QLatin1StringView("/device")))
            continue;
        disks.insert(QString(name).replace(u'!', u'/'));
    }
    return disks;
}

} // namespace DiskScan

// ---------------------------------------------------------------------------
// Capacity queries off the tick's thread
//
// One worker thread takes each batch of mount points in turn. A tick hands it
// the current list and waits a moment for the answers; if they are late it
// uses the last known figures. A statvfs that does not come back (a dying USB
// disk, a wedged FUSE daemon) leaves its worker behind: the path is marked
// hung, a fresh worker takes over without it, and the old thread finishes on
// its own whenever the call returns.

class DiskMonitor::StatWorker {
public:
    struct Result {
        DiskScan::Mount mount;
        FsFigures figures;
    };

    explicit StatWorker(StatFn stat)
        : m_shared(std::make_shared<Shared>())
    {
        m_shared->stat = std::move(stat);
    }

    ~StatWorker()
    {
        std::lock_guard lock(m_shared->mutex);
        m_shared->stop = true;
        m_shared->wake.notify_all();
    }

    // Starts a refresh of `groups` unless one is still running, waits a
    // moment for it and returns the latest figures per file system.
    QHash<QString, Result> refresh(const QList<QList<DiskScan::Mount>> &groups)
    {
        Shared &s = *m_shared;
        std::unique_lock lock(s.mutex);
        if (!s.started) {
            s.started = true;
            spawn(lock);
        }
        if (s.busy && std::chrono::steady_clock::now() - s.busySince > hungAfter) {
            s.hung.insert(s.busyPath);
            s.busy = false;
            s.finished = s.requested;
            spawn(lock);
        }
        if (s.finished == s.requested) {
            s.pending = groups;
            ++s.requested;
            s.wake.notify_all();
        }
        const quint64 ticket = s.requested;
        s.done.wait_for(lock, statWait, [&] { return s.finished >= ticket; });
        return s.results;
    }

private:
    struct Shared {
        std::mutex mutex;
        std::condition_variable wake, done;
        StatFn stat;
        bool started = false;
        bool stop = false;
        quint64 generation = 0; // the current worker; older ones are left behind
        quint64 requested = 0, finished = 0;
        QList<QList<DiskScan::Mount>> pending;
        QHash<QString, Result> results; // by file system (major:minor)
        QSet<QString> hung;
        bool busy = false;
        QString busyPath;
        std::chrono::steady_clock::time_point busySince;
    };

    void spawn(std::unique_lock<std::mutex> &)
    {
        const quint64 generation = ++m_shared->generation;
        std::thread([shared = m_shared, generation] { run(*shared, generation); }).detach();
    }

    static void run(Shared &s, quint64 generation)
    {
        std::unique_lock lock(s.mutex);
        for (;;) {
            s.wake.wait(lock, [&] { return s.stop || s.generation != generation || s.finished != s.requested; });
            if (s.stop || s.generation != generation)
                return;
            const quint64 ticket = s.requested;
            const QList<QList<DiskScan::Mount>> groups = s.pending;
            QSet<QString> keys;
            for (const QList<DiskScan::Mount> &group : groups)
                keys.insert(group.value(0).device);
            s.results.removeIf([&](const auto &it) { return !keys.contains(it.key()); });
            for (const QList<DiskScan::Mount> &group : groups) {
                const QString key = group.value(0).device;
                bool found = false, skipped = false;
                for (const DiskScan::Mount &mount : group) {
                    if (s.hung.contains(mount.mountPoint)) {
                        skipped = true;
                        continue;
                    }
                    s.busy = true;
                    s.busyPath = mount.mountPoint;
                    s.busySince = std::chrono::steady_clock::now();
                    lock.unlock();
                    const std::optional<FsFigures> figures = s.stat(mount.mountPoint);
                    lock.lock();
                    if (s.generation != generation) {
                        // Left behind while stuck: keep the late answer and
                        // make the path usable again, then retire.
                        s.hung.remove(mount.mountPoint);
                        if (figures)
                            s.results.insert(key, {mount, *figures});
                        return;
                    }
                    if (s.stop)
                        return;
                    s.busy = false;
                    if (figures) {
                        s.results.insert(key, {mount, *figures});
                        found = true;
                        break;
                    }
                }
                // A hung mount keeps its last known figures.
                if (!found && !skipped)
                    s.results.remove(key);
            }
            s.finished = ticket;
            s.done.notify_all();
        }
    }

    std::shared_ptr<Shared> m_shared;
};

// ---------------------------------------------------------------------------

DiskMonitor::DiskMonitor(SystemRoots roots)
    : DiskMonitor(std::move(roots), Options{})
{
}

DiskMonitor::DiskMonitor(SystemRoots roots, Options options)
    : m_roots(std::move(roots))
    , m_options(std::move(options))
{
    if (!m_options.stat)
        m_options.stat = &DiskMonitor::statVolume;
    if (!m_options.clock)
        m_options.clock = &wallClock;
    m_diskstats = SysFs::KeptFile(m_roots.proc + QLatin1StringView("/diskstats"));
    if (m_options.labelDir.isEmpty() && m_roots.live && m_roots.proc == u"/proc")
        m_options.labelDir = QStringLiteral("/dev/disk/by-label");
}

DiskMonitor::~DiskMonitor()
{
    if (m_mountFd >= 0)
        ::close(m_mountFd);
}

std::optional<DiskMonitor::FsFigures> DiskMonitor::statVolume(const QString &mountPoint)
{
    const QByteArray path = QFile::encodeName(mountPoint);
    struct stat st {};
    if (::stat(path.constData(), &st) != 0 || !S_ISDIR(st.st_mode))
        return std::nullopt; // e.g. a container's bind-mounted /etc/hosts
    struct statvfs vfs {};
    if (::statvfs(path.constData(), &vfs) != 0)
        return std::nullopt;
    const double unit = double(vfs.f_frsize ? vfs.f_frsize : vfs.f_bsize);
    return capacityOf(unit, vfs.f_blocks, vfs.f_bfree, vfs.f_bavail, (vfs.f_flag & ST_RDONLY) != 0);
}

DiskMonitor::FsFigures DiskMonitor::capacityOf(double blockSize, quint64 blocks, quint64 freeBlocks,
                                                quint64 availableBlocks, bool readOnly)
{
    const quint64 usedBlocks = blocks > freeBlocks ? blocks - freeBlocks : 0;
    FsFigures figures;
    figures.free = blockSize * double(availableBlocks);
    figures.total = blockSize * double(usedBlocks) + figures.free;
    figures.readOnly = readOnly;
    return figures;
}

DiskSample DiskMonitor::read()
{
    DiskSample sample;
    sample.volumes = volumes();
    readRates(sample);
    return sample;
}

bool DiskMonitor::readMountTable()
{
    // procfs tells of every mount and unmount through poll(); while it
    // reports nothing, the table we hold is current and the kernel need not
    // print it again. Plain files (fixtures) are simply read every time.
    if (m_mountFd >= 0) {
        pollfd p{m_mountFd, POLLPRI, 0};
        if (::poll(&p, 1, 0) == 0)
            return true;
        if (::lseek(m_mountFd, 0, SEEK_SET) == 0) {
            m_mountBuffer.resize(0);
            for (;;) {
                if (m_mountBuffer.capacity() - m_mountBuffer.size() < 4096)
                    m_mountBuffer.reserve(m_mountBuffer.size() * 2 + 4096);
                const qsizetype had = m_mountBuffer.size();
                m_mountBuffer.resize(m_mountBuffer.capacity());
                const ssize_t got = ::read(m_mountFd, m_mountBuffer.data() + had, size_t(m_mountBuffer.size() - had));
                m_mountBuffer.resize(had + std::max<ssize_t>(got, 0));
                if (got < 0 && errno == EINTR)
                    continue;
                if (got <= 0 || m_mountBuffer.size() > (4 << 20))
                    return got == 0;
            }
        }
        ::close(m_mountFd);
        m_mountFd = -1;
    }
    const QString path = m_roots.proc + QLatin1StringView("/self/mountinfo");
    if (!SysFs::readInto(path, m_mountBuffer, 4 << 20))
        return false;
    const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    struct statfs fs {};
    if (fd >= 0 && ::fstatfs(fd, &fs) == 0 && fs.f_type == PROC_SUPER_MAGIC) {
        // Arm the change notice; the table just read is the baseline.
        pollfd p{fd, POLLPRI, 0};
        ::poll(&p, 1, 0);
        m_mountFd = fd;
        return SysFs::readInto(path, m_mountBuffer, 4 << 20);
    }
    if (fd >= 0)
        ::close(fd);
    return true;
}

void DiskMonitor::refreshMounts()
{
    if (!readMountTable()) {
        m_mountsParsed = false;
        m_groups.clear();
        return;
    }
    if (m_mountsParsed && m_mountBuffer == m_mountText)
        return;
    m_mountsParsed = true;
    m_mountText = m_mountBuffer;
    SysFs::readInto(m_roots.proc + QLatin1StringView("/filesystems"), m_fsBuffer, 64 * 1024);
    m_groups = DiskScan::volumeCandidates(m_mountText, m_fsBuffer);
    m_labels = DiskScan::readLabels(m_options.labelDir);
    m_hostName = SysFs::readLine(m_roots.proc + QLatin1StringView("/sys/kernel/hostname")).value_or(QString());
}

QString DiskMonitor::volumeName(const DiskScan::Mount &mount) const
{
    if (!m_labels.isEmpty() && mount.source.startsWith(u'/')) {
        const QString label = m_labels.value(resolvedDevice(mount.source));
        if (!label.isEmpty())
            return label;
    }
    if (mount.mountPoint == u"/") {
        // The startup disk carries the machine's own name, the one the user
        // gave it and sees in every prompt. Being a proper name it needs no
        // translation.
        return m_hostName.isEmpty() ? QStringLiteral("/") : m_hostName;
    }
    return mount.mountPoint.section(u'/', -1, -1, QString::SectionSkipEmpty);
}

QList<VolumeInfo> DiskMonitor::volumes()
{
    // Mount points are only meaningful on the machine we run on.
    if (!m_roots.live)
        return {};
    refreshMounts();
    if (m_groups.isEmpty())
        return {};

    QList<StatWorker::Result> found;
    if (m_options.statOffThread) {
        if (!m_worker)
            m_worker = std::make_unique<StatWorker>(m_options.stat);
        const QHash<QString, StatWorker::Result> results = m_worker->refresh(m_groups);
        for (const QList<DiskScan::Mount> &group : std::as_const(m_groups)) {
            const auto it = results.constFind(group.first().device);
            if (it != results.cend())
                found.append(*it);
        }
    } else {
        for (const QList<DiskScan::Mount> &group : std::as_const(m_groups)) {
            for (const DiskScan::Mount &mount : group) {
                if (const auto figures = m_options.stat(mount.mountPoint)) {
                    found.append({mount, *figures});
                    break;
                }
            }
        }
    }

    QList<VolumeInfo> list;
    for (const StatWorker::Result &r : std::as_const(found)) {
        if (r.figures.readOnly && r.mount.mountPoint != u"/")
            continue;
        if (!(r.figures.total > 0))
            continue;
        // The mount point stays as it is for statvfs; the record is for show.
        list.append({SysFs::printable(volumeName(r.mount)), SysFs::printable(r.mount.mountPoint), r.figures.total,
                     std::max(r.figures.free, 0.0)});
    }
    std::stable_sort(list.begin(), list.end(), [](const VolumeInfo &a, const VolumeInfo &b) { return a.total > b.total; });
    return list;
}

void DiskMonitor::readRates(DiskSample &sample)
{
    const double now = m_options.clock();
    QByteArray names;
    QHash<QString, DiskScan::DiskBytes> all;
    if (m_diskstats.read(m_statsBuffer))
        all = DiskScan::parseDiskStats(m_statsBuffer, &names);
    // The set of whole disks only changes when a device comes or goes.
    if (names != m_diskNames || !m_physical) {
        m_diskNames = names;
        m_physical = DiskScan::physicalDisks(m_roots.sys + QLatin1StringView("/block"));
    }
    if (all.isEmpty() || !m_physical) {
        // No counters to read (a container, a damaged file): no rate, and
        // the next usable reading starts afresh.
        m_prev.clear();
        m_prevTime = 0;
        m_diskNames.clear();
        return;
    }

    QHash<QString, DiskScan::DiskBytes> current;
    for (auto it = all.cbegin(); it != all.cend(); ++it)
        if (m_physical->contains(it.key()))
            current.insert(it.key(), it.value());

    const double dt = now - m_prevTime;
    if (m_prevTime > 0 && dt > 0 && dt <= maxRateInterval) {
        // Per disk, so a disk that leaves or arrives between two readings
        // does not swing the sum; a counter that went down adds nothing.
        quint64 readDelta = 0, writeDelta = 0;
        for (auto it = current.cbegin(); it != current.cend(); ++it) {
            const auto prev = m_prev.constFind(it.key());
            if (prev == m_prev.cend())
                continue;
            if (it->read >= prev->read)
                readDelta += it->read - prev->read;
            if (it->write >= prev->write)
                writeDelta += it->write - prev->write;
        }
        sample.readRate = double(readDelta) / dt;
        sample.writeRate = double(writeDelta) / dt;
        sample.hasRate = true;
    }
    m_prev = std::move(current);
    m_prevTime = now;
}
