// `sulkbox bar` over a scripted machine on a simulated clock: every format,
// mood and numbers mode, three languages. The output must match the recorded
// lines byte for byte, so a cheaper tick can never show something else.
//
// SULK_RECORD_BAR=1 rewrites the recorded lines (tests/fixtures/bar) from
// the current build instead of comparing.

#include "common/TestSupport.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>

namespace {

// One tick's machine: what the scripted /proc and /sys files say.
struct Step {
    double cpu = 0.05;     // busy share of the last interval, all cores on average
    double memory = 0.43;  // used share of memory
    double swapGB = 0;     // swap in use
    double downMBs = 0;    // receive rate, MB/s
    double upMBs = 0;      // send rate, MB/s
    int celsius = 52;      // the CPU package's sensors
    int battery = 80;      // charge, per cent
    bool charging = false;
};

constexpr int kIntervalS = 10;
constexpr int kCores = 8;
constexpr double kMemTotalKB = 16 * 1024 * 1024;

// 83 ticks of ten seconds from 23:46:30 on New Year's Eve (UTC): the mood
// engine's rules in turn, then a quiet night until the new year arrives.
QList<Step> script()
{
    QList<Step> steps;
    auto add = [&steps](int count, Step s) {
        for (int i = 0; i < count; ++i)
            steps.append(s);
    };
    add(4, {});
    add(3, {.cpu = 0.6});
    add(2, {.cpu = 0.88});
    add(2, {.cpu = 0.93, .memory = 0.5});
    add(3, {.memory = 0.95});
    add(2, {.memory = 0.85, .swapGB = 3});
    add(3, {.downMBs = 6});
    add(2, {.downMBs = 60, .upMBs = 1});
    add(2, {.upMBs = 4});
    add(10, {.celsius = 110});
    add(8, {.celsius = 60});
    add(9, {.celsius = 80});
    add(9, {.battery = 8});
    add(9, {.battery = 50, .charging = true});
    add(15, {.cpu = 0.02});
    return steps;
}

class Machine {
public:
    explicit Machine(const QString &root)
        : m_root(root)
    {
        TestSupport::copyTree(TestSupport::fixture(QStringLiteral("laptop")), root);
        // Only the battery below powers this machine.
        TestSupport::writeFile(root + QStringLiteral("/sys/class/power_supply/AC/online"), "0\n");
    }

    void write(const Step &s)
    {
        // CPU: 1000 jiffies per interval, spread unevenly over the cores.
        qint64 allBusy = 0, allIdle = 0;
        QByteArray cores;
        for (int c = 0; c < kCores; ++c) {
            const qint64 busy = std::llround(std::clamp(s.cpu + (c - 3.5) * 0.02, 0.0, 1.0) * 1000);
            allBusy += m_busy[c] += busy;
            allIdle += m_idle[c] += 1000 - busy;
            cores += "cpu" + QByteArray::number(c) + ' ' + QByteArray::number(m_busy[c]) + " 0 0 "
                + QByteArray::number(m_idle[c]) + " 0 0 0 0 0 0\n";
        }
        writeProc("stat", "cpu  " + QByteArray::number(allBusy) + " 0 0 " + QByteArray::number(allIdle)
                              + " 0 0 0 0 0 0\n" + cores + "ctxt 93812437\nbtime 1717400000\nprocs_running 2\n");

        const qint64 available = std::llround(kMemTotalKB * (1 - s.memory));
        const qint64 swapTotal = 8LL * 1024 * 1024;
        const qint64 swapUsed = std::llround(s.swapGB * 1e9 / 1024);
        writeProc("meminfo", "MemTotal:       " + QByteArray::number(qint64(kMemTotalKB)) + " kB\n"
                                 + "MemFree:         1843212 kB\nMemAvailable:    " + QByteArray::number(available)
                                 + " kB\nBuffers:          412344 kB\nCached:          7012340 kB\n"
                                 + "SwapTotal:       " + QByteArray::number(swapTotal) + " kB\nSwapFree:        "
                                 + QByteArray::number(swapTotal - swapUsed) + " kB\n");

        m_in += quint64(std::llround(s.downMBs * 1e6 * kIntervalS));
        m_out += quint64(std::llround(s.upMBs * 1e6 * kIntervalS));
        writeProc("net/dev",
                  "Inter-|   Receive                                                |  Transmit\n"
                  " face |bytes    packets errs drop fifo frame compressed multicast|bytes    packets errs drop "
                  "fifo colls carrier compressed\n"
                  "    lo: 48213377   61234    0    0    0     0          0         0 48213377   61234    0    0    "
                  "0     0       0          0\n"
                  " wlan0: "
                      + QByteArray::number(m_in) + " 7212345    0    0    0     0          0         0 "
                      + QByteArray::number(m_out) + " 2912345    0    0    0     0       0          0\n");

        for (int t = 1; t <= 3; ++t)
            writeSys("class/hwmon/hwmon2/temp" + QByteArray::number(t) + "_input", QByteArray::number(s.celsius * 1000));
        const QByteArray bat = "class/power_supply/BAT0/";
        writeSys(bat + "capacity", QByteArray::number(s.battery));
        writeSys(bat + "energy_now", QByteArray::number(qint64(51300000) * s.battery / 100));
        writeSys(bat + "status", s.charging ? "Charging" : "Discharging");
        writeSys("class/power_supply/AC/online", s.charging ? "1" : "0");
    }

private:
    // Files are written only when their contents change.
    void write(const QString &path, const QByteArray &data)
    {
        QByteArray &last = m_written[path];
        if (last == data)
            return;
        last = data;
        TestSupport::writeFile(path, data);
    }
    void writeProc(const QByteArray &name, const QByteArray &data)
    {
        write(m_root + QStringLiteral("/proc/") + QString::fromLatin1(name), data);
    }
    void writeSys(const QByteArray &name, const QByteArray &data)
    {
        write(m_root + QStringLiteral("/sys/") + QString::fromLatin1(name), data + '\n');
    }

