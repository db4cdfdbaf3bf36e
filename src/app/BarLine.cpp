#include "app/BarLine.h"

#include "l10n/Fmt.h"
#include "model/SystemMonitor.h"
#include "settings/Settings.h"
#include "ui/MenuBarLabel.h"

#include <bit>
#include <cmath>

namespace {

char hexDigit(uint v)
{
    return char(v < 10 ? '0' + v : 'a' + v - 10);
}

char *unicodeEscape(char *o, uint u)
{
    *o++ = '\\';
    *o++ = 'u';
    *o++ = hexDigit((u >> 12) & 0xf);
    *o++ = hexDigit((u >> 8) & 0xf);
    *o++ = hexDigit((u >> 4) & 0xf);
    *o++ = hexDigit(u & 0xf);
    return o;
}

// The characters of `text` as they stand inside a JSON string.
void appendEscaped(QByteArray &out, QStringView text)
{
    // No UTF-16 unit takes more than six bytes ("\u001f").
    const qsizetype start = out.size();
    out.resize(start + text.size() * 6);
    char *o = out.data() + start;
    const char16_t *p = text.utf16();
    const char16_t *const end = p + text.size();
    while (p < end) {
        const uint u = *p++;
        if (u < 0x80) {
            if (u >= 0x20 && u != '"' && u != '\\') {
                *o++ = char(u);
                continue;
            }
            *o++ = '\\';
            switch (u) {
            case '"': *o++ = '"'; break;
            case '\\': *o++ = '\\'; break;
            case '\b': *o++ = 'b'; break;
            case '\f': *o++ = 'f'; break;
            case '\n': *o++ = 'n'; break;
            case '\r': *o++ = 'r'; break;
            case '\t': *o++ = 't'; break;
            default: o = unicodeEscape(o - 1, u);
            }
        } else if (u < 0x800) {
            *o++ = char(0xc0 | (u >> 6));
            *o++ = char(0x80 | (u & 0x3f));
        } else if (QChar::isHighSurrogate(u) && p < end && QChar::isLowSurrogate(*p)) {
            const uint c = QChar::surrogateToUcs4(char16_t(u), *p++);
            *o++ = char(0xf0 | (c >> 18));
            *o++ = char(0x80 | ((c >> 12) & 0x3f));
            *o++ = char(0x80 | ((c >> 6) & 0x3f));
            *o++ = char(0x80 | (c & 0x3f));
        } else if (QChar::isSurrogate(u)) {
            o = unicodeEscape(o, u); // a lone half of a pair
        } else {
            *o++ = char(0xe0 | (u >> 12));
            *o++ = char(0x80 | ((u >> 6) & 0x3f));
            *o++ = char(0x80 | (u & 0x3f));
        }
    }
    out.truncate(o - out.constData());
}

QByteArray escaped(QStringView text)
{
    QByteArray out;
    appendEscaped(out, text);
    return out;
}

QByteArray quoted(QStringView text)
{
    QByteArray out;
    BarLine::appendJsonString(out, text);
    return out;
}

// A rate's text is decided by the rate itself.
quint64 rateKey(double bytesPerSecond)
{
    return std::bit_cast<quint64>(bytesPerSecond);
}

QByteArray rateText(double bytesPerSecond)
{
    return escaped(Fmt::rate(bytesPerSecond));
}

} // namespace

BarLine::BarLine(Format format, const Localizer &loc)
    : m_format(format)
    , m_loc(loc)
{
}

QByteArray BarLine::header() const
{
    return m_format == Format::i3bar ? QByteArrayLiteral("{\"version\":1}\n[\n") : QByteArray();
}

void BarLine::appendJsonString(QByteArray &out, QStringView text)
{
    out.append('"');
    appendEscaped(out, text);
    out.append('"');
}

quint64 BarLine::percentKey(double fraction)
{
    // In the default rounding mode nearbyint rounds to the nearest integer,
    // ties to even, exactly as printf and to_chars round to no decimals.
    // Comparing bit patterns keeps -0 ("-0%") apart from 0.
    return std::bit_cast<quint64>(std::nearbyint(fraction * 100));
}

