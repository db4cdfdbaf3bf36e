#pragma once
// The quip and roast texts, one data file per language embedded at build
// time as ":/personality/content/<lang>.json":
//   { "quips":  { "<kind>": [lines…], … },
//     "roasts": { "<topic>/<plain|notable>/<gentle|savage>": [lines…], … } }
// Loaded once, on first use, from any thread. A missing or damaged file
// simply contributes nothing; the lookups fall back to English.

#include "l10n/Localizer.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

namespace PersonalityContent {

struct LanguageFile {
    QHash<QString, QStringList> quips;  // by kind name
    QHash<QString, QStringList> roasts; // by "cpu/notable/savage"
};

// Reads one file's text. Lists that are not arrays and entries that are not
// non-blank strings are left out; a text that is not a JSON object gives
// nothing.
std::optional<LanguageFile> parse(const QByteArray &json);

// The embedded files of the six concrete languages that could be read.
const QHash<AppLanguage, LanguageFile> &files();

} // namespace PersonalityContent
