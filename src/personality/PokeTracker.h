#pragma once
// The poke bookkeeping behind the mood banner's face: each poke shows a quip
// for 4 s; the fifth poke within 8 s annoys the machine for 5 s. UI-free:
// the banner calls poke() and draws `quip`; time and the delayed actions go
// through a Scheduler so tests can move the clock by hand.

#include "l10n/Localizer.h"
#include "model/Scheduler.h"
#include "personality/Mood.h"

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QString>

#include <functional>
#include <optional>

class SystemMonitor;

class PokeTracker : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool hasQuip READ hasQuip NOTIFY quipChanged)
    Q_PROPERTY(QString quip READ quipText NOTIFY quipChanged)
    Q_PROPERTY(int quipID READ quipID NOTIFY quipIDChanged)

public:
    using LanguageSource = std::function<AppLanguage()>;

    // `language` gives the resolved interface language at each poke; by
    // default the shared localizer's.
    PokeTracker(SystemMonitor &monitor, Scheduler &scheduler, LanguageSource language = {},
                QObject *parent = nullptr);

    static constexpr qint64 windowMs = 8000;
    static constexpr int pokesToAnnoy = 5;
    static constexpr int annoyedMs = 5000;
    static constexpr int quipMs = 4000;

    // One poke, given the mood the banner shows at that moment.
    Q_INVOKABLE void poke(const Mood &shown);
    // Hides the quip at once (a roast took the banner).
    Q_INVOKABLE void clearQuip();

    const std::optional<QString> &quip() const { return m_quip; }
    bool hasQuip() const { return m_quip.has_value(); }
    QString quipText() const { return m_quip.value_or(QString()); }
    int quipID() const { return m_quipID; }
    const QList<QDateTime> &pokeTimes() const { return m_pokeTimes; }

signals:
    // The face should do its bounce.
    void bounced();
    void quipChanged();
    void quipIDChanged();

private:
    void setQuip(const std::optional<QString> &quip);

    SystemMonitor &m_monitor;
    Scheduler &m_scheduler;
    LanguageSource m_language;
    QList<QDateTime> m_pokeTimes;
    std::optional<QString> m_quip;
    int m_quipID = 0;
};
