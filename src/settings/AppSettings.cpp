#include "settings/AppSettings.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QMetaMethod>
#include <QMetaProperty>
#include <QTimer>

AppSettings &AppSettings::shared()
{
    static AppSettings *instance = new AppSettings; // lives for the whole process
    return *instance;
}

AppSettings::AppSettings()
{
    Settings::setObserver([this](Settings::Key key) { announce(key); });
}

void AppSettings::announce(Settings::Key key)
{
    const QMetaObject *mo = metaObject();
    const int index = mo->indexOfProperty(Settings::entry(key).name);
    if (index >= 0)
        mo->property(index).notifySignal().invoke(this, Qt::DirectConnection);
    emit changed(key);
}

void AppSettings::watchFile()
{
    if (m_watcher || !Settings::usingUserFile())
        return;
    m_watcher = new QFileSystemWatcher(this);
    m_debounce = new QTimer(this);
    m_debounce->setSingleShot(true);
    // Editors and QSettings replace the file in several steps; read it once
    // they are done.
    m_debounce->setInterval(50);
    connect(m_debounce, &QTimer::timeout, this, [this] {
        reload();
        watchPaths();
    });
    const auto poke = [this] { m_debounce->start(); };
    connect(m_watcher, &QFileSystemWatcher::fileChanged, this, poke);
    connect(m_watcher, &QFileSystemWatcher::directoryChanged, this, poke);
    watchPaths();
}

void AppSettings::watchPaths()
{
    // The folder tells when the file appears or is replaced (a rename onto
    // it); the file itself tells when it is written in place.
    const QString file = Settings::filePath();
    const QString dir = QFileInfo(file).absolutePath();
    QStringList wanted;
    if (QFileInfo::exists(dir))
        wanted << dir;
    else // not made yet: its parent tells when it appears
        wanted << QFileInfo(dir).absolutePath();
    if (QFileInfo(file).isFile())
        wanted << file;
    const QStringList have = m_watcher->files() + m_watcher->directories();
    for (const QString &p : wanted)
        if (!have.contains(p))
            m_watcher->addPath(p);
}

void AppSettings::reload()
{
    if (!Settings::usingUserFile())
        return;
    // A file that turned into something unsafe since start is left alone.
    const QFileInfo info(Settings::filePath());
    if (info.exists() && !info.isFile())
        return;
    Settings::reloadFromDisk();
}
