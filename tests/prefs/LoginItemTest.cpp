// Launch at login: the autostart entry in a temporary XDG_CONFIG_HOME,
// checked with the freedesktop validator, and the one-line failure report.

#include "common/TestSupport.h"

#include "app/desktop/LoginItem.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

namespace {

// Every message logged while it lives.
struct LogCapture {
    LogCapture()
    {
        lines().clear();
        previous = qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &msg) {
            lines().append(msg);
        });
    }
    ~LogCapture() { qInstallMessageHandler(previous); }
    static QStringList &lines()
    {
        static QStringList l;
        return l;
    }
    QtMessageHandler previous;
};

// XDG_CONFIG_HOME and SULKBOX_LAUNCHER for one test, put back afterwards.
struct Environment {
    QTemporaryDir dir;
    const QByteArray savedConfig = qgetenv("XDG_CONFIG_HOME"), savedLauncher = qgetenv("SULKBOX_LAUNCHER");

    Environment()
    {
        qputenv("XDG_CONFIG_HOME", dir.path().toUtf8());
        qunsetenv("SULKBOX_LAUNCHER");
    }
    ~Environment()
    {
        for (const auto &[name, value] :
             {std::pair{"XDG_CONFIG_HOME", savedConfig}, std::pair{"SULKBOX_LAUNCHER", savedLauncher}})
            value.isNull() ? qunsetenv(name) : qputenv(name, value);
    }
    QString entry() const { return dir.path() + u"/autostart/sulkbox.desktop"_qs; }
};

