#pragma once
// The text of the top-bar label: the shown mood (the reaction while one is
// set) as emoji and phrase, or the CPU and memory load as two percentages.

#include "personality/Mood.h"

#include <QString>

class Localizer;
class SystemMonitor;

namespace MenuBarLabel {

// Reads "moodEnabled" from the settings.
QString text(const SystemMonitor &monitor, const Localizer &loc);
QString text(const SystemMonitor &monitor, const Localizer &loc, bool moodEnabled);

// The mood's phrase and reason lines in the current language.
QString phrase(const Mood &mood, const Localizer &loc);
QString reason(const Mood &mood, const Localizer &loc);

} // namespace MenuBarLabel
