#include "app/Snapshot.h"

#include "sampling/LinuxSamplers.h"
#include "sampling/SysFs.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>

#include <cstdio>
#include <mutex>
#include <sys/stat.h>
#include <unistd.h>

namespace Snapshot {

namespace {

std::mutex g_lock;
QSet<QByteArray> *g_paths = nullptr;

void record(const char *nativePath)
{
    std::lock_guard<std::mutex> guard(g_lock);
    if (g_paths)
        g_paths->insert(QByteArray(nativePath));
}

// What a snapshot may hold: kernel state the readers read, never anything
// about the user's processes, mounts or the machine's name.
bool isShareable(const QByteArray &path)
{
    static const QRegularExpression processFolder(QStringLiteral("^/proc/(self|thread-self|\\d+)(/|$)"));
    if (path.startsWith("/sys/"))
        return true;
    if (!path.startsWith("/proc/"))
        return false;
    if (processFolder.match(QString::fromLocal8Bit(path)).hasMatch())
        return false;
    return !path.startsWith("/proc/sys/kernel/hostname");
}

QString realPath(const QByteArray &path)
{
    char resolved[PATH_MAX];
    if (!::realpath(path.constData(), resolved))
        return {};
    return QString::fromLocal8Bit(resolved);
}

bool copyFile(const QByteArray &from, const QString &to)
{
    const auto data = SysFs::readFile(QString::fromLocal8Bit(from), 8 << 20);
    if (!data)
        return false;
    QDir().mkpath(QFileInfo(to).path());
    QFile out(to);
    return out.open(QIODevice::WriteOnly | QIODevice::Truncate) && out.write(*data) == data->size();
}

// Where the files come from (the live machine, or any tree laid out like
// it) and where they go in the snapshot.
struct Source {
    QString proc; // real path of the proc root
    QString sys;  // real path of the sys root
};

// `path` (under `root`) as it lands in the snapshot under `top`, or empty
// when it leaves the tree.
QString inSnapshot(const QString &path, const QString &root, const char *top)
{
    if (root.isEmpty() || (path != root && !path.startsWith(root + u'/')))
        return {};
    return u'/' + QLatin1StringView(top) + path.mid(root.size());
}

// Puts one path into `stage`. /proc is copied as it is read (its links lead
// into this process's own folder); /sys keeps its links, so the readers
// find the same layout through the same links.
void stagePath(const QByteArray &path, const Source &source, const QString &stage, int &files)
{
    const QString requested = QString::fromLocal8Bit(path);
    struct stat st {};
    if (::lstat(path.constData(), &st) != 0)
        return;

    if (const QString proc = inSnapshot(requested, source.proc, "proc"); !proc.isEmpty()) {
        if (::stat(path.constData(), &st) != 0)
            return;
        if (S_ISDIR(st.st_mode))
            QDir().mkpath(stage + proc);
        else if (S_ISREG(st.st_mode) && copyFile(path, stage + proc))
            ++files;
        return;
    }
    if (!requested.startsWith(source.sys + u'/'))
        return;

    // Walk the components; every link on the way is recreated where it
    // really lives, pointing where it points.
    const QStringList parts = requested.mid(source.sys.size()).split(u'/', Qt::SkipEmptyParts);
    QString parentReal = source.sys;
    for (int i = 0; i < parts.size(); ++i) {
        const QString here = parentReal + u'/' + parts[i];
        const QString staged = inSnapshot(here, source.sys, "sys");
        if (staged.isEmpty())
            return;
        const QByteArray native = SysFs::native(here);
        struct stat ls {};
        if (::lstat(native.constData(), &ls) != 0)
            return;
        if (!S_ISLNK(ls.st_mode)) {
            parentReal = here;
            continue;
        }
        char target[PATH_MAX];
        const ssize_t n = ::readlink(native.constData(), target, sizeof target - 1);
        if (n <= 0)
            return;
        const QString linkInStage = stage + staged;
        QDir().mkpath(QFileInfo(linkInStage).path());
        if (!QFileInfo(linkInStage).isSymLink())
            QFile::link(QString::fromLocal8Bit(target, n), linkInStage);
        parentReal = realPath(native);
        if (parentReal.isEmpty())
            return; // a dangling link is kept as it is
    }
    const QString staged = inSnapshot(parentReal, source.sys, "sys");
    const QByteArray real = SysFs::native(parentReal);
    if (staged.isEmpty() || ::stat(real.constData(), &st) != 0)
        return;
    if (S_ISDIR(st.st_mode))
        QDir().mkpath(stage + staged);
    else if (S_ISREG(st.st_mode) && copyFile(real, stage + staged))
        ++files;
}

} // namespace

int capture(const QString &file, const SystemRoots &roots)
{
    // Read everything once, as an open panel would, noting each path.
    QSet<QByteArray> paths;
    {
        std::lock_guard<std::mutex> guard(g_lock);
        g_paths = &paths;
    }
    SysFs::setRecorder(&record);
    {
        LinuxSamplers samplers{roots};
        samplers.cpuBrand();
        samplers.readCPU();
        samplers.readMemory();
        samplers.readNetwork(true);
        samplers.readDisk();
        samplers.readBattery();
        samplers.readSensors();
        samplers.readGPU();
        samplers.readPower();
        samplers.readCPU();
        samplers.readNetwork(true);
    }
    SysFs::setRecorder(nullptr);
    {
        std::lock_guard<std::mutex> guard(g_lock);
        g_paths = nullptr;
    }

    QTemporaryDir stage;
    if (!stage.isValid()) {
        std::fprintf(stderr, "sulkbox: cannot make a temporary folder\n");
        return 1;
    }
    QList<QByteArray> sorted(paths.begin(), paths.end());
    std::sort(sorted.begin(), sorted.end());
    // Roots that do not exist keep their names; nothing is read below them.
    const auto real = [](const QString &root) {
        const QString r = realPath(SysFs::native(root));
        return r.isEmpty() ? root : r;
    };
    const Source source{real(roots.proc), real(roots.sys)};
    int files = 0;
    for (const QByteArray &path : sorted) {
        const QString p = QString::fromLocal8Bit(path);
        const QString proc = inSnapshot(p, roots.proc, "proc");
        const QString sys = inSnapshot(p, roots.sys, "sys");
        if (!isShareable(SysFs::native(!proc.isEmpty() ? proc : sys)))
            continue;
        // The same path below the roots' real locations.
        const QString normal = !proc.isEmpty() ? source.proc + proc.mid(5) : source.sys + sys.mid(4);
        stagePath(SysFs::native(normal), source, stage.path(), files);
    }

    QStringList tops;
    for (const char *top : {"proc", "sys"})
        if (QFileInfo::exists(stage.filePath(QString::fromLatin1(top))))
            tops.append(QString::fromLatin1(top));
    if (tops.isEmpty()) {
        std::fprintf(stderr, "sulkbox: nothing readable to capture\n");
        return 1;
    }
    const QString target = QFileInfo(file).absoluteFilePath();
    QProcess tar;
    tar.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    tar.start(QStringLiteral("tar"), QStringList{QStringLiteral("--owner=0"), QStringLiteral("--group=0"),
                                                 QStringLiteral("--numeric-owner"), QStringLiteral("-czf"), target,
                                                 QStringLiteral("-C"), stage.path()}
                                         + tops);
    if (!tar.waitForFinished(60000) || tar.exitStatus() != QProcess::NormalExit || tar.exitCode() != 0) {
        std::fprintf(stderr, "sulkbox: could not write %s\n", qPrintable(file));
        return 1;
    }
    std::printf("Saved %d files to %s\nReplay it with: mkdir snap && tar -xzf %s -C snap && sulkbox status --root snap\n",
                files, qPrintable(file), qPrintable(file));
    return 0;
}

} // namespace Snapshot
