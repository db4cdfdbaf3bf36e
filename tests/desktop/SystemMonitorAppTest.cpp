// The footer's "System Monitor": the desktop's own monitor, found by its
// desktop-file id and started from its Exec line; nothing when none exists.

#include "common/TestSupport.h"

#include "app/desktop/SystemMonitorApp.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class SystemMonitorAppTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_data;
    QByteArray m_oldDataHome, m_oldDataDirs;

    void writeEntry(const QString &id, const QByteArray &body)
    {
        TestSupport::writeFile(m_data.filePath(QStringLiteral("home/applications/") + id), body);
    }

private slots:
    void initTestCase()
    {
        m_oldDataHome = qgetenv("XDG_DATA_HOME");
        m_oldDataDirs = qgetenv("XDG_DATA_DIRS");
        qputenv("XDG_DATA_HOME", m_data.filePath(QStringLiteral("home")).toUtf8());
        qputenv("XDG_DATA_DIRS", m_data.filePath(QStringLiteral("system")).toUtf8());
    }

    void cleanupTestCase()
    {
        qputenv("XDG_DATA_HOME", m_oldDataHome);
        qputenv("XDG_DATA_DIRS", m_oldDataDirs);
    }

    void currentDesktopComesFirst()
    {
        const QStringList kde = SystemMonitorApp::candidateIds(QStringLiteral("KDE"));
        QCOMPARE(kde.first(), QStringLiteral("org.kde.plasma-systemmonitor.desktop"));
        // Ubuntu's session names itself before GNOME.
        const QStringList gnome = SystemMonitorApp::candidateIds(QStringLiteral("ubuntu:GNOME"));
        QCOMPARE(gnome.first(), QStringLiteral("org.gnome.SystemMonitor.desktop"));
        // Every id appears once, whatever the desktop.
        QCOMPARE(QSet<QString>(gnome.begin(), gnome.end()).size(), gnome.size());
        QCOMPARE(SystemMonitorApp::candidateIds({}).size(), gnome.size());
    }

    void execLine()
    {
        writeEntry(QStringLiteral("a.desktop"),
                   "[Desktop Entry]\nType=Application\nName=A\n"
                   "Exec=\"/opt/my monitor/bin/mon\" --tab=\"a \\\"b\\\"\" %U 100%%,x\n");
        QCOMPARE(SystemMonitorApp::commandOf(m_data.filePath(QStringLiteral("home/applications/a.desktop"))),
                 (QStringList{u"/opt/my monitor/bin/mon"_qs, u"--tab=a \"b\""_qs, u"100%,x"_qs}));

        // Entries that can't be started: not an application, hidden, a
        // missing TryExec, no Exec at all.
        writeEntry(QStringLiteral("link.desktop"), "[Desktop Entry]\nType=Link\nURL=http://x\nExec=mon\n");
        writeEntry(QStringLiteral("hidden.desktop"), "[Desktop Entry]\nType=Application\nHidden=true\nExec=mon\n");
        writeEntry(QStringLiteral("try.desktop"),
                   "[Desktop Entry]\nType=Application\nTryExec=/nonexistent/mon\nExec=mon\n");
        writeEntry(QStringLiteral("noexec.desktop"), "[Desktop Entry]\nType=Application\nName=N\n");
        for (const char *id : {"link", "hidden", "try", "noexec"})
            QVERIFY2(SystemMonitorApp::commandOf(
                         m_data.filePath(QStringLiteral("home/applications/%1.desktop").arg(QLatin1StringView(id))))
                         .isEmpty(),
                     id);
    }

    void startsTheFirstThatExists()
    {
        const QString marker = m_data.filePath(QStringLiteral("started"));
        // The preferred id can't be started; the next one is used.
        writeEntry(QStringLiteral("org.gnome.SystemMonitor.desktop"),
                   "[Desktop Entry]\nType=Application\nTryExec=/nonexistent\nExec=true\n");
        writeEntry(QStringLiteral("gnome-system-monitor.desktop"),
                   "[Desktop Entry]\nType=Application\nExec=sh -c \"echo started > '" + marker.toUtf8() + "'\"\n");
        qputenv("XDG_CURRENT_DESKTOP", "GNOME");
        QVERIFY(SystemMonitorApp::open());
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(marker), 5000);

        // None installed: nothing happens, and open() says so.
        QFile::remove(m_data.filePath(QStringLiteral("home/applications/gnome-system-monitor.desktop")));
        QVERIFY(!SystemMonitorApp::open());
    }
};

SULK_TEST(SystemMonitorAppTest)
#include "SystemMonitorAppTest.moc"
