#include "settings/Settings.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <array>
#include <cstdio>
#include <memory>
#include <optional>

#include <sys/stat.h>
#include <unistd.h>

namespace Settings {

namespace {

constexpr int kCount = int(Key::updateFeedURL) + 1;

// A real settings file is a few hundred bytes; anything past this is not ours.
constexpr qint64 kMaxFileSize = 1 << 20;

struct State {
    std::array<QVariant, kCount> stored;    // raw values from the store
    std::array<std::optional<QVariant>, kCount> overridden;
    std::array<QVariant, kCount> effective; // typed, after defaults
    std::function<void(Key)> observer;
    bool loaded = false;
};

State &state()
{
    static State s;
    return s;
}

int index(Key key)
{
    return static_cast<int>(key);
}

bool parseFlag(const QVariant &v, bool fallback)
{
    if (!v.isValid())
        return fallback;
    if (v.typeId() == QMetaType::Bool)
        return v.toBool();
    // QSettings hands ini values back as text.
    const QString s = v.toString().trimmed().toLower();
    if (s == u"true" || s == u"1" || s == u"yes")
        return true;
    if (s == u"false" || s == u"0" || s == u"no")
        return false;
    return fallback;
}

double parseNumber(const QVariant &v, double fallback)
{
    if (!v.isValid())
        return fallback;
    bool ok = false;
    const double d = v.toString().trimmed().toDouble(&ok);
    if (ok)
        return d;
    const double direct = v.toDouble(&ok);
    return ok ? direct : fallback;
}

QString parseText(const QVariant &v, const QString &fallback)
{
    if (!v.isValid() || !v.canConvert<QString>() || v.typeId() == QMetaType::QVariantList)
        return fallback;
    return v.toString();
}

QVariant typed(Key key, const QVariant &raw)
{
    const Entry &e = entry(key);
    switch (e.type) {
    case Type::Flag:
        return parseFlag(raw, e.defaultValue.toBool());
    case Type::Double:
        return parseNumber(raw, e.defaultValue.toDouble());
    case Type::Text:
        return parseText(raw, e.defaultValue.toString());
    }
    return e.defaultValue;
}

QVariant rawOf(const State &s, Key key)
{
    const auto &o = s.overridden[index(key)];
    return o ? *o : s.stored[index(key)];
}

// Recomputes one setting's typed value; true when it changed.
bool refresh(State &s, Key key)
{
    QVariant next = typed(key, rawOf(s, key));
    QVariant &slot = s.effective[index(key)];
    if (slot.isValid() && slot == next)
        return false;
    const bool hadValue = slot.isValid();
    slot = std::move(next);
    return hadValue;
}

void announce(State &s, Key key)
{
    if (s.observer)
        s.observer(key);
}

void readStore(State &s)
{
    QSettings &st = store();
    for (const Entry &e : all()) {
        const QString name = QString::fromLatin1(e.name);
        s.stored[index(e.key)] = st.contains(name) ? st.value(name) : QVariant();
    }
}

State &loaded()
{
    State &s = state();
    if (!s.loaded) {
        s.loaded = true;
        readStore(s);
        for (const Entry &e : all())
            refresh(s, e.key);
    }
    return s;
}

// Why the user's file cannot be used, or nothing when it can. A FIFO would
// block the reader forever; a file we cannot read would be overwritten with
// defaults on the first write; a huge one is not a settings file.
std::optional<QString> unusableReason(const QString &path)
{
    struct stat st {};
    const QByteArray native = QFile::encodeName(path);
    if (::stat(native.constData(), &st) != 0)
        return std::nullopt; // absent: created on the first write
    if (!S_ISREG(st.st_mode))
        return QStringLiteral("is not a regular file");
    if (::access(native.constData(), R_OK) != 0)
        return QStringLiteral("cannot be read");
    if (st.st_size > kMaxFileSize)
        return QStringLiteral("is too large to be a settings file");
    return std::nullopt;
}

struct Store {
    std::unique_ptr<QTemporaryDir> privateDir;
    std::unique_ptr<QSettings> settings;
    bool userFile = true;
};

Store &storeState()
{
    static Store s;
    if (!s.settings) {
        const QString path = filePath();
        if (const auto why = unusableReason(path)) {
            std::fprintf(stderr, "sulkbox: %s %s; using default settings for this run and leaving it alone\n",
                         qPrintable(QDir::toNativeSeparators(path)), qPrintable(*why));
            s.userFile = false;
            s.privateDir = std::make_unique<QTemporaryDir>();
            s.settings = std::make_unique<QSettings>(s.privateDir->filePath(QStringLiteral("sulkbox.conf")),
                                                     QSettings::IniFormat);
        } else {
            s.settings = std::make_unique<QSettings>(path, QSettings::IniFormat);
        }
    }
    return s;
}

} // namespace

const QList<Entry> &all()
{
    static const QList<Entry> table = {
        {Key::refreshInterval, "refreshInterval", Type::Double, 1.0},
        {Key::appLanguage, "appLanguage", Type::Text, QStringLiteral("system")},
        {Key::useFahrenheit, "useFahrenheit", Type::Flag, false},
        {Key::moodEnabled, "moodEnabled", Type::Flag, true},
        {Key::petName, "petName", Type::Text, QString()},
        {Key::savageMode, "savageMode", Type::Flag, false},
        {Key::launchAtLogin, "launchAtLogin", Type::Flag, false},
        {Key::showCPU, "showCPU", Type::Flag, true},
        {Key::showMemory, "showMemory", Type::Flag, true},
        {Key::showNetwork, "showNetwork", Type::Flag, true},
        {Key::showDisk, "showDisk", Type::Flag, true},
        {Key::showSensors, "showSensors", Type::Flag, true},
        {Key::showProcesses, "showProcesses", Type::Flag, true},
        {Key::migratedFromLegacyBundleID, "migratedFromLegacyBundleID", Type::Flag, false},
        {Key::automaticUpdateChecks, "automaticUpdateChecks", Type::Flag, false},
        {Key::lastUpdateCheck, "lastUpdateCheck", Type::Text, QString()},
        {Key::updateFeedURL, "updateFeedURL", Type::Text, QString()},
    };
    return table;
}

const Entry &entry(Key key)
{
    return all().at(index(key));
}

QString filePath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + QStringLiteral("/sulkbox/sulkbox.conf");
}

