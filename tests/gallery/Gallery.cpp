// Renders the panel as a user would see it, in every interface language, in
// light and dark, on two fixture machines, and writes one PNG per case:
// the panel as it opens on the left, scrolled to the end on the right.
//
//   panel_gallery OUTPUT_DIR
//
// The slow readings (battery, temperatures, fans, GPU, the processor's name)
// come from the fixture trees through the real readers; what only a live
// machine has (load, rates, volumes, processes) is scripted, changing from
// tick to tick so that the histories have a shape.

#include "l10n/Localizer.h"
#include "model/SystemMonitor.h"
#include "personality/Mood.h"
#include "personality/Roasts.h"
#include "sampling/LinuxSamplers.h"
#include "settings/AppSettings.h"
#include "settings/Settings.h"
#include "ui/common/DesktopActions.h"
#include "ui/common/DesktopContext.h"
#include "ui/panel/Icon.h"

#include <QDir>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QSGRendererInterface>
#include <QSettings>
#include <QTemporaryDir>
#include <QThreadPool>

#include <cmath>
#include <cstdio>
#include <memory>

namespace {

int warnings = 0;
QtMessageHandler previousHandler = nullptr;

void countWarnings(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type == QtWarningMsg || type == QtCriticalMsg)
        ++warnings;
    if (previousHandler)
        previousHandler(type, context, message);
}

enum class Machine { laptop, desktop };

// A repeatable jitter in 0..1 for tick t and channel k.
double jitter(int t, int k)
{
    const double v = std::sin(t * 12.9898 + k * 78.233) * 43758.5453;
    return v - std::floor(v);
}

// The fixture's own readers for what it has, a script for the rest.
class GallerySamplers : public Samplers {
public:
    GallerySamplers(Machine machine, const QString &fixtures)
        : m_machine(machine)
        , m_real(SystemRoots::underPrefix(fixtures + (machine == Machine::laptop ? u"/laptop"_qs : u"/amd-desktop"_qs)))
    {
    }

    void step() { ++m_t; }

    QString cpuBrand() override
    {
        const QString brand = m_real.cpuBrand();
        return brand.isEmpty() || brand == u"CPU" ? u"AMD Ryzen 7 7700X 8-Core Processor"_qs : brand;
    }

    CPUSample readCPU() override
    {
        CPUSample s;
        const int cores = m_machine == Machine::laptop ? 8 : 16;
        const double base = m_machine == Machine::laptop ? 0.18 : 0.46;
        double sum = 0;
        for (int i = 0; i < cores; ++i) {
            const double v = std::clamp(base + 0.3 * std::sin(0.35 * m_t + 1.7 * i) * std::cos(0.11 * m_t + i)
                                            + 0.12 * (jitter(m_t, i) - 0.5), 0.0, 1.0);
            s.perCore << v;
            sum += v;
        }
        s.total = sum / cores;
        s.user = s.total * 0.68;
        s.system = s.total - s.user;
        s.idle = 1 - s.total;
        return s;
    }

    MemorySample readMemory() override
    {
        MemorySample m = m_real.readMemory();
        if (m.total <= 0) {
            m.total = 32e9;
            m.used = 19.4e9;
            m.wired = 3.1e9;
            m.compressed = 0.6e9;
            m.cached = 8.2e9;
            m.swapTotal = 8e9;
            m.swapUsed = 0.3e9;
            m.deriveFreeAndPressure();
        }
        return m;
    }

    NetworkSample readNetwork(bool refresh) override
    {
        NetworkSample n = m_real.readNetwork(refresh);
        if (n.primaryInterface == Records::unknownText)
            n.primaryInterface = m_machine == Machine::laptop ? u"wlp0s20f3"_qs : u"enp5s0"_qs;
        if (n.ipv4 == Records::unknownText)
            n.ipv4 = m_machine == Machine::laptop ? u"192.168.1.23"_qs : u"10.0.0.12"_qs;
        const double wave = 0.5 + 0.5 * std::sin(0.23 * m_t);
        const double burst = m_t % 17 < 5 ? 1.0 : 0.25;
        n.downRate = (m_machine == Machine::laptop ? 2.4e6 : 7.5e6) * wave * wave * burst * (0.6 + 0.8 * jitter(m_t, 40))
                     + 40e3 * jitter(m_t, 41);
        n.upRate = 180e3 * (0.5 + 0.5 * std::cos(0.31 * m_t)) * jitter(m_t, 42) + 12e3;
        n.totalIn = 18.7e9 + m_t * 2e6;
        n.totalOut = 2.3e9 + m_t * 1e5;
        return n;
    }