bool BarLine::updateMood(const Mood &shown)
{
    const AppLanguage language = m_loc.concrete();
    if (m_mood && language == m_language && shown == *m_mood && shown.kind() == m_mood->kind()
        && shown.tint() == m_mood->tint())
        return false;
    m_mood = shown;
    if (m_format != Format::plain && language != m_language)
        m_memoryWord = escaped(m_loc.t(LocKey::memory));
    m_language = language;
    if (m_format == Format::plain)
        return true;
    m_emojiJson = quoted(shown.emoji());
    m_kindJson = quoted(moodKindName(shown.kind()));
    m_colorJson = quoted(shown.tintName());
    m_phraseReasonJson = escaped(QString(MenuBarLabel::phrase(shown, m_loc) + u'\n'
                                         + MenuBarLabel::reason(shown, m_loc) + u'\n'));
    return true;
}

bool BarLine::updateFigures(const SystemMonitor &monitor, bool numbers, bool headline)
{
    if (!numbers && !headline)
        return false;
    const double cpu = monitor.cpu().total;
    const double memory = monitor.memory().pressure;
    const quint64 cpuKey = percentKey(cpu);
    const quint64 memKey = percentKey(memory);
    // The figures' own texts appear in the waybar tooltip only; the label
    // makes its own.
    bool changed = !m_haveFigures;
    if (!m_haveFigures || cpuKey != m_cpuKey) {
        m_cpuKey = cpuKey;
        if (headline)
            m_cpuText = escaped(Fmt::percent(cpu, 0));
        changed = true;
    }
    if (!m_haveFigures || memKey != m_memKey) {
        m_memKey = memKey;
        if (headline)
            m_memText = escaped(Fmt::percent(memory, 0));
        changed = true;
    }
    if (headline) {
        const NetworkSample &net = monitor.network();
        if (!m_haveFigures || rateKey(net.downRate) != m_downKey) {
            m_downKey = rateKey(net.downRate);
            m_downText = rateText(net.downRate);
            changed = true;
        }
        if (!m_haveFigures || rateKey(net.upRate) != m_upKey) {
            m_upKey = rateKey(net.upRate);
            m_upText = rateText(net.upRate);
            changed = true;
        }
        const int percentage = qRound(cpu * 100);
        if (!m_haveFigures || percentage != m_percentage) {
            m_percentage = percentage;
            changed = true;
        }
    }
    m_haveFigures = true;
    return changed;
}

const QByteArray &BarLine::next(const SystemMonitor &monitor)
{
    const bool moodEnabled = Settings::flag(Settings::Key::moodEnabled);
    const bool modeChanged = m_moodEnabled != moodEnabled;
    m_moodEnabled = moodEnabled;
    const bool moodChanged = updateMood(monitor.reactionOrMood());
    const bool figuresChanged = updateFigures(monitor, !moodEnabled, m_format == Format::waybar);

    const bool labelChanged = modeChanged || (moodEnabled ? moodChanged : figuresChanged);
    if (labelChanged) {
        // Plain lines carry the label as it stands, the others as JSON.
        const QString label = MenuBarLabel::text(monitor, m_loc, moodEnabled);
        m_label = m_format == Format::plain ? label.toUtf8() : quoted(label);
    }
    // The first i3bar line has no comma before it; the second needs one
    // even when nothing else changed.
    if (m_line.isEmpty() || labelChanged || moodChanged || figuresChanged
        || (m_format == Format::i3bar && m_lineIsFirst))
        build();
    m_lineIsFirst = m_first;
    m_first = false;
    return m_line;
}

void BarLine::build()
{
    m_line.truncate(0);
    switch (m_format) {
    case Format::plain:
        m_line.append(m_label);
        break;
    case Format::waybar:
        m_line.append("{\"alt\":").append(m_kindJson);
        m_line.append(",\"class\":").append(m_kindJson);
        m_line.append(",\"percentage\":").append(QByteArray::number(m_percentage));
        m_line.append(",\"text\":").append(m_label);
        m_line.append(",\"tooltip\":\"").append(m_phraseReasonJson);
        m_line.append("CPU ").append(m_cpuText);
        m_line.append(" \xc2\xb7 ").append(m_memoryWord).append(' ').append(m_memText);
        m_line.append(" \xc2\xb7 \xe2\x86\x93 ").append(m_downText);
        m_line.append(" \xc2\xb7 \xe2\x86\x91 ").append(m_upText);
        m_line.append("\"}");
        break;
    case Format::i3bar:
        if (!m_first)
            m_line.append(',');
        m_line.append("[{\"color\":").append(m_colorJson);
        m_line.append(",\"full_text\":").append(m_label);
        m_line.append(",\"name\":\"sulkbox\",\"short_text\":").append(m_emojiJson);
        m_line.append("}]");
        break;
    }
    m_line.append('\n');
}
