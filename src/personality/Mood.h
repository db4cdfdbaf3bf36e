#pragma once
// The machine's mood: one emoji, a phrase, a reason line, a kind and a tint.
// Moods are immutable values; every mood the system shows comes from the
// catalogue in `Moods` below.

#include "l10n/LocKey.h"

#include <QList>
#include <QObject>
#include <QString>

#include <optional>

namespace MoodKinds {
Q_NAMESPACE

// The category of a mood; it picks the quip pool. The order is fixed.
enum class MoodKind {
    greeting,
    hot,
    battery,
    memory,
    swap,
    cooldown,
    cores,
    busy,
    network,
    warm,
    charging,
    cruising,
    storage,
    idle,
    calm,
    festive,
    annoyed,
};
Q_ENUM_NS(MoodKind)

} // namespace MoodKinds

using MoodKind = MoodKinds::MoodKind;

inline constexpr int moodKindCount = 17;

// All kinds in their declared order.
const QList<MoodKind> &allMoodKinds();
// "greeting", "hot", …
QString moodKindName(MoodKind kind);
std::optional<MoodKind> moodKindFromName(const QString &name);

// The seven named accent colours. Mid-tones, so that the same value reads on
// a light and on a dark panel.
enum class Tint { green, red, orange, blue, yellow, pink, purple };

// A colour as plain red, green and blue, so the model needs no GUI library;
// QML takes its name ("#28a048") wherever a colour goes.
struct Rgb {
    int r = 0;
    int g = 0;
    int b = 0;

    int red() const { return r; }
    int green() const { return g; }
    int blue() const { return b; }
    QString name() const;
    bool operator==(const Rgb &) const = default;
};

Rgb tintColor(Tint tint);

class Mood {
    Q_GADGET
    Q_PROPERTY(QString emoji READ emoji CONSTANT)
    Q_PROPERTY(LocKey phraseKey READ phraseKey CONSTANT)
    Q_PROPERTY(LocKey reasonKey READ reasonKey CONSTANT)
    Q_PROPERTY(bool hasReasonArg READ hasReasonArg CONSTANT)
    Q_PROPERTY(QString reasonArg READ reasonArgText CONSTANT)
    Q_PROPERTY(MoodKind kind READ kind CONSTANT)
    Q_PROPERTY(QString tint READ tintName CONSTANT)

public:
    // The start-up value (needed by the meta-type system; equals `placeholder`).
    Mood();
    Mood(QString emoji, LocKey phraseKey, LocKey reasonKey, std::optional<QString> reasonArg, MoodKind kind,
         Rgb tint);

    // What the model holds before the engine has run: 🥱 "waking up".
    static const Mood &placeholder();

    const QString &emoji() const { return m_emoji; }
    LocKey phraseKey() const { return m_phraseKey; }
    LocKey reasonKey() const { return m_reasonKey; }
    const std::optional<QString> &reasonArg() const { return m_reasonArg; }
    bool hasReasonArg() const { return m_reasonArg.has_value(); }
    QString reasonArgText() const { return m_reasonArg.value_or(QString()); }
    MoodKind kind() const { return m_kind; }
    const Rgb &tint() const { return m_tint; }
    QString tintName() const { return m_tint.name(); }

    // Two moods are the same mood when emoji, phrase, reason and reason
    // argument agree; kind and tint do not count.
    bool operator==(const Mood &other) const;
    bool operator!=(const Mood &other) const { return !(*this == other); }

private:
    QString m_emoji;
    LocKey m_phraseKey;
    LocKey m_reasonKey;
    std::optional<QString> m_reasonArg;
    MoodKind m_kind;
    Rgb m_tint;
};

// The catalogue. Figures are formatted here, once, when the mood is made:
// fractions as whole percentages, bytes with one decimal, rates with "/s",
// temperatures through Fmt::temp (which honours the Fahrenheit setting).
namespace Moods {

// Engine results, in the engine's priority order.
Mood justWokeUp();
Mood soHot(double celsius);
Mood runningLow(double charge);
Mood memoryFull(double pressure);
Mood swappingHard(double swapBytes);
Mood phew();
Mood allCoresBlazing(int hotCores, int cores);
Mood workingHard(double cpu);
Mood dataFeast(double downRate);
Mood gobblingData(double downRate);
Mood beamingUp(double upRate);
Mood warmingUp(double celsius);
Mood refueling(double charge);
Mood cruisingLoad(double cpu);
Mood cruisingWarmth(double celsius);
Mood almostPacked(double diskUsed);
Mood festive(const QString &emoji, LocKey phrase, LocKey reason);
Mood sleepy();
Mood dozingOff();
Mood allChill();
Mood peaceful();

// Reactions other parts put on top of the mood for a while.
Mood stopPoking();
Mood glovesOff();
Mood beingNice();
Mood freshening();
Mood muchLighter(double freedBytes);

} // namespace Moods