    DiskSample readDisk() override
    {
        DiskSample d;
        d.hasRate = true;
        d.readRate = 3.2e6 * std::max(0.0, std::sin(0.4 * m_t)) * jitter(m_t, 50) + 64e3 * jitter(m_t, 51);
        d.writeRate = (m_t % 11 == 3 ? 9e6 : 0.4e6 * jitter(m_t, 52)) + 20e3;
        if (m_machine == Machine::laptop) {
            d.volumes = {VolumeInfo{u"System"_qs, u"/"_qs, 512e9, 138e9},
                         VolumeInfo{u"Backup"_qs, u"/media/backup"_qs, 1e12, 0.62e12}};
        } else {
            d.volumes = {VolumeInfo{u"Games"_qs, u"/mnt/games"_qs, 2e12, 0.21e12},
                         VolumeInfo{u"System"_qs, u"/"_qs, 1e12, 0.55e12},
                         VolumeInfo{u"boot"_qs, u"/boot/efi"_qs, 0.5e9, 0.44e9}};
        }
        return d;
    }

    void clearDiskBaseline() override {}
    BatterySample readBattery() override { return m_real.readBattery(); }
    SensorSample readSensors() override { return m_real.readSensors(); }
    GPUSample readGPU() override { return m_real.readGPU(); }

    QmPowerReading readPower() override
    {
        // Energy counters need two readings apart in time; a still fixture
        // has none, so the desktop's draw is scripted.
        QmPowerReading p = m_real.readPower();
        if (p.cpu <= 0) {
            p.cpu = m_machine == Machine::laptop ? 6.2 + std::sin(0.2 * m_t) : 38.5 + 4 * std::sin(0.2 * m_t);
            if (p.gpu <= 0 && m_machine == Machine::laptop)
                p.gpu = 0.6;
            p.total = p.cpu + p.gpu + (m_machine == Machine::laptop ? 2.1 : 21.7);
            p.ok = 1;
        }
        return p;
    }
    void resetPower() override { m_real.resetPower(); }

    QList<ProcInfo> topProcesses(int limit) override
    {
        QList<ProcInfo> list;
        if (m_machine == Machine::laptop) {
            list = {ProcInfo(2101, u"firefox-esr"_qs, 38.2, 6.1), ProcInfo(1433, u"gnome-shell"_qs, 12.4, 3.3),
                    ProcInfo(1620, u"Xwayland"_qs, 6.1, 1.2), ProcInfo(988, u"pipewire"_qs, 2.3, 0.4),
                    ProcInfo(3011, u"sulkbox"_qs, 0.8, 0.3), ProcInfo(1702, u"tracker-miner-fs-3"_qs, 0.4, 0.9),
                    ProcInfo(1, u"systemd"_qs, 0.1, 0.1)};
        } else {
            list = {ProcInfo(4410, u"blender"_qs, 412.5, 9.8), ProcInfo(2210, u"steamwebhelper"_qs, 24.0, 2.1),
                    ProcInfo(1890, u"kwin_wayland"_qs, 9.6, 1.4), ProcInfo(2400, u"code"_qs, 5.2, 3.0),
                    ProcInfo(990, u"pipewire-pulse"_qs, 1.1, 0.2), ProcInfo(3011, u"sulkbox"_qs, 0.6, 0.3)};
        }
        return list.mid(0, limit);
    }

private:
    Machine m_machine;
    LinuxSamplers m_real;
    int m_t = 0;
};

QPalette lightPalette()
{
    QPalette p;
    p.setColor(QPalette::Window, QColor(0xf6, 0xf5, 0xf4));
    p.setColor(QPalette::WindowText, QColor(0x1e, 0x1e, 0x1e));
    p.setColor(QPalette::Base, Qt::white);
    p.setColor(QPalette::Text, QColor(0x1e, 0x1e, 0x1e));
    p.setColor(QPalette::Button, QColor(0xed, 0xec, 0xeb));
    p.setColor(QPalette::ButtonText, QColor(0x1e, 0x1e, 0x1e));
    p.setColor(QPalette::Highlight, QColor(0x35, 0x84, 0xe4));
    p.setColor(QPalette::HighlightedText, Qt::white);
    p.setColor(QPalette::Mid, QColor(0xc0, 0xbf, 0xbc));
    p.setColor(QPalette::Dark, QColor(0x9a, 0x99, 0x96));
    return p;
}

