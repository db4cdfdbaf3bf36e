#pragma once
// Update checks, notify only: fetch the update feed (see Appcast.h), find its
// newest release and tell whether it is newer than this build. Nothing is
// downloaded or installed; the result window offers the release's page in
// the browser.
//
// The feed address is the SULKBOX_UPDATE_FEED build option, replaced by the
// "updateFeedURL" setting when that holds a web address. With neither there
// is nothing to check: updates come from the distribution's packages.
//
// Automatic checks ("automaticUpdateChecks", off unless the user turns them
// on) run at most once a day. The time of the latest check is kept under
// "lastUpdateCheck", so the day survives restarts. The time is read from a
// Scheduler, so tests move the clock by hand.

#include "app/desktop/Appcast.h"

#include <QByteArray>
#include <QNetworkReply>
#include <QDateTime>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QUrl>

class QNetworkAccessManager;

class Scheduler;

class Updater : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool configured READ configured NOTIFY configuredChanged)
    Q_PROPERTY(bool checking READ checking NOTIFY checkingChanged)

public:
    enum class Outcome { upToDate, available, failed };
    Q_ENUM(Outcome)
    // Why a check failed, in the words the result window uses.
    enum class Failure {
        none,
        notConfigured,
        unreachable, // no connection, name not found, refused, TLS
        timedOut,    // no complete answer in time
        serverError, // an HTTP error status or endless redirects
        badFeed,     // not a feed, no release in it, or far too large
    };
    Q_ENUM(Failure)

    struct Result {
        Outcome outcome = Outcome::failed;
        Failure failure = Failure::none;
        int httpStatus = 0;
        QString currentVersion;
        // The newest release of the feed (when the feed could be read).
        AppcastItem item;
    };

    static constexpr qint64 defaultMaxBytes = 2 * 1024 * 1024;
    static constexpr int defaultTimeoutMs = 30 * 1000;
    static constexpr int defaultMaxRedirects = 5;
    static constexpr qint64 checkIntervalMs = 24LL * 3600 * 1000;
    // The automatic check waits this long after start, so it never slows it.
    static constexpr int defaultStartDelayMs = 15 * 1000;

    // The one instance, on the system clock.
    static Updater &shared();
    explicit Updater(Scheduler &scheduler, QObject *parent = nullptr);
    ~Updater() override;

    // The address the build was configured with (may be empty).
    static QString builtInFeed();
    // The address in use: the setting's, else the build's; empty when neither
    // is a web address.
    QUrl feedUrl() const;
    bool configured() const { return feedUrl().isValid(); }
    bool checking() const { return m_reply != nullptr; }

    // The version releases are compared with (this build's, unless a test sets another).
    QString currentVersion() const { return m_currentVersion; }
    void setCurrentVersion(const QString &version) { m_currentVersion = version; }
    void setLimits(qint64 maxBytes, int timeoutMs, int maxRedirects);
    void setStartDelay(int ms) { m_startDelayMs = ms; }

    bool automaticallyChecks() const;
    void setAutomaticallyChecks(bool on);
    // When the latest check started; invalid when there was none.
    QDateTime lastCheck() const;

    // A check the user asked for: its result is always reported.
    void checkForUpdates();
    // Starts the automatic checks (when the setting asks for them) and
    // follows the setting from now on.
    void start();

signals:
    void configuredChanged();
    void checkingChanged();
    void checkStarted(bool userInitiated);
    // `userInitiated` is false for automatic checks, whose result only
    // matters when a newer release exists.
    void finished(const Updater::Result &result, bool userInitiated);

private:
    void runCheck(bool userInitiated);
    void schedule(qint64 minDelayMs = 0);
    qint64 msUntilDue() const;
    void onReadyRead();
    void onFinished();
    Result resultOf(QNetworkReply *reply) const;

    Scheduler &m_scheduler;
    QNetworkAccessManager *m_network = nullptr;
    QPointer<QNetworkReply> m_reply;
    QByteArray m_body;
    QTimer m_deadline;
    bool m_timedOut = false;
    bool m_tooLarge = false;
    bool m_userWaiting = false;
    bool m_started = false;
    quint64 m_generation = 0;

    QString m_currentVersion;
    qint64 m_maxBytes = defaultMaxBytes;
    int m_timeoutMs = defaultTimeoutMs;
    int m_maxRedirects = defaultMaxRedirects;
    int m_startDelayMs = defaultStartDelayMs;
};

Q_DECLARE_METATYPE(Updater::Result)
