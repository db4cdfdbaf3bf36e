#include "ui/panel/BannerModel.h"

#include "ui/MenuBarLabel.h"

#include "l10n/Localizer.h"
#include "model/SystemMonitor.h"
#include "personality/PokeTracker.h"
#include "personality/Roasts.h"
#include "settings/AppSettings.h"

BannerModel::BannerModel(QObject *parent)
    : QObject(parent)
{
    AppSettings &settings = AppSettings::shared();
    connect(&settings, &AppSettings::savageModeChanged, this, &BannerModel::contentChanged);
    connect(&settings, &AppSettings::petNameChanged, this, &BannerModel::nameLineChanged);
    connect(&Localizer::shared(), &Localizer::languageChanged, this, [this] {
        emit contentChanged();
        emit nameLineChanged();
    });
}

BannerModel::~BannerModel() = default;

QString BannerModel::quoted(const QString &text)
{
    return QStringLiteral("\u201C") + text + QStringLiteral("\u201D");
}

QString BannerModel::savageFace()
{
    return QStringLiteral("\U0001F60F");
}

void BannerModel::setMonitor(SystemMonitor *monitor)
{
    if (monitor == m_monitor)
        return;
    if (m_monitor)
        disconnect(m_monitor, nullptr, this, nullptr);
    delete m_pokes;
    m_pokes = nullptr;
    m_monitor = monitor;
    if (monitor) {
        connect(monitor, &SystemMonitor::moodChanged, this, &BannerModel::contentChanged);
        connect(monitor, &SystemMonitor::reactionChanged, this, &BannerModel::contentChanged);
        connect(monitor, &SystemMonitor::roastEventChanged, this, &BannerModel::roastEventChanged);
        m_pokes = new PokeTracker(*monitor, monitor->scheduler(), {}, this);
        connect(m_pokes, &PokeTracker::bounced, this, &BannerModel::bounce);
        connect(m_pokes, &PokeTracker::quipChanged, this, &BannerModel::quipChanged);
    }
    emit monitorChanged();
    emit contentChanged();
    emit quipChanged();
}

void BannerModel::roastEventChanged()
{
    // A roast takes the banner from any quip, and the face reacts to it.
    if (m_monitor && m_monitor->hasRoastEvent()) {
        if (m_pokes)
            m_pokes->clearQuip();
        emit bounce();
    }
    emit contentChanged();
}

const Mood &BannerModel::shownMood() const
{
    return m_monitor ? m_monitor->reactionOrMood() : Mood::placeholder();
}

QString BannerModel::face() const
{
    if (roastActive() && AppSettings::shared().savageMode())
        return savageFace();
    return shownMood().emoji();
}

QString BannerModel::nameLine() const
{
    const QString pet = AppSettings::shared().petName().trimmed();
    return (pet.isEmpty() ? Localizer::shared().t(LocKey::yourMac) : pet).toUpper();
}

QString BannerModel::phrase() const
{
    return MenuBarLabel::phrase(shownMood(), Localizer::shared());
}

QString BannerModel::reason() const
{
    return MenuBarLabel::reason(shownMood(), Localizer::shared());
}

QColor BannerModel::tint() const
{
    const Rgb rgb = shownMood().tint();
    return QColor(rgb.r, rgb.g, rgb.b);
}

bool BannerModel::roastActive() const
{
    return m_monitor && m_monitor->hasRoastEvent();
}

QString BannerModel::roastLine() const
{
    if (!roastActive())
        return {};
    const RoastEvent &event = *m_monitor->roastEvent();
    return quoted(Roasts::line(event.topic, event.notable, AppSettings::shared().savageMode(),
                               Localizer::shared().concrete(), event.arg, event.seed));
}

bool BannerModel::hasQuip() const
{
    return m_pokes && m_pokes->hasQuip();
}

QString BannerModel::quip() const
{
    return hasQuip() ? quoted(m_pokes->quipText()) : QString();
}

void BannerModel::poke()
{
    if (m_pokes)
        m_pokes->poke(shownMood());
}
