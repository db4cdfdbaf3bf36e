#pragma once
// Shared pieces of the test executables: the registry that lets one
// executable per area hold many test classes, and fixture paths.

#include "sampling/SystemRoots.h"

#include <QByteArray>
#include <QObject>
#include <QString>

#include <functional>

namespace TestSupport {

using Factory = std::function<QObject *()>;

void registerTest(const char *name, Factory factory);

// Absolute path of a file or folder under tests/fixtures.
QString fixture(const QString &relative);

// The readers' roots for a fixture machine (read as a snapshot: live-only
// sources stay empty).
SystemRoots fixtureRoots(const QString &name);

// Writes `data` to `path`, making the folders on the way; fails the test
// when it cannot.
void writeFile(const QString &path, const QByteArray &data);

// Copies a folder tree, links kept as links, over whatever is at `to`.
void copyTree(const QString &from, const QString &to);

// The temporary folder that holds this run's settings (never the user's).
QString settingsFolder();

// Forgets every stored setting.
void clearSettings();

// Forgets every stored setting and brings the interface texts back to the
// language the cleared settings give (what init() and cleanup() of tests
// that touch either want).
void resetSettings();

} // namespace TestSupport

#define SULK_TEST(Class)                                                                          \
    static const bool sulkRegistered_##Class = (TestSupport::registerTest(#Class, [] { return new Class; }), true);
