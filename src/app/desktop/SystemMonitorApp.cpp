#include "app/desktop/SystemMonitorApp.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

namespace SystemMonitorApp {

namespace {

struct Desktop {
    const char *name; // as XDG_CURRENT_DESKTOP spells it
    QStringList ids;
};

const QList<Desktop> &desktops()
{
    static const QList<Desktop> list = {
        {"GNOME", {u"org.gnome.SystemMonitor.desktop"_qs, u"gnome-system-monitor.desktop"_qs}},
        {"KDE", {u"org.kde.plasma-systemmonitor.desktop"_qs, u"org.kde.ksysguard.desktop"_qs}},
        {"XFCE", {u"xfce4-taskmanager.desktop"_qs}},
        {"MATE", {u"mate-system-monitor.desktop"_qs}},
        {"LXQt", {u"qps.desktop"_qs}},
        {"LXDE", {u"lxtask.desktop"_qs}},
        {"Budgie", {u"org.gnome.SystemMonitor.desktop"_qs, u"gnome-system-monitor.desktop"_qs}},
        {"X-Cinnamon", {u"org.gnome.SystemMonitor.desktop"_qs, u"gnome-system-monitor.desktop"_qs}},
    };
    return list;
}

// Unquotes one Exec line into words: double quotes group, a backslash
// escapes the next character inside them.
QStringList splitExec(const QString &line)
{
    QStringList words;
    QString word;
    bool quoted = false, inWord = false;
    for (qsizetype i = 0; i < line.size(); ++i) {
        const QChar c = line[i];
        if (quoted) {
            if (c == u'\\' && i + 1 < line.size()) {
                word += line[++i];
            } else if (c == u'"') {
                quoted = false;
            } else {
                word += c;
            }
        } else if (c == u'"') {
            quoted = inWord = true;
        } else if (c == u' ' || c == u'\t') {
            if (inWord)
                words << word;
            word.clear();
            inWord = false;
        } else {
            word += c;
            inWord = true;
        }
    }
    if (inWord)
        words << word;
    return words;
}

// The keys of a desktop file's [Desktop Entry] group, string escapes undone
// (\s \n \t \r \\); localised keys are left out.
QHash<QString, QString> readEntry(const QString &path)
{
    QHash<QString, QString> keys;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return keys;
    bool inEntry = false;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine(64 * 1024)).trimmed();
        if (line.isEmpty() || line.startsWith(u'#'))
            continue;
        if (line.startsWith(u'[')) {
            inEntry = line == u"[Desktop Entry]";
            continue;
        }
        const qsizetype eq = line.indexOf(u'=');
        if (!inEntry || eq <= 0)
            continue;
        const QString key = line.left(eq).trimmed();
        if (key.contains(u'[') || keys.contains(key))
            continue;
        const QString raw = line.mid(eq + 1).trimmed();
        QString value;
        for (qsizetype i = 0; i < raw.size(); ++i) {
            if (raw[i] == u'\\' && i + 1 < raw.size()) {
                const QChar n = raw[i + 1];
                const QChar out = n == u's' ? u' ' : n == u'n' ? u'\n' : n == u't' ? u'\t' : n == u'r' ? u'\r'
                                : n == u'\\' ? u'\\' : QChar();
                if (!out.isNull()) {
                    value += out;
                    ++i;
                    continue;
                }
            }
            value += raw[i];
        }
        keys.insert(key, value);
    }
    return keys;
}

} // namespace

QStringList candidateIds(const QString &currentDesktop)
{
    QStringList ids;
    // The current desktop's own monitor first, then everyone else's.
    for (const QString &name : currentDesktop.split(u':', Qt::SkipEmptyParts))
        for (const Desktop &d : desktops())
            if (name.compare(QLatin1StringView(d.name), Qt::CaseInsensitive) == 0)
                for (const QString &id : d.ids)
                    if (!ids.contains(id))
                        ids << id;
    for (const Desktop &d : desktops())
        for (const QString &id : d.ids)
            if (!ids.contains(id))
                ids << id;
    return ids;
}

QString findDesktopFile(const QStringList &ids)
{
    const QStringList folders = QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation);
    for (const QString &id : ids) {
        for (const QString &folder : folders) {
            const QString path = QDir(folder).filePath(id);
            if (QFileInfo(path).isFile() && !commandOf(path).isEmpty())
                return path;
        }
    }
    return {};
}

QStringList commandOf(const QString &desktopFilePath)
{
    QFileInfo info(desktopFilePath);
    if (!info.isFile() || info.size() > 1024 * 1024)
        return {};
    const QHash<QString, QString> entry = readEntry(desktopFilePath);
    if (entry.value(QStringLiteral("Type")) != u"Application" || entry.value(QStringLiteral("Hidden")) == u"true")
        return {};
    const QString tryExec = entry.value(QStringLiteral("TryExec"));
    if (!tryExec.isEmpty()) {
        const bool found = tryExec.startsWith(u'/') ? QFileInfo(tryExec).isExecutable()
                                                    : !QStandardPaths::findExecutable(tryExec).isEmpty();
        if (!found)
            return {};
    }
    QStringList words;
    for (const QString &word : splitExec(entry.value(QStringLiteral("Exec")))) {
        // Field codes stand for files, addresses, the icon or the name: none
        // of them applies to a plain start.
        if (word.size() == 2 && word[0] == u'%' && word[1] != u'%')
            continue;
        QString w = word;
        w.replace(QStringLiteral("%%"), QStringLiteral("%"));
        words << w;
    }
    return words;
}

bool open()
{
    const QString path = findDesktopFile(candidateIds(qEnvironmentVariable("XDG_CURRENT_DESKTOP")));
    if (path.isEmpty())
        return false;
    QStringList command = commandOf(path);
    const QString program = command.takeFirst();
    return QProcess::startDetached(program, command);
}

} // namespace SystemMonitorApp
