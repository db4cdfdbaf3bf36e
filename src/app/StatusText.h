#pragma once
// The one-shot summary of `sulkbox status`: the label line, then one line
// per module, in the interface language.

#include <QStringList>

class Localizer;
class Mood;
class SystemMonitor;

namespace StatusText {

// "😎 all chill · barely any load"
QString moodLine(const Mood &mood, const Localizer &loc);

// One line per module with the figures the panel shows.
QStringList moduleLines(const SystemMonitor &monitor, const Localizer &loc);

// How many terminal cells `text` takes: wide and full-width characters (CJK,
// Hangul, most emoji) two, combining marks (Thai vowels above and below, tone
// marks) and invisible format characters none, everything else one.
int displayWidth(const QString &text);

} // namespace StatusText
