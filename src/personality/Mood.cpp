#include "personality/Mood.h"

#include "l10n/Fmt.h"

#include <QMetaEnum>

const QList<MoodKind> &allMoodKinds()
{
    static const QList<MoodKind> kinds = [] {
        QList<MoodKind> list;
        for (int i = 0; i < moodKindCount; ++i)
            list.append(MoodKind(i));
        return list;
    }();
    return kinds;
}

QString moodKindName(MoodKind kind)
{
    return QString::fromLatin1(QMetaEnum::fromType<MoodKind>().valueToKey(int(kind)));
}

std::optional<MoodKind> moodKindFromName(const QString &name)
{
    bool ok = false;
    const int value = QMetaEnum::fromType<MoodKind>().keyToValue(name.toLatin1().constData(), &ok);
    if (!ok)
        return std::nullopt;
    return MoodKind(value);
}

QString Rgb::name() const
{
    static constexpr char digits[] = "0123456789abcdef";
    const char text[] = {'#', digits[(r >> 4) & 0xf], digits[r & 0xf], digits[(g >> 4) & 0xf],
                         digits[g & 0xf], digits[(b >> 4) & 0xf], digits[b & 0xf]};
    return QString::fromLatin1(text, sizeof text);
}

Rgb tintColor(Tint tint)
{
    switch (tint) {
    case Tint::green: return Rgb{40, 160, 72};
    case Tint::red: return Rgb{224, 64, 56};
    case Tint::orange: return Rgb{214, 120, 20};
    case Tint::blue: return Rgb{40, 124, 224};
    case Tint::yellow: return Rgb{184, 142, 0};
    case Tint::pink: return Rgb{222, 70, 140};
    case Tint::purple: return Rgb{150, 90, 220};
    }
    return Rgb{40, 160, 72};
}

Mood::Mood()
    : Mood(placeholder())
{
}

Mood::Mood(QString emoji, LocKey phraseKey, LocKey reasonKey, std::optional<QString> reasonArg, MoodKind kind,
           Rgb tint)
    : m_emoji(std::move(emoji))
    , m_phraseKey(phraseKey)
    , m_reasonKey(reasonKey)
    , m_reasonArg(std::move(reasonArg))
    , m_kind(kind)
    , m_tint(tint)
{
}

const Mood &Mood::placeholder()
{
    static const Mood mood(QStringLiteral("\U0001F971"), LocKey::wakingUp, LocKey::reasonStartingUp, std::nullopt,
                           MoodKind::greeting, tintColor(Tint::green));
    return mood;
}

bool Mood::operator==(const Mood &other) const
{
    return m_phraseKey == other.m_phraseKey && m_reasonKey == other.m_reasonKey && m_emoji == other.m_emoji
        && m_reasonArg == other.m_reasonArg;
}

