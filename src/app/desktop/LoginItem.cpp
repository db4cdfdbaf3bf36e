#include "app/desktop/LoginItem.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace LoginItem {

namespace {

void logFailure(const QString &reason)
{
    qWarning().noquote() << QStringLiteral("Qm login item error: ") + reason;
}

QString configHome()
{
    // XDG base directories: an unset, empty or relative value is ignored.
    const QString env = qEnvironmentVariable("XDG_CONFIG_HOME");
    if (!env.isEmpty() && QDir::isAbsolutePath(env))
        return env;
    return QDir::homePath() + QStringLiteral("/.config");
}

// The value of `key` in the [Desktop Entry] group, or a null string.
QString entryValue(const QByteArray &contents, const QByteArray &key)
{
    bool inMainGroup = false;
    for (QByteArray line : contents.split('\n')) {
        line = line.trimmed();
        if (line.startsWith('[')) {
            inMainGroup = line == "[Desktop Entry]";
            continue;
        }
        if (!inMainGroup || line.startsWith('#'))
            continue;
        const int eq = line.indexOf('=');
        if (eq > 0 && line.left(eq).trimmed() == key)
            return QString::fromUtf8(line.mid(eq + 1).trimmed());
    }
    return {};
}

} // namespace

QString entryPath()
{
    return configHome() + QStringLiteral("/autostart/sulkbox.desktop");
}

bool isEnabled()
{
    const QFileInfo info(entryPath());
    if (!info.isFile())
        return false;
    QFile file(info.filePath());
    if (!file.open(QIODevice::ReadOnly))
        return true; // there, though we cannot look inside: the session will try it
    const QByteArray contents = file.read(64 * 1024);
    if (entryValue(contents, "Hidden") == u"true")
        return false;
    if (entryValue(contents, "X-GNOME-Autostart-enabled") == u"false")
        return false;
    return true;
}

QString launcherPath()
{
    const QString launcher = qEnvironmentVariable("SULKBOX_LAUNCHER");
    if (!launcher.isEmpty() && QDir::isAbsolutePath(launcher)) {
        const QFileInfo info(launcher);
        if (info.isFile() && info.isExecutable())
            return info.absoluteFilePath();
    }
    return QCoreApplication::applicationFilePath();
}

QString quoteExecArgument(const QString &argument)
{
    // Arguments with reserved characters go in double quotes, where ", `, $
    // and \ take a backslash. A literal % is always written %%.
    static const QString reserved = QStringLiteral(" \t\n\"'\\><~|&;$*?#()`");
    bool needsQuotes = argument.isEmpty();
    for (QChar c : argument)
        needsQuotes = needsQuotes || reserved.contains(c);
    QString out;
    if (!needsQuotes) {
        out = argument;
    } else {
        out += u'"';
        for (QChar c : argument) {
            if (c == u'"' || c == u'`' || c == u'$' || c == u'\\')
                out += u'\\';
            out += c;
        }
        out += u'"';
    }
    out.replace(u'%', QStringLiteral("%%"));
    // The value itself is a string of the key file format, where a
    // backslash is written twice.
    out.replace(u'\\', QStringLiteral("\\\\"));
    out.replace(u'\n', QStringLiteral("\\n"));
    out.replace(u'\t', QStringLiteral("\\t"));
    out.replace(u'\r', QStringLiteral("\\r"));
    return out;
}

QByteArray entryContents(const QString &program)
{
    QByteArray out;
    out += "[Desktop Entry]\n";
    out += "Type=Application\n";
    out += "Name=sulkbox\n";
    out += "Comment=System monitor with a personality\n";
    out += "Exec=" + quoteExecArgument(program).toUtf8() + "\n";
    out += "Icon=sulkbox\n";
    out += "Terminal=false\n";
    out += "X-GNOME-Autostart-enabled=true\n";
    return out;
}

void set(bool enabled)
{
    if (enabled == isEnabled())
        return;
    const QString path = entryPath();
    if (enabled) {
        const QString dir = QFileInfo(path).absolutePath();
        if (!QDir().mkpath(dir)) {
            logFailure(QStringLiteral("cannot create the folder %1").arg(QDir::toNativeSeparators(dir)));
            return;
        }
        QSaveFile file(path);
        if (!file.open(QIODevice::WriteOnly)) {
            logFailure(QStringLiteral("cannot write %1: %2").arg(QDir::toNativeSeparators(path), file.errorString()));
            return;
        }
        file.write(entryContents(launcherPath()));
        if (!file.commit())
            logFailure(QStringLiteral("cannot write %1: %2").arg(QDir::toNativeSeparators(path), file.errorString()));
        return;
    }
    QFile file(path);
    if (!file.remove())
        logFailure(QStringLiteral("cannot delete %1: %2").arg(QDir::toNativeSeparators(path), file.errorString()));
}

} // namespace LoginItem
