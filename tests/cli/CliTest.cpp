#include "common/TestSupport.h"

#include "app/StatusText.h"
#include "l10n/Localizer.h"
#include "settings/Settings.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

struct Run {
    int exitCode = -1;
    QProcess::ExitStatus status = QProcess::CrashExit;
    QByteArray out;
    QByteArray err;
};

Run sulkbox(const QStringList &args, int timeoutMs = 20000,
           const QProcessEnvironment &env = QProcessEnvironment::systemEnvironment())
{
    QProcess p;
    p.setProcessEnvironment(env);
    p.start(QStringLiteral(SULKBOX_EXE), args);
    Run r;
    if (!p.waitForFinished(timeoutMs)) {
        p.kill();
        p.waitForFinished();
    }
    r.exitCode = p.exitCode();
    r.status = p.exitStatus();
    r.out = p.readAllStandardOutput();
    r.err = p.readAllStandardError();
    return r;
}

// Runs `bar` until it has printed `lines` lines, then stops it.
Run barLines(int lines, const QProcessEnvironment &env)
{
    QProcess p;
    p.setProcessEnvironment(env);
    p.start(QStringLiteral(SULKBOX_EXE), {u"bar"_qs});
    Run r;
    while (r.out.count('\n') < lines && p.waitForReadyRead(10000))
        r.out += p.readAllStandardOutput();
    p.kill();
    p.waitForFinished();
    r.err = p.readAllStandardError();
    return r;
}

QString kernelFile(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? QString::fromLatin1(f.readAll()) : QString();
}

QJsonObject statusJson(const QStringList &extra = {})
{
    const Run r = sulkbox(QStringList{u"status"_qs, u"--json"_qs} + extra);
    if (r.exitCode != 0)
        qWarning("status --json failed: %s", r.err.constData());
    return QJsonDocument::fromJson(r.out).object();
}

QStringList sensorNames(const QJsonObject &status)
{
    QStringList names;
    for (const QJsonValue &t : status[u"sensors"_qs][u"temperatures"_qs].toArray())
        names.append(t[u"name"_qs].toString());
    return names;
}

} // namespace

class CliTest : public QObject {
    Q_OBJECT
private slots:
    void init() { TestSupport::clearSettings(); }

    void statusJsonMatchesTheKernelAndItsCapture()
    {
        const QJsonObject live = statusJson();
        const auto byLine = QRegularExpression::MultilineOption;
        const QRegularExpression memTotal(u"^MemTotal: +(\\d+) kB$"_qs, byLine);
        QCOMPARE(live[u"memory"_qs][u"total"_qs].toDouble(),
                 memTotal.match(kernelFile(u"/proc/meminfo"_qs)).captured(1).toDouble() * 1024);
        const qsizetype cpus = kernelFile(u"/proc/stat"_qs).count(QRegularExpression(u"^cpu\\d"_qs, byLine));
        QCOMPARE(live[u"cpu"_qs][u"perCore"_qs].toArray().size(), cpus);
        // A one-shot never shows the start-up greeting.
        const QString phrase = live[u"mood"_qs][u"phraseKey"_qs].toString();
        QVERIFY2(!phrase.isEmpty() && phrase != u"justWokeUp", qPrintable(phrase));

        // A capture of this machine replays as it reads live.
        QTemporaryDir dir;
        const QString archive = dir.filePath(u"snap.tar.gz"_qs);
        QCOMPARE(sulkbox({u"capture"_qs, archive}).exitCode, 0);
        const QString unpacked = dir.filePath(u"snap"_qs);
        QVERIFY(QDir().mkpath(unpacked));
        QCOMPARE(QProcess::execute(u"tar"_qs, {u"-xzf"_qs, archive, u"-C"_qs, unpacked}), 0);
        const QJsonObject replay = statusJson({u"--root"_qs, unpacked});
        QCOMPARE(replay[u"cpu"_qs][u"perCore"_qs].toArray().size(), cpus);
        QCOMPARE(replay[u"memory"_qs][u"total"_qs].toDouble(), live[u"memory"_qs][u"total"_qs].toDouble());
        QCOMPARE(sensorNames(replay), sensorNames(live));
        QCOMPARE(replay[u"cpuBrand"_qs].toString(), live[u"cpuBrand"_qs].toString());
        // Live-only sources stay empty in a replay.
        QVERIFY(replay[u"processes"_qs].toArray().isEmpty());
        QVERIFY(replay[u"disk"_qs][u"volumes"_qs].toArray().isEmpty());
    }