QPalette darkPalette()
{
    QPalette p;
    p.setColor(QPalette::Window, QColor(0x24, 0x24, 0x24));
    p.setColor(QPalette::WindowText, QColor(0xf2, 0xf2, 0xf2));
    p.setColor(QPalette::Base, QColor(0x1e, 0x1e, 0x1e));
    p.setColor(QPalette::Text, QColor(0xf2, 0xf2, 0xf2));
    p.setColor(QPalette::Button, QColor(0x30, 0x30, 0x30));
    p.setColor(QPalette::ButtonText, QColor(0xf2, 0xf2, 0xf2));
    p.setColor(QPalette::Highlight, QColor(0x35, 0x84, 0xe4));
    p.setColor(QPalette::HighlightedText, Qt::white);
    p.setColor(QPalette::Mid, QColor(0x4a, 0x4a, 0x4a));
    p.setColor(QPalette::Dark, QColor(0x1a, 0x1a, 0x1a));
    return p;
}

// Waits for the springs and fades (all well under a second).
void settle(QQuickWindow &window, int ms = 700)
{
    QElapsedTimer t;
    t.start();
    while (t.elapsed() < ms)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    window.grabWindow();
}

enum class Scene { quip, savageRoast, annoyedExpanded, gentleRoastExpanded };

struct Case {
    Machine machine;
    bool dark;
    Scene scene;
    QString name;
};

QImage renderCase(const Case &c, AppLanguage lang, const QString &fixtures)
{
    QGuiApplication::setPalette(c.dark ? darkPalette() : lightPalette());
    Localizer::shared().setLanguage(lang);
    AppSettings::shared().setSavageMode(c.scene == Scene::savageRoast);
    AppSettings::shared().setPetName(c.machine == Machine::desktop ? u"Pixel"_qs : QString());

    ManualScheduler scheduler;
    auto samplers = std::make_shared<GallerySamplers>(c.machine, fixtures);
    SystemMonitor monitor(samplers, scheduler);
    DesktopActions actions;
    QQmlEngine engine;
    DesktopContext::install(engine.rootContext(), &monitor, &AppSettings::shared(), &Localizer::shared(), &actions);

    // Past the waking-up greeting, then a minute of history.
    scheduler.advance(10 * 60 * 1000);
    monitor.setPanelVisible(true);
    for (int i = 0; i < 60; ++i) {
        samplers->step();
        scheduler.advance(1000);
        monitor.tick();
    }
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();

    QQuickWindow window;
    QQmlComponent component(&engine, QUrl(u"qrc:/sulkbox/qml/Panel.qml"_qs));
    QObject *object = component.beginCreate(engine.rootContext());
    if (!object) {
        std::fprintf(stderr, "%s\n", qPrintable(component.errorString()));
        ++warnings;
        return {};
    }
    auto *root = qobject_cast<QQuickItem *>(object);
    root->setParentItem(window.contentItem());
    component.completeCreate();
    QObject::connect(root, &QQuickItem::implicitHeightChanged, &window,
                     [&] { window.resize(300, int(std::ceil(root->implicitHeight()))); });
    window.resize(300, int(std::ceil(root->implicitHeight())));
    window.show();
    settle(window, 100);

    auto invoke = [](QObject *o, const char *method) { QMetaObject::invokeMethod(o, method); };
    QObject *banner = root->findChild<QObject *>(u"banner"_qs);
    switch (c.scene) {
    case Scene::quip:
        invoke(banner, "poke");
        break;
    case Scene::savageRoast:
        monitor.roast(RoastTopic::memory);
        break;
    case Scene::annoyedExpanded:
        for (int i = 0; i < 5; ++i)
            invoke(banner, "poke");
        if (QObject *chart = root->findChild<QObject *>(u"cpuChart"_qs))
            chart->setProperty("expanded", true);
        break;
    case Scene::gentleRoastExpanded:
        monitor.roast(RoastTopic::network);
        if (QObject *net = root->findChild<QObject *>(u"networkModule"_qs)) {
            if (QObject *chart = net->findChild<QObject *>(u"rateChart"_qs))
                chart->setProperty("expanded", true);
        }
        break;
    }
    settle(window);
    // Three views: as it opens, scrolled to the network module, at the end.
    auto *scroller = root->findChild<QQuickItem *>(u"scroller"_qs);
    const qreal end = std::max(0.0, scroller->property("contentHeight").toReal() - scroller->height());
    qreal middle = end / 2;
    if (auto *net = root->findChild<QQuickItem *>(u"networkModule"_qs))
        middle = std::min(end, net->mapToItem(scroller->property("contentItem").value<QQuickItem *>(), QPointF()).y() - 40);
    QList<QImage> views;
    for (qreal y : {0.0, middle, end}) {
        scroller->setProperty("contentY", y);
        settle(window, views.isEmpty() ? 0 : 50);
        views << window.grabWindow();
    }

    int width = 0;
    int height = 0;
    for (const QImage &v : views) {
        width += v.width() + 12;
        height = std::max(height, v.height());
    }
    QImage sheet(width - 12, height, QImage::Format_RGB32);
    sheet.fill(c.dark ? QColor(0x10, 0x10, 0x10) : QColor(0xd0, 0xd0, 0xd0));
    QPainter p(&sheet);
    int x = 0;
    for (const QImage &v : views) {
        p.drawImage(x, 0, v);
        x += v.width() + 12;
    }
    p.end();

    monitor.setPanelVisible(false);
    delete root;
    return sheet;
}

