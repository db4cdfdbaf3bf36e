#include "app/StatusText.h"

#include "l10n/Fmt.h"
#include "l10n/Localizer.h"
#include "model/SystemMonitor.h"
#include "ui/MenuBarLabel.h"

#include <unicode/uchar.h>

#include <algorithm>
#include <optional>

namespace StatusText {

namespace {

const QString sep = QStringLiteral(" · ");

// A module's line before its label is padded.
struct Row {
    QString label;
    QStringList parts;
};

Row row(const QString &label, const QStringList &parts)
{
    return {label, parts};
}

// The labels make one column as wide as the widest of them (never narrower
// than 10 cells), measured in terminal cells, so that the figures line up in
// every script.
QStringList padded(const QList<Row> &rows)
{
    int column = 10;
    for (const Row &r : rows)
        column = std::max(column, displayWidth(r.label));
    QStringList lines;
    for (const Row &r : rows)
        lines.append(r.label + QString(column - displayWidth(r.label), u' ') + u' ' + r.parts.join(sep));
    return lines;
}

Row cpuLine(const SystemMonitor &m, const Localizer &loc)
{
    const CPUSample &c = m.cpu();
    QStringList parts{Fmt::percent(c.total, 0),
                      loc.t(LocKey::userLabel) + u' ' + Fmt::percent(c.user, 0),
                      loc.t(LocKey::systemLabel) + u' ' + Fmt::percent(c.system, 0),
                      loc.t(LocKey::coresCount, {QString::number(c.perCore.size())})};
    if (!m.cpuBrand().isEmpty())
        parts.append(m.cpuBrand());
    return row(QStringLiteral("CPU"), parts);
}

Row memoryLine(const SystemMonitor &m, const Localizer &loc)
{
    const MemorySample &mem = m.memory();
    QStringList parts{Fmt::percent(mem.pressure, 0),
                      loc.t(LocKey::ofFmt, {Fmt::bytes(mem.used, 1), Fmt::bytes(mem.total, 1)})};
    parts.append(loc.t(LocKey::cached) + u' ' + Fmt::bytes(mem.cached, 1));
    if (mem.swapTotal > 0)
        parts.append(loc.t(LocKey::swap) + u' ' + loc.t(LocKey::ofFmt, {Fmt::bytes(mem.swapUsed, 1), Fmt::bytes(mem.swapTotal, 1)}));
    return row(loc.t(LocKey::memory), parts);
}

Row networkLine(const SystemMonitor &m, const Localizer &loc)
{
    const NetworkSample &n = m.network();
    QStringList parts{loc.t(LocKey::download) + u' ' + Fmt::rate(n.downRate),
                      loc.t(LocKey::upload) + u' ' + Fmt::rate(n.upRate)};
    if (n.primaryInterface != Records::unknownText)
        parts.append(n.primaryInterface + u' ' + n.ipv4);
    return row(loc.t(LocKey::network), parts);
}

Row diskLine(const SystemMonitor &m, const Localizer &loc)
{
    const DiskSample &d = m.disk();
    QStringList parts;
    for (const VolumeInfo &v : d.volumes.mid(0, 3))
        parts.append(v.name + u' ' + Fmt::percent(v.usedShare(), 0) + u' ' + loc.t(LocKey::freeFmt, {Fmt::bytes(v.free, 1)}));
    if (d.hasRate) {
        parts.append(loc.t(LocKey::read) + u' ' + Fmt::rate(d.readRate));
        parts.append(loc.t(LocKey::write) + u' ' + Fmt::rate(d.writeRate));
    }
    if (parts.isEmpty())
        parts.append(Records::unknownText);
    return row(loc.t(LocKey::disk), parts);
}

Row sensorsLine(const SystemMonitor &m, const Localizer &loc)
{
    const SensorSample &s = m.sensors();
    QStringList parts;
    if (s.cpuTemp > 0)
        parts.append(QStringLiteral("CPU ") + Fmt::temp(s.cpuTemp));
    if (s.gpuTemp > 0)
        parts.append(QStringLiteral("GPU ") + Fmt::temp(s.gpuTemp));
    for (const TempComponent &c : s.components)
        parts.append(loc.t(c.key) + u' ' + Fmt::temp(c.celsius));
    for (const FanInfo &f : s.fans)
        parts.append(loc.t(LocKey::fanFmt, {QString::number(f.index + 1)}) + u' '
                     + loc.t(LocKey::rpmFmt, {Fmt::fixed(f.current, 0)}));
    if (parts.isEmpty() && !s.temperatures.isEmpty())
        parts.append(s.temperatures.first().name + u' ' + Fmt::temp(s.temperatures.first().celsius));
    if (parts.isEmpty())
        parts.append(loc.t(LocKey::noSensors));
    return row(loc.t(LocKey::sensors), parts);
}

Row batteryLine(const SystemMonitor &m, const Localizer &loc)
{
    const BatterySample &b = m.battery();
    QStringList parts{Fmt::percent(b.charge, 0)};
    if (b.isCharging)
        parts.append(b.timeToFull >= 1 ? loc.t(LocKey::chargingToFull, {Fmt::minutes(b.timeToFull)})
                                       : loc.t(LocKey::charging));
    else if (b.isPluggedIn)
        parts.append(loc.t(LocKey::pluggedIn));
    else
        parts.append(b.timeToEmpty >= 1 ? loc.t(LocKey::timeLeft, {Fmt::minutes(b.timeToEmpty)})
                                        : loc.t(LocKey::onBattery));
    if (b.health > 0)
        parts.append(loc.t(LocKey::health) + u' ' + Fmt::percent(b.health, 0));
    if (b.cycleCount > 0)
        parts.append(loc.t(LocKey::cycles) + u' ' + QString::number(b.cycleCount));
    return row(loc.t(LocKey::compBattery), parts);
}

std::optional<Row> gpuPowerLine(const SystemMonitor &m, const Localizer &loc)
{
    QStringList parts;
    if (m.gpu().hasUsage)
        parts.append(loc.t(LocKey::gpuUsage) + u' ' + Fmt::percent(m.gpu().usage, 0));
    if (m.power().ok) {
        parts.append(QStringLiteral("CPU ") + Fmt::watts(m.power().cpu));
        parts.append(loc.t(LocKey::gpuUsage) + u' ' + Fmt::watts(m.power().gpu));
        parts.append(loc.t(LocKey::totalLabel) + u' ' + Fmt::watts(m.power().total));
    }
    if (parts.isEmpty())
        return std::nullopt;
    return row(loc.t(LocKey::power), parts);
}

Row processLine(const SystemMonitor &m, const Localizer &loc)
{
    QStringList parts;
    for (const ProcInfo &p : m.processes())
        parts.append(p.name() + u' ' + Fmt::fixed(p.cpu(), 1) + u'%');
    if (parts.isEmpty())
        parts.append(Records::unknownText);
    return row(loc.t(LocKey::processes), parts);
}

} // namespace

int displayWidth(const QString &text)
{
    int width = 0;
    for (const char32_t c : text.toUcs4()) {
        const int8_t type = u_charType(UChar32(c));
        // Marks that sit on the letter before them (Thai vowels above and
        // below, tone marks, accents), invisible format characters (joiners,
        // direction marks) and the vowels and final consonants of decomposed
        // Hangul take no cell of their own.
        if (type == U_NON_SPACING_MARK || type == U_ENCLOSING_MARK || type == U_FORMAT_CHAR
            || (c >= 0x1160 && c <= 0x11FF) || (c >= 0xD7B0 && c <= 0xD7FF) || c == 0x200B)
            continue;
        if (type == U_CONTROL_CHAR)
            continue;
        const int eaw = u_getIntPropertyValue(UChar32(c), UCHAR_EAST_ASIAN_WIDTH);
        width += (eaw == U_EA_WIDE || eaw == U_EA_FULLWIDTH) ? 2 : 1;
    }
    return width;
}

QString moodLine(const Mood &mood, const Localizer &loc)
{
    return mood.emoji() + u' ' + MenuBarLabel::phrase(mood, loc) + sep + MenuBarLabel::reason(mood, loc);
}

QStringList moduleLines(const SystemMonitor &m, const Localizer &loc)
{
    QList<Row> rows{cpuLine(m, loc), memoryLine(m, loc), networkLine(m, loc), diskLine(m, loc),
                    sensorsLine(m, loc)};
    if (m.battery().present)
        rows.append(batteryLine(m, loc));
    if (const auto gp = gpuPowerLine(m, loc))
        rows.append(*gp);
    rows.append(processLine(m, loc));
    return padded(rows);
}

} // namespace StatusText
