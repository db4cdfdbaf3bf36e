#pragma once
// The one table of user settings: key, type and default. Every reader of a
// setting goes through here; nothing writes defaults. The store is QSettings
// with organisation and application "sulkbox"
// (~/.config/sulkbox/sulkbox.conf).

#include <QSettings>
#include <QString>
#include <QVariant>

#include <memory>

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

// The shared store. Values written through any QSettings of this process are
// seen here at once.
QSettings &store();

bool contains(Key key);

// Typed readers. A value that is absent, or that cannot be read as the
// setting's type (a damaged file), gives the default.
bool flag(Key key);
double number(Key key);
QString text(Key key);

// The raw stored value, or an invalid QVariant when absent.
QVariant raw(Key key);

void set(Key key, const QVariant &value);
void remove(Key key);

// For runs that must never write the user's file (`--lang` and friends):
// values set here shadow the store for this process only.
void overrideForThisRun(Key key, const QVariant &value);
void clearOverrides();

} // namespace Settings
