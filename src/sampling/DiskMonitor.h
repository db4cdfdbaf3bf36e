#pragma once
// Mounted volumes (mountinfo + statvfs) and whole-disk read/write rates
// (/proc/diskstats).

#include "model/Records.h"
#include "sampling/SysFs.h"
#include "sampling/SystemRoots.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QHash>
#include <QList>
#include <QSet>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

// The pure steps of the disk reader, kept apart so they can be checked on
// fixture text.
namespace DiskScan {

// One line of mountinfo that may become a volume.
struct Mount {
    QString mountPoint; // decoded, as the user sees it
    QString root;       // the part of the file system mounted here ("/" = all of it)
    QString source;     // e.g. /dev/nvme0n1p2
    QString fsType;
    QString device;     // major:minor of the file system
    bool readOnly = false;

    bool operator==(const Mount &) const = default;
};

// Mounts of real, user-visible file systems, one group per file system
// (bind mounts and btrfs subvolumes share one), the preferred mount of each
// group first; groups in mountinfo order. `filesystems` is the text of
// /proc/filesystems: every type marked nodev there is left out, and so is
// squashfs. Read-only mounts are kept only at "/".
QList<QList<Mount>> volumeCandidates(QByteArrayView mountinfo, QByteArrayView filesystems);

// Undoes the kernel's octal escapes (\040 for a space and so on).
QString decodeMountField(QByteArrayView field);

// Labels from a folder of links named after file-system labels (udev's
// /dev/disk/by-label): device path (links resolved) → label.
QHash<QString, QString> readLabels(const QString &byLabelDir);

// Cumulative bytes of one disk.
struct DiskBytes {
    quint64 read = 0;
    quint64 write = 0;
};

// Per-device byte counters from /proc/diskstats (sectors × 512). Lines that
// are not well formed are skipped. `names`, when given, receives every
// device name in file order.
QHash<QString, DiskBytes> parseDiskStats(QByteArrayView diskstats, QByteArray *names = nullptr);

// Whole physical disks under <sys>/block: entries with a `device` link that
// are not loop, ram, zram, device-mapper, md or nbd devices. Names are given
// as /proc/diskstats writes them ('/' where sysfs writes '!'). nullopt when
// the folder cannot be read.
std::optional<QSet<QString>> physicalDisks(const QString &sysBlockDir);

} // namespace DiskScan

class DiskMonitor {
public:
    // Capacity of one mounted file system.
    struct FsFigures {
        double total = 0;   // bytes, used + free
        double free = 0;    // bytes available to unprivileged users
        bool readOnly = false;
    };
    // Capacity at a mount point, nullopt when it is not a readable folder.
    using StatFn = std::function<std::optional<FsFigures>(const QString &mountPoint)>;

    struct Options {
        // Default: statvfs on the live machine.
        StatFn stat;
        // Seconds since 1970; default: the wall clock.
        std::function<double()> clock;
        // Capacity queries run on a worker thread, so a hung mount never
        // holds up the tick; tests turn this off for deterministic reads.
        bool statOffThread = true;
        // Folder of label links; empty means /dev/disk/by-label on the
        // live machine and none otherwise.
        QString labelDir;
    };

    explicit DiskMonitor(SystemRoots roots = {});
    DiskMonitor(SystemRoots roots, Options options);
    ~DiskMonitor();
    DiskMonitor(const DiskMonitor &) = delete;
    DiskMonitor &operator=(const DiskMonitor &) = delete;

    DiskSample read();
    // Forgets the baseline time: the next read only primes the counters.
    void clearBaseline() { m_prevTime = 0; }

    // statvfs of one mount point (folders only).
    static std::optional<FsFigures> statVolume(const QString &mountPoint);
    // Capacity as df shows it: used = blocks - free blocks, free = the blocks
    // available to unprivileged users, total = used + free. Blocks reserved
    // for root count as neither, so the used share is df's Use%.
    static FsFigures capacityOf(double blockSize, quint64 blocks, quint64 freeBlocks, quint64 availableBlocks,
                                bool readOnly);

private:
    class StatWorker;

    QList<VolumeInfo> volumes();
    bool readMountTable();
    void refreshMounts();
    QString volumeName(const DiskScan::Mount &mount) const;
    void readRates(DiskSample &sample);

    SystemRoots m_roots;
    Options m_options;

    // Volumes: the parsed mount table is kept until mountinfo changes.
    int m_mountFd = -1; // open on procfs, for its change notices
    QByteArray m_mountBuffer;
    QByteArray m_mountText;
    bool m_mountsParsed = false;
    QByteArray m_fsBuffer;
    QList<QList<DiskScan::Mount>> m_groups;
    QHash<QString, QString> m_labels;
    QString m_hostName;
    std::unique_ptr<StatWorker> m_worker;

    // Rates: per-disk counters of the previous reading.
    SysFs::KeptFile m_diskstats;
    QByteArray m_statsBuffer;
    QByteArray m_diskNames;
    std::optional<QSet<QString>> m_physical;
    QHash<QString, DiskScan::DiskBytes> m_prev;
    double m_prevTime = 0;
};
