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

    QString writeEntry(const QString &id, const QByteArray &body)
    {
        const QString path = m_data.filePath(QStringLiteral("home/applications/") + id);
        TestSupport::writeFile(path, body);
        return path;
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
        QCOMPARE(SystemMonitorApp::candidateIds(QStringLiteral("KDE")).first(),
                 QStringLiteral("org.kde.plasma-systemmonitor.desktop"));
        // Ubuntu's session names itself before GNOME.
        const QStringList gnome = SystemMonitorApp::candidateIds(QStringLiteral("ubuntu:GNOME"));
        QCOMPARE(gnome.first(), QStringLiteral("org.gnome.SystemMonitor.desktop"));
        // Every id appears once, whatever the desktop.
        QCOMPARE(QSet<QString>(gnome.begin(), gnome.end()).size(), gnome.size());
        QCOMPARE(SystemMonitorApp::candidateIds({}).size(), gnome.size());
    }

    void execLine()
    {
        const QString a = writeEntry(QStringLiteral("a.desktop"),
                                     "[Desktop Entry]\nType=Application\nName=A\n"
                                     "Exec=\"/opt/my monitor/bin/mon\" --tab=\"a \\\"b\\\"\" %U 100%%,x\n");
        QCOMPARE(SystemMonitorApp::commandOf(a),
                 (QStringList{u"/opt/my monitor/bin/mon"_qs, u"--tab=a \"b\""_qs, u"100%,x"_qs}));

        // Entries that can't be started: not an application, hidden, a
        // missing TryExec, no Exec at all.
        for (const QByteArray &body : {QByteArray("Type=Link\nURL=http://x\nExec=mon\n"),
                                       QByteArray("Type=Application\nHidden=true\nExec=mon\n"),
                                       QByteArray("Type=Application\nTryExec=/nonexistent/mon\nExec=mon\n"),
                                       QByteArray("Type=Application\nName=N\n")})
            QVERIFY2(SystemMonitorApp::commandOf(writeEntry(u"x.desktop"_qs, "[Desktop Entry]\n" + body)).isEmpty(),
                     body.constData());
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
