#pragma once
// What the machine says when poked: a pool of quips per mood kind and
// language. Quips have no placeholders.

#include "l10n/Localizer.h"
#include "personality/Mood.h"

#include <QHash>
#include <QString>
#include <QStringList>

namespace Quips {

using Pools = QHash<MoodKind, QHash<AppLanguage, QStringList>>;

// The process-wide table, built from the content files on first use.
const Pools &pools();

// The lines to choose from: the kind's pool (or calm's when the kind has
// none) in `lang`, else in English, else none.
QStringList lines(const Pools &pools, MoodKind kind, AppLanguage lang);

// One quip picked uniformly at random; "…" when there is nothing to pick.
QString random(MoodKind kind, AppLanguage lang);
QString random(const Pools &pools, MoodKind kind, AppLanguage lang);

} // namespace Quips