    void specialFilesAtTheSettingsPathAreLeftAlone_data()
    {
        QTest::addColumn<bool>("fifo");
        QTest::addColumn<QString>("command");
        for (const char *command : {"status", "bar"}) {
            QTest::addRow("fifo, %s", command) << true << QString::fromLatin1(command);
            QTest::addRow("folder, %s", command) << false << QString::fromLatin1(command);
        }
    }

    void specialFilesAtTheSettingsPathAreLeftAlone()
    {
        // A FIFO would block QSettings' open() forever; a folder would be
        // replaced on the first write. Both give defaults for the run and
        // one warning, and are never opened: inotify would tell.
        QFETCH(bool, fifo);
        QFETCH(QString, command);
        QTemporaryDir home;
        QVERIFY(QDir().mkpath(home.filePath(u"sulkbox"_qs)));
        const QString path = home.filePath(u"sulkbox/sulkbox.conf"_qs);
        const QByteArray native = QFile::encodeName(path);
        if (fifo)
            QCOMPARE(::mkfifo(native.constData(), 0600), 0);
        else
            QVERIFY(QDir().mkpath(path));
        const int watch = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
        QVERIFY(watch >= 0);
        QVERIFY(::inotify_add_watch(watch, native.constData(), IN_OPEN | IN_ACCESS | IN_MODIFY | IN_ATTRIB) >= 0);

        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(u"XDG_CONFIG_HOME"_qs, home.path());
        const bool status = command == u"status";
        const Run r = status ? sulkbox({command, u"--json"_qs}, 20000, env) : barLines(2, env);
        if (status)
            QVERIFY(r.status == QProcess::NormalExit && r.exitCode == 0 && QJsonDocument::fromJson(r.out).isObject());
        else
            QVERIFY(r.out.count('\n') >= 2);
        const QList<QByteArray> warnings = r.err.trimmed().split('\n');
        QCOMPARE(warnings.size(), 1);
        QVERIFY2(warnings.first().contains("sulkbox.conf is not a regular file"), r.err.constData());

        char events[4096];
        const ssize_t n = ::read(watch, events, sizeof events);
        ::close(watch);
        QVERIFY2(n < 0, "the file at the settings path was opened");
        struct stat st {};
        QCOMPARE(::lstat(native.constData(), &st), 0);
        QVERIFY(fifo ? S_ISFIFO(st.st_mode) : S_ISDIR(st.st_mode));
    }