namespace Moods {

namespace {

Mood make(const QString &emoji, LocKey phrase, LocKey reason, MoodKind kind, Tint tint,
          std::optional<QString> arg = std::nullopt)
{
    return Mood(emoji, phrase, reason, std::move(arg), kind, tintColor(tint));
}

QString pct(double fraction) { return Fmt::percent(fraction, 0); }

const QString faceExhale = QStringLiteral("\U0001F62E\u200D\U0001F4A8"); // 😮‍💨
const QString faceRelieved = QStringLiteral("\U0001F60C");              // 😌

} // namespace

Mood justWokeUp()
{
    return make(QStringLiteral("\U0001F971"), LocKey::justWokeUp, LocKey::reasonStartingUp, MoodKind::greeting,
                Tint::green);
}

Mood soHot(double celsius)
{
    return make(QStringLiteral("\U0001F975"), LocKey::soHot, LocKey::reasonFromHeat, MoodKind::hot, Tint::red,
                Fmt::temp(celsius));
}

Mood runningLow(double charge)
{
    return make(QStringLiteral("\U0001F97A"), LocKey::runningLow, LocKey::reasonFromBattery, MoodKind::battery,
                Tint::red, pct(charge));
}

Mood memoryFull(double pressure)
{
    return make(QStringLiteral("\U0001F635"), LocKey::memoryFull, LocKey::reasonFromMemory, MoodKind::memory,
                Tint::orange, pct(pressure));
}

Mood swappingHard(double swapBytes)
{
    return make(QStringLiteral("\U0001F630"), LocKey::swappingHard, LocKey::reasonFromSwap, MoodKind::swap,
                Tint::orange, Fmt::bytes(swapBytes, 1));
}

Mood phew()
{
    return make(faceExhale, LocKey::phew, LocKey::reasonJustCooled, MoodKind::cooldown, Tint::green);
}

Mood allCoresBlazing(int hotCores, int cores)
{
    return make(QStringLiteral("\U0001F92F"), LocKey::allCoresBlazing, LocKey::reasonFromCores, MoodKind::cores,
                Tint::red, QString::number(hotCores) + u'/' + QString::number(cores));
}

Mood workingHard(double cpu)
{
    return make(QStringLiteral("\U0001F624"), LocKey::workingHard, LocKey::reasonFromCPU, MoodKind::busy,
                Tint::orange, pct(cpu));
}

Mood dataFeast(double downRate)
{
    return make(QStringLiteral("\U0001F929"), LocKey::dataFeast, LocKey::reasonFromDown, MoodKind::network,
                Tint::blue, Fmt::rate(downRate));
}

Mood gobblingData(double downRate)
{
    return make(QStringLiteral("\U0001F924"), LocKey::gobblingData, LocKey::reasonFromDown, MoodKind::network,
                Tint::blue, Fmt::rate(downRate));
}

Mood beamingUp(double upRate)
{
    return make(QStringLiteral("\U0001F619"), LocKey::beamingUp, LocKey::reasonFromUp, MoodKind::network,
                Tint::green, Fmt::rate(upRate));
}

Mood warmingUp(double celsius)
{
    return make(QStringLiteral("\U0001F605"), LocKey::warmingUp, LocKey::reasonFromWarmth, MoodKind::warm,
                Tint::yellow, Fmt::temp(celsius));
}

Mood refueling(double charge)
{
    return make(QStringLiteral("\U0001F60B"), LocKey::refueling, LocKey::reasonFromBattery, MoodKind::charging,
                Tint::green, pct(charge));
}

Mood cruisingLoad(double cpu)
{
    return make(QStringLiteral("\U0001F642"), LocKey::cruising, LocKey::reasonFromCPU, MoodKind::cruising,
                Tint::green, pct(cpu));
}

Mood cruisingWarmth(double celsius)
{
    return make(QStringLiteral("\U0001F642"), LocKey::cruising, LocKey::reasonFromWarmth, MoodKind::cruising,
                Tint::green, Fmt::temp(celsius));
}

Mood almostPacked(double diskUsed)
{
    return make(QStringLiteral("\U0001FAE2"), LocKey::almostPacked, LocKey::reasonStartupDiskFull,
                MoodKind::storage, Tint::orange, pct(diskUsed));
}

Mood festive(const QString &emoji, LocKey phrase, LocKey reason)
{
    return make(emoji, phrase, reason, MoodKind::festive, Tint::pink);
}

Mood sleepy()
{
    return make(QStringLiteral("\U0001F634"), LocKey::sleepy, LocKey::reasonIdleNight, MoodKind::idle, Tint::blue);
}

Mood dozingOff()
{
    return make(QStringLiteral("\U0001F62A"), LocKey::dozingOff, LocKey::reasonIdleWhile, MoodKind::idle,
                Tint::blue);
}

Mood allChill()
{
    return make(QStringLiteral("\U0001F60E"), LocKey::allChill, LocKey::reasonBarelyLoad, MoodKind::calm,
                Tint::green);
}

Mood peaceful()
{
    return make(faceRelieved, LocKey::peaceful, LocKey::reasonLightLoad, MoodKind::calm, Tint::green);
}

Mood stopPoking()
{
    return make(QStringLiteral("\U0001F620"), LocKey::stopPoking, LocKey::reasonPokedTooMuch, MoodKind::annoyed,
                Tint::orange);
}

Mood glovesOff()
{
    return make(QStringLiteral("\U0001F608"), LocKey::glovesOff, LocKey::reasonSavageOn, MoodKind::calm,
                Tint::purple);
}

Mood beingNice()
{
    return make(QStringLiteral("\U0001F607"), LocKey::beingNice, LocKey::reasonSavageOff, MoodKind::calm,
                Tint::green);
}

Mood freshening()
{
    return make(faceExhale, LocKey::freshening, LocKey::cleaning, MoodKind::calm, Tint::green);
}

Mood muchLighter(double freedBytes)
{
    return make(faceRelieved, LocKey::muchLighter, LocKey::freedFmt, MoodKind::calm, Tint::green,
                Fmt::bytes(freedBytes, 1));
}

} // namespace Moods
