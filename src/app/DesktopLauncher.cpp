#include "app/DesktopLauncher.h"

#include <QDir>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <unistd.h>
#include <vector>

namespace DesktopLauncher {

namespace {

constexpr const char *desktopName = "sulkbox-desktop";

bool isExecutableFile(const QString &path)
{
    const QFileInfo info(path);
    return info.isFile() && info.isExecutable();
}

} // namespace

QString find(const QString &launcherPath)
{
    const QDir dir = QFileInfo(launcherPath).absoluteDir();
    const QString name = QString::fromLatin1(desktopName);
    const QStringList candidates = {dir.filePath(name),
                                    QDir::cleanPath(dir.filePath(QStringLiteral("../libexec/sulkbox/")) + u'/' + name)};
    for (const QString &candidate : candidates)
        if (isExecutableFile(candidate))
            return candidate;
    return {};
}

QString selfPath(const char *argv0)
{
    char buffer[4096];
    const ssize_t n = ::readlink("/proc/self/exe", buffer, sizeof buffer - 1);
    if (n > 0)
        return QString::fromLocal8Bit(buffer, n);
    return QFileInfo(QString::fromLocal8Bit(argv0 ? argv0 : "sulkbox")).absoluteFilePath();
}

int exec(int argc, char **argv)
{
    const QString self = selfPath(argc > 0 ? argv[0] : nullptr);
    const QString desktop = find(self);
    if (desktop.isEmpty()) {
        const QString dir = QFileInfo(self).absolutePath();
        std::fprintf(stderr,
                     "sulkbox: the desktop face (%s) is not installed next to %s or in %s; "
                     "the command line works without it: see 'sulkbox --help'\n",
                     desktopName, qPrintable(dir),
                     qPrintable(QDir::cleanPath(dir + QStringLiteral("/../libexec/sulkbox"))));
        return 1;
    }

    const QByteArray desktopPath = QFile::encodeName(desktop);
    ::setenv("SULKBOX_LAUNCHER", QFile::encodeName(self).constData(), 1);
    std::vector<char *> args;
    args.push_back(const_cast<char *>(desktopPath.constData()));
    for (int i = 1; i < argc; ++i)
        args.push_back(argv[i]);
    args.push_back(nullptr);
    ::execv(desktopPath.constData(), args.data());

    std::fprintf(stderr, "sulkbox: cannot start the desktop face %s: %s\n", desktopPath.constData(),
                 std::strerror(errno));
    return 1;
}

} // namespace DesktopLauncher