// Every mood the machine can show, as the banner shows it, in one language:
// checks every phrase and reason for fit and every face for its glyph.
QImage moodSheet(AppLanguage lang, const QString &fixtures)
{
    QGuiApplication::setPalette(lightPalette());
    Localizer::shared().setLanguage(lang);
    AppSettings::shared().setSavageMode(false);
    AppSettings::shared().setPetName(QString());

    ManualScheduler scheduler;
    auto samplers = std::make_shared<GallerySamplers>(Machine::laptop, fixtures);
    SystemMonitor monitor(samplers, scheduler);
    DesktopActions actions;
    QQmlEngine engine;
    DesktopContext::install(engine.rootContext(), &monitor, &AppSettings::shared(), &Localizer::shared(), &actions);
    QQuickWindow window;
    QQmlComponent component(&engine, QUrl(u"qrc:/sulkbox/qml/Panel.qml"_qs));
    std::unique_ptr<QObject> object(component.beginCreate(engine.rootContext()));
    auto *root = qobject_cast<QQuickItem *>(object.get());
    if (!root)
        return {};
    root->setParentItem(window.contentItem());
    component.completeCreate();
    window.resize(300, 700);
    window.show();
    auto *banner = root->findChild<QQuickItem *>(u"banner"_qs);

    // The panel stays closed, so nothing fades: each change shows at once.
    QList<Mood> moods = {Mood::placeholder(), Moods::justWokeUp(), Moods::soHot(92), Moods::runningLow(0.12),
                         Moods::memoryFull(0.93), Moods::swappingHard(6.4e9), Moods::phew(),
                         Moods::allCoresBlazing(7, 8), Moods::workingHard(0.86), Moods::dataFeast(12.5e6),
                         Moods::gobblingData(6.1e6), Moods::beamingUp(2.2e6), Moods::warmingUp(78),
                         Moods::refueling(0.64), Moods::cruisingLoad(0.35), Moods::cruisingWarmth(62),
                         Moods::almostPacked(0.93), Moods::sleepy(), Moods::dozingOff(), Moods::allChill(),
                         Moods::peaceful(), Moods::stopPoking(), Moods::glovesOff(), Moods::beingNice(),
                         Moods::freshening(), Moods::muchLighter(1.2e9)};
    const QList<std::pair<QString, LocKey>> holidays = {
        {u"\U0001F973"_qs, LocKey::holNewYear},   {u"\U0001F970"_qs, LocKey::holValentines},
        {u"\U0001F383"_qs, LocKey::holHalloween}, {u"\U0001F384"_qs, LocKey::holChristmas},
        {u"\U0001F9E7"_qs, LocKey::holSpring},    {u"\U0001F96E"_qs, LocKey::holMidAutumn},
        {u"\U0001F409"_qs, LocKey::holDragonBoat}};
    for (const auto &[emoji, key] : holidays)
        moods << Moods::festive(emoji, key, LocKey::holCheer);

    QList<QImage> tiles;
    for (const Mood &mood : moods) {
        monitor.setReaction(mood);
        QCoreApplication::processEvents();
        const QImage shot = window.grabWindow();
        const int h = int(std::ceil(banner->parentItem()->height()));
        tiles << shot.copy(0, 0, 300, h);
    }
    // The savage smirk, during a roast.
    AppSettings::shared().setSavageMode(true);
    monitor.roast(RoastTopic::cpu);
    QCoreApplication::processEvents();
    tiles << window.grabWindow().copy(0, 0, 300, int(std::ceil(banner->parentItem()->height())));
    AppSettings::shared().setSavageMode(false);

    const int columns = 2;
    const int rows = int((tiles.size() + columns - 1) / columns);
    int tileHeight = 0;
    for (const QImage &t : tiles)
        tileHeight = std::max(tileHeight, t.height());
    QImage sheet(columns * 300 + (columns - 1) * 4, rows * (tileHeight + 4), QImage::Format_RGB32);
    sheet.fill(QColor(0xd0, 0xd0, 0xd0));
    QPainter p(&sheet);
    for (int i = 0; i < tiles.size(); ++i)
        p.drawImage((i % columns) * 304, (i / columns) * (tileHeight + 4), tiles[i]);
    p.end();
    object.reset();
    return sheet;
}

