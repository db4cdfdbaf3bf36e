#include "app/desktop/Updater.h"

#include "app/desktop/AppVersion.h"
#include "model/Scheduler.h"
#include "settings/AppSettings.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimeZone>

#include <algorithm>

#ifndef SULKBOX_UPDATE_FEED
#define SULKBOX_UPDATE_FEED ""
#endif

namespace {

// While waiting for the next automatic check, look at the wall clock again
// at least this often: timers stop while the computer sleeps, the clock does not.
constexpr qint64 kRecheckMs = 3600 * 1000;

QUrl asFeed(const QString &text)
{
    const QUrl url(text.trimmed(), QUrl::StrictMode);
    return Appcast::isWebAddress(url) ? url : QUrl();
}

} // namespace

Updater &Updater::shared()
{
    static Updater *instance = new Updater(Scheduler::system()); // lives for the whole process
    return *instance;
}

Updater::Updater(Scheduler &scheduler, QObject *parent)
    : QObject(parent)
    , m_scheduler(scheduler)
    , m_currentVersion(AppVersion::shortVersion())
{
    qRegisterMetaType<Updater::Result>();
    m_deadline.setSingleShot(true);
    connect(&m_deadline, &QTimer::timeout, this, [this] {
        if (!m_reply)
            return;
        m_timedOut = true;
        m_reply->abort();
    });
    connect(&AppSettings::shared(), &AppSettings::updateFeedURLChanged, this, &Updater::configuredChanged);
}

Updater::~Updater()
{
    if (m_reply) {
        m_reply->disconnect(this);
        m_reply->abort();
        delete m_reply;
    }
}

QString Updater::builtInFeed()
{
    return QStringLiteral(SULKBOX_UPDATE_FEED);
}

QUrl Updater::feedUrl() const
{
    const QUrl own = asFeed(AppSettings::shared().updateFeedURL());
    return own.isValid() ? own : asFeed(builtInFeed());
}

void Updater::setLimits(qint64 maxBytes, int timeoutMs, int maxRedirects)
{
    m_maxBytes = maxBytes;
    m_timeoutMs = timeoutMs;
    m_maxRedirects = maxRedirects;
}

bool Updater::automaticallyChecks() const
{
    return AppSettings::shared().automaticUpdateChecks();
}

void Updater::setAutomaticallyChecks(bool on)
{
    AppSettings::shared().setAutomaticUpdateChecks(on);
}

QDateTime Updater::lastCheck() const
{
    return QDateTime::fromString(AppSettings::shared().lastUpdateCheck(), Qt::ISODate);
}

void Updater::checkForUpdates()
{
    runCheck(true);
}

void Updater::start()
{
    if (m_started)
        return;
    m_started = true;
    connect(&AppSettings::shared(), &AppSettings::automaticUpdateChecksChanged, this, [this] { schedule(); });
    connect(&AppSettings::shared(), &AppSettings::updateFeedURLChanged, this, [this] { schedule(); });
    schedule(m_startDelayMs);
}

qint64 Updater::msUntilDue() const
{
    const QDateTime last = lastCheck();
    const QDateTime now = m_scheduler.now();
    // Never checked, or a stored time in the future (the clock was set back):
    // due now.
    if (!last.isValid() || last > now)
        return 0;
    return std::max<qint64>(0, checkIntervalMs - last.msecsTo(now));
}

void Updater::schedule(qint64 minDelayMs)
{
    const quint64 generation = ++m_generation;
    if (!m_started || !automaticallyChecks() || !configured())
        return;
    const qint64 wait = std::clamp(std::max(msUntilDue(), minDelayMs), qint64(0), kRecheckMs);
    m_scheduler.after(int(wait), this, [this, generation] {
        if (generation != m_generation)
            return; // replaced by a later plan
        if (msUntilDue() > 0 || !automaticallyChecks() || !configured()) {
            schedule();
            return;
        }
        if (checking()) {
            schedule(kRecheckMs);
            return;
        }
        runCheck(false);
    });
}

void Updater::runCheck(bool userInitiated)
{
    if (m_reply) {
        // One check at a time; the user now waits for the one under way.
        m_userWaiting = m_userWaiting || userInitiated;
        if (userInitiated)
            emit checkStarted(true);
        return;
    }
    const QUrl url = feedUrl();
    if (!url.isValid()) {
        Result result;
        result.failure = Failure::notConfigured;
        result.currentVersion = m_currentVersion;
        emit finished(result, userInitiated);
        return;
    }

    AppSettings::shared().setLastUpdateCheck(m_scheduler.now().toUTC().toString(Qt::ISODate));

    if (!m_network)
        m_network = new QNetworkAccessManager(this);
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setMaximumRedirectsAllowed(m_maxRedirects);
    request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("sulkbox/%1").arg(m_currentVersion));
    request.setRawHeader("Accept", "application/rss+xml, application/xml;q=0.9, text/xml;q=0.8, */*;q=0.1");
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);

    m_body.clear();
    m_timedOut = false;
    m_tooLarge = false;
    m_userWaiting = userInitiated;
    m_reply = m_network->get(request);
    connect(m_reply, &QNetworkReply::metaDataChanged, this, [this] {
        const QVariant length = m_reply ? m_reply->header(QNetworkRequest::ContentLengthHeader) : QVariant();
        if (length.isValid() && length.toLongLong() > m_maxBytes) {
            m_tooLarge = true;
            m_reply->abort();
        }
    });
    connect(m_reply, &QNetworkReply::readyRead, this, &Updater::onReadyRead);
    connect(m_reply, &QNetworkReply::finished, this, &Updater::onFinished);
    m_deadline.start(m_timeoutMs);
    emit checkingChanged();
    emit checkStarted(userInitiated);
}

void Updater::onReadyRead()
{
    if (!m_reply)
        return;
    m_body += m_reply->read(m_maxBytes + 1 - m_body.size());
    if (m_body.size() > m_maxBytes) {
        m_tooLarge = true;
        m_reply->abort();
    }
}

Updater::Result Updater::resultOf(QNetworkReply *reply) const
{
    Result result;
    result.currentVersion = m_currentVersion;
    result.httpStatus = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const QNetworkReply::NetworkError error = reply->error();
    if (m_timedOut) {
        result.failure = Failure::timedOut;
    } else if (m_tooLarge) {
        result.failure = Failure::badFeed;
    } else if (error == QNetworkReply::TooManyRedirectsError || error == QNetworkReply::InsecureRedirectError
               || result.httpStatus >= 400) {
        result.failure = Failure::serverError;
    } else if (error != QNetworkReply::NoError) {
        result.failure = Failure::unreachable;
    } else {
        const auto items = Appcast::parse(m_body);
        const auto newest = items ? Appcast::newest(*items) : std::nullopt;
        if (!newest) {
            result.failure = Failure::badFeed;
        } else {
            result.item = *newest;
            result.outcome = Appcast::compareVersions(newest->displayVersion(), m_currentVersion) > 0
                ? Outcome::available
                : Outcome::upToDate;
        }
    }
    return result;
}

void Updater::onFinished()
{
    QNetworkReply *reply = m_reply;
    if (!reply)
        return;
    if (!m_timedOut && !m_tooLarge)
        onReadyRead(); // whatever is left in the buffer
    m_deadline.stop();
    const Result result = resultOf(reply);
    const bool userInitiated = m_userWaiting;
    m_reply = nullptr;
    m_userWaiting = false;
    reply->disconnect(this);
    reply->deleteLater();
    emit checkingChanged();
    emit finished(result, userInitiated);
    schedule();
}
