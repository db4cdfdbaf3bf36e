#pragma once
// The lines of `sulkbox bar`: the top-bar label as plain text, as a waybar
// custom-module object or as an i3bar block.
//
// A line is put together from pieces kept between ticks. The texts of the
// shown mood are made again only when the mood or the language changes, a
// figure's text only when its digits would, and when no piece changed the
// previous line is handed out again as it is. The JSON is written here
// directly, laid out and escaped exactly as QJsonDocument's compact form.

#include "l10n/Localizer.h"
#include "personality/Mood.h"

#include <QByteArray>
#include <QStringView>

#include <optional>

class SystemMonitor;

class BarLine {
public:
    enum class Format { plain, waybar, i3bar };

    explicit BarLine(Format format, const Localizer &loc = Localizer::shared());

    // What goes before the first line: the i3bar protocol's header and the
    // opening of its endless array; nothing for the other formats.
    QByteArray header() const;

    // The line for the monitor's state now, newline included. i3bar lines
    // after the first start with the comma that separates array entries.
    const QByteArray &next(const SystemMonitor &monitor);

    // Appends `text` as a JSON string (quotes included): UTF-8, with '"',
    // '\\' and control characters escaped, and a lone surrogate as its
    // \uXXXX escape, as QJsonDocument writes it.
    static void appendJsonString(QByteArray &out, QStringView text);

    // Keys that are equal exactly when Fmt::percent(v, 0) gives the same
    // text (it prints v * 100 rounded to the nearest integer, ties to even).
    static quint64 percentKey(double fraction);

private:
    bool updateMood(const Mood &shown);
    bool updateFigures(const SystemMonitor &monitor, bool numbers, bool headline);
    void build();

    Format m_format;
    const Localizer &m_loc;
    QByteArray m_line;
    bool m_first = true;       // the next line is the first
    bool m_lineIsFirst = false; // m_line is the first line
    std::optional<bool> m_moodEnabled;

    // The shown mood, in m_language, and its texts.
    std::optional<Mood> m_mood;
    AppLanguage m_language = AppLanguage::system;
    QByteArray m_emojiJson;
    QByteArray m_phraseReasonJson; // phrase, newline, reason, newline: escaped, unquoted
    QByteArray m_kindJson;
    QByteArray m_colorJson;
    QByteArray m_memoryWord; // UTF-8

    // The label as the top bar shows it: UTF-8 in plain lines, a JSON string
    // in the others.
    QByteArray m_label;

    // The figures, by the keys that decide their texts.
    quint64 m_cpuKey = 0;
    quint64 m_memKey = 0;
    quint64 m_downKey = 0;
    quint64 m_upKey = 0;
    int m_percentage = 0;
    bool m_haveFigures = false;
    QByteArray m_cpuText;
    QByteArray m_memText;
    QByteArray m_downText;
    QByteArray m_upText;
};
