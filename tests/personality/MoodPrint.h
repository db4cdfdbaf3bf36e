#pragma once
// Readable QCOMPARE failures for moods.

#include "personality/Mood.h"

#include <QTest>

inline char *toString(const Mood &mood)
{
    const QString text = QStringLiteral("Mood(%1, %2, %3, %4, %5)")
                             .arg(mood.emoji(), keyName(mood.phraseKey()), keyName(mood.reasonKey()),
                                  mood.reasonArg() ? QStringLiteral("\"%1\"").arg(*mood.reasonArg())
                                                   : QStringLiteral("no arg"),
                                  moodKindName(mood.kind()));
    return qstrdup(text.toUtf8().constData());
}
