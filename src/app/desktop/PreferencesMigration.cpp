#include "app/desktop/PreferencesMigration.h"

#include "settings/Settings.h"

#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <cstdio>
#include <sys/stat.h>
#include <unistd.h>

namespace PreferencesMigration {

namespace {

const QString migratedKey = QStringLiteral("migratedFromLegacyBundleID");
const QString launchKey = QStringLiteral("launchAtLogin");

// A settings file is a few hundred bytes; anything far larger is not one.
constexpr qint64 maxLegacySize = 1 << 20;

// A flag as the store keeps it: a boolean, or its text in an ini file.
std::optional<bool> asFlag(const QVariant &v)
{
    if (v.typeId() == QMetaType::Bool)
        return v.toBool();
    if (v.typeId() == QMetaType::QString || v.typeId() == QMetaType::QByteArray) {
        const QString s = v.toString().trimmed().toLower();
        if (s == u"true")
            return true;
        if (s == u"false")
            return false;
    }
    return std::nullopt;
}

} // namespace

QString legacyFilePath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + QStringLiteral("/com.qm/SystemMonitor.conf");
}

std::optional<QVariantMap> readLegacy(const QString &path)
{
    struct stat st {};
    const QByteArray native = QFile::encodeName(path);
    if (::stat(native.constData(), &st) != 0)
        return std::nullopt;
    if (!S_ISREG(st.st_mode) || ::access(native.constData(), R_OK) != 0 || st.st_size > maxLegacySize) {
        std::fprintf(stderr, "sulkbox: %s is not a readable settings file; nothing was taken over from it\n",
                     native.constData());
        return std::nullopt;
    }

    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray raw = file.read(maxLegacySize);

    // QSettings stops making sense of a file at its first broken line (an
    // unclosed group swallows the rest). Only well-formed lines go on, so a
    // damaged file still gives every setting that survived.
    QByteArray clean;
    for (QByteArray line : raw.split('\n')) {
        if (line.endsWith('\r'))
            line.chop(1);
        const QByteArray trimmed = line.trimmed();
        if (trimmed.isEmpty() || line.contains('\0'))
            continue;
        const bool group = trimmed.startsWith('[') && trimmed.endsWith(']') && trimmed.size() > 2;
        const qsizetype eq = line.indexOf('=');
        qsizetype backslashes = 0;
        while (backslashes < trimmed.size() && trimmed.at(trimmed.size() - 1 - backslashes) == '\\')
            ++backslashes;
        // An odd trailing backslash would join the next line to this one.
        const bool entry = eq > 0 && !line.left(eq).trimmed().isEmpty() && !trimmed.startsWith('[')
            && backslashes % 2 == 0;
        if (group || entry)
            clean += line + '\n';
    }
    QTemporaryDir scratch;
    if (!scratch.isValid())
        return std::nullopt;
    const QString copy = scratch.filePath(QStringLiteral("legacy.conf"));
    QFile out(copy);
    if (!out.open(QIODevice::WriteOnly) || out.write(clean) != clean.size())
        return std::nullopt;
    out.close();

    const QSettings legacy(copy, QSettings::IniFormat);
    QVariantMap map;
    for (const QString &key : legacy.allKeys()) {
        const QVariant value = legacy.value(key);
        if (value.isValid())
            map.insert(key, value);
    }
    return map;
}

bool migrate(const std::optional<QVariantMap> &legacy, QSettings &target)
{
    if (asFlag(target.value(migratedKey)).value_or(false))
        return false;
    target.setValue(migratedKey, true);
    if (!legacy || legacy->isEmpty())
        return false;
    for (auto it = legacy->constBegin(); it != legacy->constEnd(); ++it)
        if (!target.contains(it.key()))
            target.setValue(it.key(), it.value());
    return asFlag(legacy->value(launchKey)).value_or(false);
}

void run(const std::function<void(bool)> &setLoginItem)
{
    QSettings &store = Settings::store();
    store.sync();
    const bool launch = migrate(readLegacy(legacyFilePath()), store);
    Settings::reloadFromDisk(); // writes the store through and refreshes every reader
    if (launch && setLoginItem)
        setLoginItem(true);
}

} // namespace PreferencesMigration
