#include "ui/prefs/UpdateWindow.h"

#include "ui/prefs/PreferencesWindow.h"
#include "ui/prefs/PrefsQml.h"

#include <QDesktopServices>
#include <QMetaEnum>
#include <QQmlContext>
#include <QQuickWindow>

UpdateWindow &UpdateWindow::shared()
{
    static UpdateWindow *instance = new UpdateWindow(Updater::shared()); // lives for the whole process
    return *instance;
}

UpdateWindow::UpdateWindow(Updater &updater, QObject *parent)
    : QObject(parent)
    , m_updater(updater)
{
    connect(&updater, &Updater::checkStarted, this, &UpdateWindow::onStarted);
    connect(&updater, &Updater::finished, this, &UpdateWindow::report);
}

UpdateWindow::~UpdateWindow()
{
    delete m_window;
}

QQuickWindow *UpdateWindow::window() const
{
    return m_window;
}

bool UpdateWindow::isShowing() const
{
    return m_window && m_window->isVisible();
}

QString UpdateWindow::iconSource() const
{
    return PreferencesWindow::applicationIconSource();
}

QString UpdateWindow::failure() const
{
    if (m_state != u"failed")
        return {};
    return QString::fromLatin1(QMetaEnum::fromType<Updater::Failure>().valueToKey(int(m_result.failure)));
}

QString UpdateWindow::errorCode() const
{
    // A no-break space: "HTTP" and its number stay on one line.
    return m_result.httpStatus > 0 ? QStringLiteral("HTTP\u00a0%1").arg(m_result.httpStatus) : QString();
}

void UpdateWindow::checkNow()
{
    m_updater.checkForUpdates();
}

void UpdateWindow::onStarted(bool userInitiated)
{
    if (!userInitiated)
        return;
    m_state = QStringLiteral("checking");
    m_result = {};
    m_result.currentVersion = m_updater.currentVersion();
    emit changed();
    show();
}

void UpdateWindow::report(const Updater::Result &result, bool userInitiated)
{
    // Automatic checks speak only of a newer version.
    if (!userInitiated && result.outcome != Updater::Outcome::available)
        return;
    m_result = result;
    switch (result.outcome) {
    case Updater::Outcome::upToDate: m_state = QStringLiteral("upToDate"); break;
    case Updater::Outcome::available: m_state = QStringLiteral("available"); break;
    case Updater::Outcome::failed: m_state = QStringLiteral("failed"); break;
    }
    emit changed();
    show();
}

void UpdateWindow::show()
{
    if (!m_window) {
        m_context = PrefsQml::makeContext(QStringLiteral("updateCheck"), this);
        m_window = PrefsQml::createWindow(QStringLiteral("qrc:/sulkbox/qml/UpdateResult.qml"), m_context);
    }
    PrefsQml::present(m_window);
}

void UpdateWindow::openDownloadPage()
{
    const QUrl page = m_result.item.downloadPage();
    if (page.isValid())
        QDesktopServices::openUrl(page);
    close();
}

void UpdateWindow::openReleaseNotes()
{
    const QUrl page = m_result.item.notesPage();
    if (page.isValid())
        QDesktopServices::openUrl(page);
}

void UpdateWindow::close()
{
    if (m_window)
        m_window->close();
}

void UpdateWindow::discardWindow()
{
    delete m_window;
    delete m_context;
}
