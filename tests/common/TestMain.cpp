// Runs every test class registered in this executable, or only the one named
// first on the command line (`tst_model RingBufferTest -v2`).

#include "common/TestSupport.h"

#include "l10n/Localizer.h"
#include "settings/Settings.h"

#include <QFile>
#include <QGuiApplication>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <filesystem>
#include <memory>
#include <vector>

namespace {

struct Entry {
    QString name;
    TestSupport::Factory factory;
};

std::vector<Entry> &registry()
{
    static std::vector<Entry> entries;
    return entries;
}

QString &settingsPath()
{
    static QString path;
    return path;
}

} // namespace

namespace TestSupport {

void registerTest(const char *name, Factory factory)
{
    registry().push_back({QString::fromLatin1(name), std::move(factory)});
}

QString fixture(const QString &relative)
{
    return QStringLiteral(SULK_FIXTURES "/") + relative;
}

SystemRoots fixtureRoots(const QString &name)
{
    return SystemRoots::underPrefix(fixture(name));
}

void writeFile(const QString &path, const QByteArray &data)
{
    std::error_code ec;
    std::filesystem::create_directories(std::filesystem::path(path.toStdString()).parent_path(), ec);
    QFile f(path);
    QVERIFY2(f.open(QIODevice::WriteOnly | QIODevice::Truncate), qPrintable(path));
    QCOMPARE(f.write(data), data.size());
}

void copyTree(const QString &from, const QString &to)
{
    namespace fs = std::filesystem;
    std::error_code ec;
    fs::create_directories(to.toStdString(), ec);
    fs::copy(from.toStdString(), to.toStdString(),
             fs::copy_options::recursive | fs::copy_options::copy_symlinks | fs::copy_options::overwrite_existing, ec);
    QVERIFY2(!ec, ec.message().c_str());
}

QString settingsFolder()
{
    return settingsPath();
}

void clearSettings()
{
    Settings::clearOverrides();
    Settings::store().clear();
    Settings::reloadFromDisk();
}

void resetSettings()
{
    clearSettings();
    Localizer::shared().reload();
}

} // namespace TestSupport

int main(int argc, char **argv)
{
    // Settings go to a private folder: tests never touch the user's file.
    QTemporaryDir settingsDir;
    settingsPath() = settingsDir.path();
    qputenv("XDG_CONFIG_HOME", settingsDir.path().toUtf8());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settingsDir.path());
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settingsDir.path());
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");

    QGuiApplication app(argc, argv);

    QStringList args = app.arguments();
    QString only;
    if (args.size() > 1 && !args[1].startsWith(u'-')) {
        only = args[1];
        args.removeAt(1);
    }

    int failures = 0;
    bool ran = false;
    for (const Entry &entry : registry()) {
        if (!only.isEmpty() && entry.name != only)
            continue;
        ran = true;
        std::unique_ptr<QObject> test(entry.factory());
        failures += QTest::qExec(test.get(), args);
    }
    if (!ran) {
        qWarning("no test class named %s", qPrintable(only));
        return 2;
    }
    return failures == 0 ? 0 : 1;
}