    void displayWidthCountsTerminalCells_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("cells");
        // Whole labels of every script are measured by the status columns below.
        QTest::newRow("han and full-width") << u"核心（8）"_qs << 9;
        QTest::newRow("hangul") << u"메모리 사용"_qs << 11;
        QTest::newRow("hangul jamo") << u"\u1112\u1161\u11AB"_qs << 2;
        // Thai: the tone mark and the vowels above and below take no cell;
        // sara am (ำ) does.
        QTest::newRow("thai marks") << u"ที่"_qs << 1;
        QTest::newRow("thai sara am") << u"น้ำ"_qs << 2;
        QTest::newRow("emoji") << u"😎 ok"_qs << 5;
        QTest::newRow("accent") << u"e\u0301"_qs << 1;
        QTest::newRow("joiner") << u"a\u200Db"_qs << 2;
    }

    void displayWidthCountsTerminalCells()
    {
        QFETCH(QString, text);
        QFETCH(int, cells);
        QCOMPARE(StatusText::displayWidth(text), cells);
    }

    void statusColumnsLineUpInEveryScript_data()
    {
        QTest::addColumn<AppLanguage>("lang");
        for (AppLanguage lang : concreteLanguages())
            QTest::newRow(languageRawText(lang).toLatin1().constData()) << lang;
    }

    void statusColumnsLineUpInEveryScript()
    {
        QFETCH(AppLanguage, lang);
        Settings::set(Settings::Key::refreshInterval, 0.5);
        Settings::store().sync();
        // The laptop has a battery, so its line joins the others.
        const Run r = sulkbox({u"status"_qs, u"--lang"_qs, languageRawText(lang), u"--fahrenheit"_qs, u"--root"_qs,
                               TestSupport::fixture(u"laptop"_qs)});
        QCOMPARE(r.exitCode, 0);
        const QStringList lines = QString::fromUtf8(r.out).split(u'\n', Qt::SkipEmptyParts);
        QVERIFY2(lines.size() >= 7, r.out.constData());
        // In the chosen language and unit, and neither reaches the settings file.
        QVERIFY2(lines[2].startsWith(Localizer::tableText(LocKey::memory, lang).value_or(rawValue(LocKey::memory))),
                 r.out.constData());
        QVERIFY(r.out.contains("°F"));
        Settings::store().sync();
        QVERIFY(!Settings::store().contains(u"appLanguage"_qs) && !Settings::store().contains(u"useFahrenheit"_qs));
        // After the mood line: a label, spaces, then the figures, which start
        // in the same terminal column on every line.
        static const QRegularExpression labelled(u"^(\\S+)( +)\\S"_qs);
        int column = -1;
        for (const QString &line : lines.mid(1)) {
            const QRegularExpressionMatch m = labelled.match(line);
            QVERIFY2(m.hasMatch(), qPrintable(line));
            const int start = StatusText::displayWidth(m.captured(1)) + int(m.captured(2).size());
            if (column < 0)
                column = start;
            QVERIFY2(start == column, qPrintable(QString::fromUtf8(r.out)));
        }
        QVERIFY(column >= 11);
    }

    void barRunsUntilItsReaderLeaves()
    {
        Settings::set(Settings::Key::refreshInterval, 0.5);
        Settings::store().sync();
        // A real pipe whose reader leaves after three lines; with pipefail a
        // death by SIGPIPE would show as status 141.
        QProcess p;
        p.start(u"bash"_qs, {u"-c"_qs, u"set -o pipefail; \"$0\" bar | head -n 3"_qs, QStringLiteral(SULKBOX_EXE)});
        QVERIFY(p.waitForFinished(15000));
        QCOMPARE(p.exitStatus(), QProcess::NormalExit);
        QCOMPARE(p.exitCode(), 0);
        const QList<QByteArray> lines = p.readAllStandardOutput().trimmed().split('\n');
        QCOMPARE(lines.size(), 3);
        for (const QByteArray &line : lines)
            QVERIFY(!line.trimmed().isEmpty());
    }

    void onlyGpuReadingsLoadTheGpuLibrary()
    {
        // The dynamic linker says which libraries a process looks for. The
        // open panel of `status` reads the GPU and so looks for NVIDIA's
        // library; `bar` reads sensors too, every ninth tick, but never
        // looks for it, even with a second to spare for a helper thread.
        Settings::set(Settings::Key::refreshInterval, 0.5);
        Settings::store().sync();
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(u"LD_DEBUG"_qs, u"libs"_qs);
        const Run status = sulkbox({u"status"_qs}, 20000, env);
        QCOMPARE(status.exitCode, 0);
        QVERIFY(status.err.contains("libnvidia-ml.so.1"));

        const Run bar = barLines(3, env);
        QVERIFY(bar.out.count('\n') >= 3);
        QVERIFY(bar.err.contains("find library=")); // the linker did report
        QVERIFY2(!bar.err.contains("libnvidia-ml"), bar.err.right(400).constData());
    }

    void usageErrorsExitWithTwo_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::newRow("unknown option") << QStringList{u"status"_qs, u"--frobnicate"_qs};
        QTest::newRow("unknown command") << QStringList{u"dance"_qs};
        QTest::newRow("no command") << QStringList{u"--json"_qs};
        QTest::newRow("bad language") << QStringList{u"status"_qs, u"--lang"_qs, u"klingon"_qs};
        QTest::newRow("bad format") << QStringList{u"bar"_qs, u"--format"_qs, u"xml"_qs};
        QTest::newRow("json with bar") << QStringList{u"bar"_qs, u"--json"_qs};
        QTest::newRow("missing root") << QStringList{u"status"_qs, u"--root"_qs, u"/nonexistent/sulk"_qs};
        QTest::newRow("capture without file") << QStringList{u"capture"_qs};
    }

    void usageErrorsExitWithTwo()
    {
        QFETCH(QStringList, args);
        const Run r = sulkbox(args);
        QCOMPARE(r.status, QProcess::NormalExit);
        QCOMPARE(r.exitCode, 2);
        QVERIFY(r.err.startsWith("sulkbox: "));
        QVERIFY(r.out.isEmpty());
    }
};

SULK_TEST(CliTest)

#include "CliTest.moc"
