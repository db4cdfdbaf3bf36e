#pragma once
// The one table of user settings: key, type and default. Every reader of a
// setting goes through here; nothing writes defaults. The store is the ini
// file $XDG_CONFIG_HOME/sulkbox/sulkbox.conf (~/.config/sulkbox/sulkbox.conf).
//
// The file is read once; readers are served from memory after that. Writes go
// to memory and to the file at once. `reloadFromDisk` picks up what another
// process or a hand edit changed; `AppSettings` does that whenever the file
// changes and announces every setting whose value changed.

#include <QSettings>
#include <QString>
#include <QVariant>

#include <functional>

namespace Settings {

enum class Type { Double, Text, Flag };

enum class Key {
    refreshInterval,
    appLanguage,
    useFahrenheit,
    moodEnabled,
    petName,
    savageMode,
    launchAtLogin,
    showCPU,
    showMemory,
    showNetwork,
    showDisk,
    showSensors,
    showProcesses,
    migratedFromLegacyBundleID,
    // Update checks: the automatic-check switch, when the last check ran
    // (ISO 8601, UTC) and an optional feed address that replaces the one the
    // build was configured with.
    automaticUpdateChecks,
    lastUpdateCheck,
    updateFeedURL,
};

struct Entry {
    Key key;
    const char *name;
    Type type;
    QVariant defaultValue;
};

// Every setting, in table order.
const QList<Entry> &all();
const Entry &entry(Key key);

// Where the settings file lives for this user.
QString filePath();

// The file store. When the file cannot be used safely (a FIFO, a folder or
// another special file at its path, an unreadable or absurdly large file),
// this is a private store in a temporary folder for this run only: one
// warning line goes to standard error and the user's path is never opened.
QSettings &store();
bool usingUserFile();

bool contains(Key key);

// Typed readers. A value that is absent, or that cannot be read as the
// setting's type (a damaged file), gives the default.
bool flag(Key key);
double number(Key key);
QString text(Key key);

// The effective value with its setting's type (bool, double or QString).
QVariant value(Key key);

// The raw stored value, or an invalid QVariant when absent.
QVariant raw(Key key);

void set(Key key, const QVariant &value);
void remove(Key key);

// Re-reads the file and announces the settings whose values changed.
void reloadFromDisk();

// Called with each setting whose effective value changed (one observer).
void setObserver(std::function<void(Key)> observer);

// For runs that must never write the user's file (`--lang` and friends):
// values set here shadow the store for this process only.
void overrideForThisRun(Key key, const QVariant &value);
void clearOverrides();

} // namespace Settings