    QString m_root;
    QHash<QString, QByteArray> m_written;
    qint64 m_busy[kCores] = {1820000, 1830000, 1840000, 1850000, 1860000, 1870000, 1880000, 1890000};
    qint64 m_idle[kCores] = {2412301, 2410301, 2408301, 2406301, 2404301, 2402301, 2400301, 2398301};
    quint64 m_in = 9876543210;
    quint64 m_out = 1234567890;
};

// Runs `bar` over the script, one tick per step; the lines it printed.
QByteArray runScript(const QStringList &options, bool mood)
{
    QTemporaryDir dir;
    const QString root = dir.filePath(QStringLiteral("machine"));
    Machine machine(root);
    const QList<Step> steps = script();
    machine.write(steps.first());

    const QString config = dir.filePath(QStringLiteral("config"));
    TestSupport::writeFile(config + QStringLiteral("/sulkbox/sulkbox.conf"),
                           "[General]\nrefreshInterval=" + QByteArray::number(kIntervalS)
                               + "\nmoodEnabled=" + (mood ? "true" : "false") + "\n");

    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("XDG_CONFIG_HOME"), config);
    env.insert(QStringLiteral("TZ"), QStringLiteral("UTC"));
    env.insert(QStringLiteral("SULKBOX_FAKE_CLOCK"), QStringLiteral("2026-12-31T23:46:30Z"));
    env.remove(QStringLiteral("LANGUAGE"));
    QProcess p;
    p.setProcessEnvironment(env);
    p.start(QStringLiteral(SULKBOX_EXE), QStringList{QStringLiteral("bar"), QStringLiteral("--root"), root} + options);
    if (!p.waitForStarted())
        return "did not start";

    QByteArray out;
    auto readLines = [&p, &out](int lines) {
        while (out.count('\n') < lines) {
            if (!p.waitForReadyRead(10000))
                return false;
            out += p.readAllStandardOutput();
        }
        return true;
    };
    // i3bar opens with its header and the array's first bracket.
    const int header = options.contains(QStringLiteral("i3bar")) ? 2 : 0;
    if (!readLines(header + 1))
        return "no first line: " + p.readAllStandardError();
    for (int i = 1; i < steps.size(); ++i) {
        machine.write(steps[i]);
        p.write("\n");
        if (!readLines(header + 1 + i))
            return "no line for step " + QByteArray::number(i) + ": " + p.readAllStandardError();
    }
    p.closeWriteChannel();
    if (!p.waitForFinished(10000))
        return "did not end with its input";
    out += p.readAllStandardOutput();
    const QByteArray err = p.readAllStandardError();
    if (p.exitCode() != 0 || !err.isEmpty())
        return "exit " + QByteArray::number(p.exitCode()) + ": " + err;
    return out;
}

} // namespace

class BarOutputTest : public QObject {
    Q_OBJECT
private slots:
    void sameLinesAsRecorded_data()
    {
        QTest::addColumn<QString>("format");
        QTest::addColumn<bool>("mood");
        QTest::addColumn<QStringList>("extra");
        const QList<QPair<QString, QStringList>> languages = {{u"en"_qs, {u"--lang"_qs, u"en"_qs}},
                                                              {u"ja"_qs, {u"--lang"_qs, u"ja"_qs}},
                                                              {u"zhHant-F"_qs, {u"--lang"_qs, u"zhHant"_qs, u"--fahrenheit"_qs}}};
        for (const QString &format : {u"plain"_qs, u"waybar"_qs, u"i3bar"_qs})
            for (const bool mood : {true, false})
                for (const auto &[name, extra] : languages)
                    QTest::addRow("%s-%s-%s", qPrintable(format), mood ? "mood" : "numbers", qPrintable(name))
                        << format << mood << extra;
    }

    void sameLinesAsRecorded()
    {
        QFETCH(QString, format);
        QFETCH(bool, mood);
        QFETCH(QStringList, extra);
        const QByteArray out = runScript(QStringList{u"--format"_qs, format} + extra, mood);
        QCOMPARE(out.count('\n'), script().size() + (format == u"i3bar" ? 2 : 0));

        const QString golden =
            TestSupport::fixture(u"bar/"_qs + QString::fromLatin1(QTest::currentDataTag()) + u".txt"_qs);
        if (qEnvironmentVariableIsSet("SULK_RECORD_BAR")) {
            TestSupport::writeFile(golden, out);
            return;
        }
        QFile f(golden);
        QVERIFY2(f.open(QIODevice::ReadOnly), qPrintable(golden));
        const QList<QByteArray> expected = f.readAll().split('\n');
        const QList<QByteArray> actual = out.split('\n');
        for (qsizetype i = 0; i < std::min(expected.size(), actual.size()); ++i) {
            if (actual[i] != expected[i])
                QFAIL(qPrintable(u"line %1 differs:\n  got  %2\n  want %3"_qs.arg(i + 1).arg(
                    QString::fromUtf8(actual[i]), QString::fromUtf8(expected[i]))));
        }
        QCOMPARE(actual.size(), expected.size());
    }
};

SULK_TEST(BarOutputTest)
#include "BarOutputTest.moc"