// Every icon at the sizes the panel uses and at 32 px, light and dark.
QImage iconSheet()
{
    const QStringList names = QDir(u":/sulkbox/icons"_qs).entryList({u"*.svg"_qs}, QDir::Files, QDir::Name);
    const int cell = 44;
    QImage sheet(cell * int(names.size()), cell * 2, QImage::Format_RGB32);
    QPainter p(&sheet);
    for (int row = 0; row < 2; ++row) {
        const QColor bg = row == 0 ? QColor(0xf6, 0xf5, 0xf4) : QColor(0x24, 0x24, 0x24);
        const QColor fg = row == 0 ? QColor(0x1e, 0x1e, 0x1e) : QColor(0xf2, 0xf2, 0xf2);
        p.fillRect(0, row * cell, sheet.width(), cell, bg);
        for (int i = 0; i < names.size(); ++i) {
            const QString name = QFileInfo(names[i]).completeBaseName();
            p.drawImage(i * cell + 2, row * cell + 2, Icon::render(name, 10, fg));
            p.drawImage(i * cell + 2, row * cell + 16, Icon::render(name, 12, fg));
            p.drawImage(i * cell + 12, row * cell + 10, Icon::render(name, 32, fg));
        }
    }
    return sheet;
}

} // namespace

int main(int argc, char **argv)
{
    QTemporaryDir settingsDir;
    qputenv("XDG_CONFIG_HOME", settingsDir.path().toUtf8());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settingsDir.path());
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settingsDir.path());
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QQuickStyle::setStyle(u"Fusion"_qs);
    QGuiApplication app(argc, argv);
    previousHandler = qInstallMessageHandler(countWarnings);

    const QString out = argc > 1 ? QString::fromLocal8Bit(argv[1]) : u"gallery"_qs;
    QDir().mkpath(out);
    const QString fixtures = QStringLiteral(SULK_FIXTURES);

    const QList<Case> cases = {
        {Machine::laptop, false, Scene::quip, u"laptop-light"_qs},
        {Machine::laptop, true, Scene::savageRoast, u"laptop-dark"_qs},
        {Machine::desktop, false, Scene::annoyedExpanded, u"desktop-light"_qs},
        {Machine::desktop, true, Scene::gentleRoastExpanded, u"desktop-dark"_qs},
    };
    int written = 0;
    for (AppLanguage lang : concreteLanguages()) {
        for (const Case &c : cases) {
            const QImage image = renderCase(c, lang, fixtures);
            const QString file = out + u'/' + languageRawText(lang) + u'-' + c.name + u".png"_qs;
            if (image.isNull() || !image.save(file)) {
                std::fprintf(stderr, "could not write %s\n", qPrintable(file));
                return 1;
            }
            ++written;
        }
    }
    for (AppLanguage lang : concreteLanguages()) {
        if (!moodSheet(lang, fixtures).save(out + u"/moods-"_qs + languageRawText(lang) + u".png"_qs))
            return 1;
        ++written;
    }
    iconSheet().save(out + u"/icons.png"_qs);
    std::printf("%d pictures in %s, %d warnings\n", written + 1, qPrintable(out), warnings);
    return warnings == 0 ? 0 : 1;
}
