#include "ui/MenuBarLabel.h"

#include "settings/Settings.h"
#include "l10n/Fmt.h"
#include "l10n/Localizer.h"
#include "model/SystemMonitor.h"

namespace MenuBarLabel {

QString phrase(const Mood &mood, const Localizer &loc)
{
    return loc.t(mood.phraseKey());
}

QString reason(const Mood &mood, const Localizer &loc)
{
    if (mood.hasReasonArg())
        return loc.t(mood.reasonKey(), {mood.reasonArgText()});
    return loc.t(mood.reasonKey());
}

QString text(const SystemMonitor &monitor, const Localizer &loc, bool moodEnabled)
{
    if (!moodEnabled)
        return Fmt::percent(monitor.cpu().total, 0) + QStringLiteral("  ") + Fmt::percent(monitor.memory().pressure, 0);
    const Mood &shown = monitor.reactionOrMood();
    return shown.emoji() + u' ' + phrase(shown, loc);
}

QString text(const SystemMonitor &monitor, const Localizer &loc)
{
    return text(monitor, loc, Settings::flag(Settings::Key::moodEnabled));
}

} // namespace MenuBarLabel