QByteArray readAll(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

QString validatorOutput(const QString &path)
{
    QProcess p;
    p.start(u"desktop-file-validate"_qs, {path});
    if (!p.waitForFinished(10000))
        return u"desktop-file-validate did not run"_qs;
    const QString out = QString::fromUtf8(p.readAllStandardOutput() + p.readAllStandardError()).trimmed();
    if (p.exitStatus() != QProcess::NormalExit || p.exitCode() != 0)
        return out.isEmpty() ? u"exit code %1"_qs.arg(p.exitCode()) : out;
    return out; // warnings and hints only
}

// A fake `sulkbox` launcher at `path`.
void makeExecutable(const QString &path)
{
    TestSupport::writeFile(path, "#!/bin/sh\n");
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

} // namespace

class LoginItemTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase()
    {
        QVERIFY2(!QStandardPaths::findExecutable(u"desktop-file-validate"_qs).isEmpty(),
                 "desktop-file-validate is missing: run scripts/deps.sh --test");
    }

    void onWritesAValidEntryAndOffRemovesIt_data()
    {
        QTest::addColumn<QString>("launcherName");
        QTest::newRow("plain") << u"sulkbox"_qs;
        // Install prefixes with spaces and shell characters must still start.
        QTest::newRow("odd path") << u"my apps/100% \"$HOME\" `x`\\sulkbox"_qs;
    }

    void onWritesAValidEntryAndOffRemovesIt()
    {
        QFETCH(QString, launcherName);
        Environment env;
        const QString launcher = env.dir.path() + u"/bin/"_qs + launcherName;
        makeExecutable(launcher);
        qputenv("SULKBOX_LAUNCHER", launcher.toUtf8());
        QCOMPARE(LoginItem::entryPath(), env.entry());
        QVERIFY(!LoginItem::isEnabled());

        LogCapture log;
        // As at the first start after migrating an installation that
        // launched at login: no autostart folder yet.
        LoginItem::set(true);
        QVERIFY(LoginItem::isEnabled());
        // The validator requires the group, Type and Name; it knows nothing
        // of GNOME's switch.
        const QByteArray text = readAll(env.entry());
        QVERIFY(text.contains("\nName=sulkbox\n"));
        QVERIFY(text.contains("\nX-GNOME-Autostart-enabled=true\n"));
        const QString problems = validatorOutput(env.entry());
        QVERIFY2(problems.isEmpty(), qPrintable(problems + u"\n"_qs + QString::fromUtf8(text)));

        // The Exec line reads back as the launcher's absolute path, by the
        // rules a session manager uses: unescape the value, then the quotes.
        const QString exec = QString::fromUtf8(text.mid(text.indexOf("\nExec=") + 6).split('\n').first());
        QString value, argument;
        for (qsizetype i = 0; i < exec.size(); ++i) {
            const QChar n = exec[i] == u'\\' && i + 1 < exec.size() ? exec[++i] : QChar();
            value += n.isNull() ? exec[i] : n == u's' ? u' ' : n == u'n' ? u'\n' : n == u't' ? u'\t' : n;
        }
        value.replace(u"%%"_qs, u"%"_qs);
        const bool quoted = value.startsWith(u'"') && value.endsWith(u'"') && value.size() > 1;
        for (qsizetype i = quoted; i < value.size() - quoted; ++i)
            argument += value[quoted && value[i] == u'\\' ? ++i : i];
        QCOMPARE(argument, launcher);

        LoginItem::set(false);
        QVERIFY(!QFileInfo::exists(env.entry()));
        QVERIFY(!LoginItem::isEnabled());
        QVERIFY2(log.lines().isEmpty(), qPrintable(log.lines().join(u'\n')));
    }

    void anEntryAlreadyThereIsKeptOrSwitchedBackOn()
    {
        Environment env;
        LogCapture log;
        // Off when there is no entry: nothing is made, not even the folder.
        LoginItem::set(false);
        QVERIFY(!QFileInfo::exists(env.dir.path() + u"/autostart"_qs));

        // On when an entry is there: the user's own entry is kept as it is.
        const QByteArray own = "[Desktop Entry]\nType=Application\nName=sulkbox\nExec=/opt/sulkbox/bin/sulkbox --quiet\n";
        TestSupport::writeFile(env.entry(), own);
        QVERIFY(LoginItem::isEnabled());
        LoginItem::set(true);
        QCOMPARE(readAll(env.entry()), own);
        QVERIFY(log.lines().isEmpty());

        // Switched off elsewhere: off, and on switches it back on.
        for (const QByteArray &off : {QByteArray("Hidden=true"), QByteArray("X-GNOME-Autostart-enabled=false")}) {
            TestSupport::writeFile(env.entry(), "[Desktop Entry]\nType=Application\nName=sulkbox\nExec=/x/sulkbox\n"
                                                    + off + "\n");
            QVERIFY2(!LoginItem::isEnabled(), off.constData());
            LoginItem::set(true);
            QVERIFY2(LoginItem::isEnabled(), off.constData());
            QVERIFY(readAll(env.entry()).contains("X-GNOME-Autostart-enabled=true"));
        }
        // The key in another group is not the entry's.
        TestSupport::writeFile(env.entry(), "[Desktop Entry]\nType=Application\nName=sulkbox\nExec=/x/sulkbox\n"
                                                "[Desktop Action x]\nHidden=true\n");
        QVERIFY(LoginItem::isEnabled());
    }

    void theLauncherIsPreferredWhenItIsReal()
    {
        Environment env;
        for (const QByteArray &unusable : {QByteArray(), QByteArray("relative/sulkbox"),
                                           (env.dir.path() + u"/missing/sulkbox"_qs).toUtf8()}) {
            qputenv("SULKBOX_LAUNCHER", unusable);
            QCOMPARE(LoginItem::launcherPath(), QCoreApplication::applicationFilePath());
        }
        const QString launcher = env.dir.path() + u"/bin/sulkbox"_qs;
        makeExecutable(launcher);
        qputenv("SULKBOX_LAUNCHER", launcher.toUtf8());
        QCOMPARE(LoginItem::launcherPath(), launcher);
        // A relative or empty XDG_CONFIG_HOME is ignored, as the base directory rules say.
        qputenv("XDG_CONFIG_HOME", "relative/config");
        QCOMPARE(LoginItem::entryPath(), QDir::homePath() + u"/.config/autostart/sulkbox.desktop"_qs);
    }

    void aFailureIsOneLineAndNothingElse()
    {
        Environment env;
        // The autostart folder's place is taken by a file: nothing can be
        // written there, whoever runs the test (root included).
        TestSupport::writeFile(env.dir.path() + u"/autostart"_qs, "not a folder");
        {
            LogCapture log;
            LoginItem::set(true);
            QCOMPARE(log.lines().size(), 1);
            QVERIFY2(log.lines().first().startsWith(u"Qm login item error: "_qs), qPrintable(log.lines().first()));
            QVERIFY(log.lines().first().size() > 21);
            QVERIFY(!log.lines().first().contains(u'\n'));
        }
        QCOMPARE(readAll(env.dir.path() + u"/autostart"_qs), QByteArray("not a folder"));

        // A folder where the entry belongs: the entry cannot be written, and
        // since it is no entry, turning off has nothing to delete.
        QFile::remove(env.dir.path() + u"/autostart"_qs);
        QVERIFY(QDir().mkpath(env.entry() + u"/inside"_qs));
        {
            LogCapture log;
            LoginItem::set(true);
            LoginItem::set(false);
            QCOMPARE(log.lines().size(), 1);
            QVERIFY(log.lines().first().startsWith(u"Qm login item error: "_qs));
        }
    }
};

SULK_TEST(LoginItemTest)
#include "LoginItemTest.moc"
