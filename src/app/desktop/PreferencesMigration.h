#pragma once
// Settings of the earlier identity ("com.qm.SystemMonitor") come over once.
// On Linux that identity kept its settings where QSettings puts an
// application "SystemMonitor" of the organisation "com.qm":
//     $XDG_CONFIG_HOME/com.qm/SystemMonitor.conf   (~/.config/com.qm/SystemMonitor.conf)
// The old file is only read, never written or removed.
//
// The first run sets "migratedFromLegacyBundleID" before anything else, so
// the copy happens at most once per user. Every key of the old file that the
// new store does not have yet is copied as it is (not only the known
// settings); a key the new store has keeps its value. If the old file asked
// for launch at login (a "launchAtLogin" that is a flag, i.e. true/false),
// the caller registers the login item.

#include <QSettings>
#include <QString>
#include <QVariantMap>

#include <functional>
#include <optional>

namespace PreferencesMigration {

QString legacyFilePath();

// The old file's keys and values: nothing when it does not exist or is not
// a regular, readable file of sensible size (a FIFO would block start-up).
// A damaged file gives what can be read from it.
std::optional<QVariantMap> readLegacy(const QString &path);

// Copies `legacy` into `target` as described above; true when the legacy
// settings asked for launch at login.
bool migrate(const std::optional<QVariantMap> &legacy, QSettings &target);

// The start-up step: reads the old file, migrates into the settings store,
// makes the settings re-read the store, and calls `setLoginItem(true)` when
// the old file asked for launch at login.
void run(const std::function<void(bool)> &setLoginItem);

} // namespace PreferencesMigration