QSettings &store()
{
    return *storeState().settings;
}

bool usingUserFile()
{
    return storeState().userFile;
}

QVariant raw(Key key)
{
    return rawOf(loaded(), key);
}

bool contains(Key key)
{
    return raw(key).isValid();
}

QVariant value(Key key)
{
    return loaded().effective[index(key)];
}

bool flag(Key key)
{
    return loaded().effective[index(key)].toBool();
}

double number(Key key)
{
    return loaded().effective[index(key)].toDouble();
}

QString text(Key key)
{
    return value(key).toString();
}

void set(Key key, const QVariant &v)
{
    State &s = loaded();
    s.overridden[index(key)].reset();
    s.stored[index(key)] = v;
    QSettings &st = store();
    st.setValue(QString::fromLatin1(entry(key).name), v);
    // Written through at once, so another sulkbox process sees it now.
    st.sync();
    if (refresh(s, key))
        announce(s, key);
}

void remove(Key key)
{
    State &s = loaded();
    s.overridden[index(key)].reset();
    s.stored[index(key)] = QVariant();
    QSettings &st = store();
    st.remove(QString::fromLatin1(entry(key).name));
    st.sync();
    if (refresh(s, key))
        announce(s, key);
}

void reloadFromDisk()
{
    State &s = loaded();
    store().sync();
    readStore(s);
    for (const Entry &e : all())
        if (refresh(s, e.key))
            announce(s, e.key);
}

void setObserver(std::function<void(Key)> observer)
{
    state().observer = std::move(observer);
}

void overrideForThisRun(Key key, const QVariant &v)
{
    State &s = loaded();
    s.overridden[index(key)] = v;
    if (refresh(s, key))
        announce(s, key);
}

void clearOverrides()
{
    State &s = loaded();
    for (const Entry &e : all()) {
        if (!s.overridden[index(e.key)])
            continue;
        s.overridden[index(e.key)].reset();
        if (refresh(s, e.key))
            announce(s, e.key);
    }
}

} // namespace Settings
