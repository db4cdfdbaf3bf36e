#include "app/Cli.h"

#include "app/BarLine.h"
#include "app/JsonExport.h"
#include "settings/Settings.h"
#include "app/Snapshot.h"
#include "app/StatusText.h"
#include "l10n/Fmt.h"
#include "l10n/Localizer.h"
#include "model/Scheduler.h"
#include "model/SystemMonitor.h"
#include "personality/MoodEngine.h"
#include "sampling/LinuxSamplers.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTimer>

#include <cerrno>
#include <cmath>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>

namespace Cli {

namespace {

const QStringList commands = {QStringLiteral("status"), QStringLiteral("bar"), QStringLiteral("capture")};

void printErr(const QString &text)
{
    std::fprintf(stderr, "%s\n", qPrintable(text));
}

// Writes all of `data` to standard output; false once the reader is gone.
bool writeOut(const QByteArray &data)
{
    qsizetype done = 0;
    while (done < data.size()) {
        const ssize_t n = ::write(STDOUT_FILENO, data.constData() + done, size_t(data.size() - done));
        if (n < 0) {
            if (errno == EINTR)
                continue;
            return false;
        }
        done += n;
    }
    return true;
}

int usageError(const QString &message)
{
    printErr(QStringLiteral("sulkbox: ") + message);
    printErr(QStringLiteral("Try 'sulkbox --help'."));
    return 2;
}

// The clock of a one-shot run, which has no later: delayed actions (the
// panel's power reading a second in, expiring reactions) never run, so
// nothing samples behind the measurement's back.
class OneShotScheduler final : public Scheduler {
public:
    QDateTime now() const override { return QDateTime::currentDateTimeUtc(); }
    void after(int, QObject *, std::function<void()>) override {}
};

// --- status -----------------------------------------------------------------

} // namespace

std::unique_ptr<SystemMonitor> measure(std::shared_ptr<Samplers> samplers)
{
    static OneShotScheduler oneShot;
    auto monitor = std::make_unique<SystemMonitor>(std::move(samplers), oneShot);
    // The model's own timer would sample somewhere near the end of the
    // interval (a coarse timer fires up to 5 % early) and leave a sliver of
    // it as the measured interval. Here there is one baseline and one
    // sample, a whole interval apart, and nothing in between.
    monitor->stop();
    const qint64 interval = std::lround(std::min(SystemMonitor::intervalFromSetting(), 2.0) * 1000);
    QElapsedTimer sinceBaseline;
    sinceBaseline.start();
    // As an open panel: disk, GPU, power and the process list too. Its
    // first fast sample is the baseline of every rate.
    monitor->setPanelVisible(true);
    QEventLoop loop;
    QTimer::singleShot(std::max<qint64>(interval - sinceBaseline.elapsed(), 0), Qt::PreciseTimer, &loop,
                       &QEventLoop::quit);
    loop.exec();
    monitor->sampleFast();
    monitor->samplePower();
    return monitor;
}

namespace {

int runStatus(const SystemRoots &roots, bool json)
{
    const std::unique_ptr<SystemMonitor> measured = measure(std::make_shared<LinuxSamplers>(roots));
    SystemMonitor &monitor = *measured;
    if (roots.live && monitor.processes().isEmpty()) {
        QEventLoop loop;
        QObject::connect(&monitor, &SystemMonitor::processesChanged, &loop, &QEventLoop::quit);
        QTimer::singleShot(3000, &loop, &QEventLoop::quit);
        loop.exec();
    }

    // A one-shot has no start-up to greet, and no idle history either: the
    // engine starts just as the greeting would end.
    const QDateTime now = QDateTime::currentDateTimeUtc();
    MoodEngine engine(now.addMSecs(-MoodEngine::greetingMs));
    MoodInputs inputs = monitor.moodInputs();
    inputs.cpu = monitor.cpu().total; // the one real interval we measured
    const Mood mood = engine.mood(inputs, now);

    const Localizer &loc = Localizer::shared();
    if (json) {
        const QByteArray doc = QJsonDocument(JsonExport::monitor(monitor, mood, loc)).toJson(QJsonDocument::Indented);
        return writeOut(doc) ? 0 : 1;
    }
    QStringList lines{StatusText::moodLine(mood, loc)};
    lines += StatusText::moduleLines(monitor, loc);
    return writeOut((lines.join(u'\n') + u'\n').toUtf8()) ? 0 : 1;
}

// --- bar --------------------------------------------------------------------

using BarFormat = BarLine::Format;

// A simulated clock for benchmarks and tests, never mentioned in the help:
// SULKBOX_FAKE_CLOCK=START[,TICKS]. `bar` starts at START (ISO 8601; local
// time unless it carries an offset) and each tick moves the clock on by the
// interval instead of waiting for it: TICKS ticks back to back, or without
// TICKS one tick per line read from standard input until it ends.
struct FakeClock {
    QDateTime start;
    int ticks = -1; // -1: one per input line
};

std::optional<FakeClock> fakeClockFromEnvironment()
{
    const QString value = qEnvironmentVariable("SULKBOX_FAKE_CLOCK");
    if (value.isEmpty())
        return std::nullopt;
    FakeClock clock;
    clock.start = QDateTime::fromString(value.section(u',', 0, 0), Qt::ISODateWithMs);
    if (!clock.start.isValid())
        return std::nullopt;
    if (value.contains(u',')) {
        bool ok = false;
        clock.ticks = value.section(u',', 1, 1).toInt(&ok);
        if (!ok || clock.ticks < 0)
            return std::nullopt;
    }
    return clock;
}

int runBar(const SystemRoots &roots, BarFormat format)
{
    // A closed reader must end us with status 0, not kill us.
    std::signal(SIGPIPE, SIG_IGN);
    BarLine bar(format);
    if (!writeOut(bar.header()))
        return 0;

    auto samplers = std::make_shared<LinuxSamplers>(roots);
    const std::optional<FakeClock> fake = fakeClockFromEnvironment();
    if (fake) {
        ManualScheduler scheduler(fake->start);
        samplers->setRateClock([&scheduler] { return scheduler.now().toMSecsSinceEpoch() / 1000.0; });
        SystemMonitor monitor(samplers, scheduler);
        if (!writeOut(bar.next(monitor)))
            return 0;
        for (int done = 0; fake->ticks < 0 || done < fake->ticks; ++done) {
            if (fake->ticks < 0) {
                char line[256];
                if (!std::fgets(line, sizeof line, stdin))
                    break;
            }
            scheduler.advance(std::lround(monitor.currentInterval() * 1000));
            monitor.tick();
            if (!writeOut(bar.next(monitor)))
                break;
        }
        return 0;
    }

    // The hidden panel's schedule: fast readers every tick, slow every 9th.
    SystemMonitor monitor(samplers);
    if (!writeOut(bar.next(monitor)))
        return 0;
    QObject::connect(&monitor, &SystemMonitor::ticked, &monitor, [&monitor, &bar] {
        if (!writeOut(bar.next(monitor)))
            QCoreApplication::exit(0);
    });
    return QCoreApplication::exec();
}

} // namespace

bool wantsCommandLine(const QStringList &arguments)
{
    return arguments.size() > 1;
}

int run(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "A desktop system monitor with a personality.\n\n"
        "Commands:\n"
        "  status          One summary of the machine and its mood.\n"
        "  bar             One label line per tick, for status bars.\n"
        "  capture FILE    Save the /proc and /sys files sulkbox reads, as FILE.tar.gz,\n"
        "                  to replay with --root.\n\n"
        "Without a command the desktop face starts: a tray item in the top bar whose\n"
        "panel opens on a click. Started again, it opens the running one's panel."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption jsonOption(QStringLiteral("json"), QStringLiteral("status: print every record as JSON."));
    const QCommandLineOption langOption(QStringLiteral("lang"),
                                        QStringLiteral("Interface language for this run: en, zhHans, zhHant, ja, ko, th."),
                                        QStringLiteral("language"));
    const QCommandLineOption fahrenheitOption(QStringLiteral("fahrenheit"), QStringLiteral("Temperatures in °F for this run."));
    const QCommandLineOption formatOption(QStringLiteral("format"),
                                          QStringLiteral("bar: plain (default), waybar or i3bar."), QStringLiteral("format"));
    const QCommandLineOption rootOption(QStringLiteral("root"),
                                        QStringLiteral("Read DIR/proc and DIR/sys instead of the live machine."),
                                        QStringLiteral("DIR"));
    parser.addOptions({jsonOption, langOption, fahrenheitOption, formatOption, rootOption});
    parser.addPositionalArgument(QStringLiteral("command"), QStringLiteral("status, bar or capture"));

    if (!parser.parse(arguments))
        return usageError(parser.errorText());
    if (parser.isSet(QStringLiteral("help"))) {
        writeOut(parser.helpText().toUtf8());
        return 0;
    }
    if (parser.isSet(QStringLiteral("version"))) {
        writeOut(QStringLiteral("sulkbox %1\n").arg(QCoreApplication::applicationVersion()).toUtf8());
        return 0;
    }

    const QStringList positional = parser.positionalArguments();
    if (positional.isEmpty())
        return usageError(QStringLiteral("no command given."));
    const QString command = positional.first();
    if (!commands.contains(command))
        return usageError(QStringLiteral("unknown command '%1'.").arg(command));
    if (command != u"capture" && positional.size() > 1)
        return usageError(QStringLiteral("unexpected argument '%1'.").arg(positional[1]));
    if (parser.isSet(jsonOption) && command != u"status")
        return usageError(QStringLiteral("--json goes with status."));
    if (parser.isSet(formatOption) && command != u"bar")
        return usageError(QStringLiteral("--format goes with bar."));
    if (parser.isSet(rootOption) && command == u"capture")
        return usageError(QStringLiteral("capture reads the live machine; --root does not apply."));

    // Overrides for this run only: the user's settings file is never written.
    if (parser.isSet(langOption)) {
        // A language's own name ("zhHant") or a tag of a supported one ("ja-JP").
        const QString value = parser.value(langOption);
        auto lang = languageFromRawText(value);
        const QString primary = QString(value).replace(u'_', u'-').section(u'-', 0, 0).toLower();
        if (!lang && QStringList{u"en"_qs, u"zh"_qs, u"ja"_qs, u"ko"_qs, u"th"_qs}.contains(primary))
            lang = Localizer::languageForTag(QString(value).replace(u'_', u'-'));
        if (!lang)
            return usageError(QStringLiteral("unknown language '%1' (en, zhHans, zhHant, ja, ko, th).").arg(value));
        Settings::overrideForThisRun(Settings::Key::appLanguage, languageRawText(*lang));
    }
    if (parser.isSet(fahrenheitOption))
        Settings::overrideForThisRun(Settings::Key::useFahrenheit, true);
    Localizer::shared().reload();

    SystemRoots roots;
    if (parser.isSet(rootOption)) {
        const QString dir = QFileInfo(parser.value(rootOption)).absoluteFilePath();
        if (!QFileInfo(dir).isDir())
            return usageError(QStringLiteral("--root: '%1' is not a folder.").arg(parser.value(rootOption)));
        roots = SystemRoots::underPrefix(dir);
    }

    if (command == u"status")
        return runStatus(roots, parser.isSet(jsonOption));
    if (command == u"bar") {
        const QString f = parser.isSet(formatOption) ? parser.value(formatOption) : QStringLiteral("plain");
        BarFormat format;
        if (f == u"plain")
            format = BarFormat::plain;
        else if (f == u"waybar")
            format = BarFormat::waybar;
        else if (f == u"i3bar")
            format = BarFormat::i3bar;
        else
            return usageError(QStringLiteral("unknown bar format '%1' (plain, waybar, i3bar).").arg(f));
        // A feed ends without the libraries' teardown: it has nothing to
        // save, and destructors that never ran before would be paged in
        // just to free what the kernel frees anyway.
        const int status = runBar(roots, format);
        std::fflush(nullptr);
        std::_Exit(status);
    }
    if (positional.size() != 2)
        return usageError(QStringLiteral("capture needs one FILE.tar.gz."));
    return Snapshot::capture(positional[1]);
}

} // namespace Cli
