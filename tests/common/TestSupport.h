#pragma once
// Shared pieces of the test executables: the registry that lets one
// executable per area hold many test classes, and fixture paths.

#include <QObject>
#include <QString>

#include <functional>

namespace TestSupport {

using Factory = std::function<QObject *()>;

void registerTest(const char *name, Factory factory);

// Absolute path of a file or folder under tests/fixtures.
QString fixture(const QString &relative);

// The temporary folder that holds this run's settings (never the user's).
QString settingsFolder();

// Forgets every stored setting.
void clearSettings();

} // namespace TestSupport

#define SULK_TEST(Class)                                                                          \
    static const bool sulkRegistered_##Class = (TestSupport::registerTest(#Class, [] { return new Class; }), true);
