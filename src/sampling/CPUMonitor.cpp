#include "sampling/CPUMonitor.h"

#include "sampling/SysFs.h"

#include <cstring>

namespace {

// Reads the next blank-separated decimal number of [p, end) into `value`.
// Returns false at the end of the line or on anything that is not a digit.
bool nextNumber(const char *&p, const char *end, quint64 &value)
{
    while (p < end && (*p == ' ' || *p == '\t'))
        ++p;
    const char *start = p;
    quint64 v = 0;
    while (p < end && *p >= '0' && *p <= '9') {
        if (!SysFs::appendDigit(v, *p))
            return false; // more than 64 bits: not a counter
        ++p;
    }
    if (p == start || (p < end && *p != ' ' && *p != '\t'))
        return false;
    value = v;
    return true;
}

// A counter that went backwards (a kernel quirk, seen with iowait) counts as
// no time at all for this interval rather than wrapping to a huge value.
double delta(quint64 now, quint64 before)
{
    return now >= before ? double(now - before) : 0.0;
}

CPUSample idleRecord(int cores)
{
    CPUSample s;
    s.perCore = QList<double>(cores, 0.0);
    return s;
}

QString cleanedName(const QByteArray &raw)
{
    const qsizetype nul = raw.indexOf('\0');
    return SysFs::printable(QString::fromUtf8(nul < 0 ? raw : raw.left(nul))).simplified();
}

} // namespace

CPUMonitor::CPUMonitor(SystemRoots roots)
    : m_roots(std::move(roots))
    , m_stat(m_roots.proc + QStringLiteral("/stat"))
{
}

bool CPUMonitor::parse(std::vector<Counters> &out) const
{
    out.clear();
    const char *p = m_buffer.constData();
    const char *const end = p + m_buffer.size();
    while (p < end) {
        const char *eol = static_cast<const char *>(std::memchr(p, '\n', size_t(end - p)));
        if (!eol)
            eol = end;
        const bool cpuLine = eol - p > 3 && std::memcmp(p, "cpu", 3) == 0;
        if (!cpuLine) {
            // The per-CPU lines come first; everything after them (the long
            // interrupt line among others) is of no interest.
            if (!out.empty())
                break;
            p = eol + 1;
            continue;
        }
        const char *q = p + 3;
        if (*q < '0' || *q > '9') { // the machine-wide "cpu" line; the per-CPU ones are summed instead
            p = eol + 1;
            continue;
        }
        quint64 id = 0;
        if (!nextNumber(q, eol, id) || id > 1u << 20)
            return false;
        Counters c;
        c.id = int(id);
        quint64 *fields[] = {&c.user, &c.nice, &c.system, &c.idle, &c.iowait, &c.irq, &c.softirq, &c.steal};
        int got = 0;
        for (quint64 *field : fields) {
            if (!nextNumber(q, eol, *field))
                break;
            ++got;
        }
        if (got < 4)
            return false;
        out.push_back(c);
        p = eol + 1;
    }
    return !out.empty();
}

CPUSample CPUMonitor::read()
{
    if (!m_stat.read(m_buffer, 4 << 20) || !parse(m_current))
        return {};

    m_coreCount = int(m_current.size());
    bool sameSet = m_primed && m_previous.size() == m_current.size();
    for (size_t i = 0; sameSet && i < m_current.size(); ++i)
        sameSet = m_previous[i].id == m_current[i].id;
    if (!sameSet) {
        // First reading, or CPUs went on- or offline: nothing to compare with.
        std::swap(m_previous, m_current);
        m_primed = true;
        return idleRecord(m_coreCount);
    }

    CPUSample s;
    s.perCore.resize(m_coreCount);
    double userSum = 0, systemSum = 0, idleSum = 0, allSum = 0;
    for (size_t i = 0; i < m_current.size(); ++i) {
        const Counters &now = m_current[i];
        const Counters &was = m_previous[i];
        const double user = delta(now.user, was.user);
        const double nice = delta(now.nice, was.nice);
        const double system = delta(now.system, was.system) + delta(now.irq, was.irq)
            + delta(now.softirq, was.softirq) + delta(now.steal, was.steal);
        const double idle = delta(now.idle, was.idle) + delta(now.iowait, was.iowait);
        const double busy = user + nice + system;
        const double all = busy + idle;
        s.perCore[qsizetype(i)] = all > 0 ? busy / all : 0.0;
        userSum += user;
        systemSum += system + nice;
        idleSum += idle;
        allSum += all;
    }
    std::swap(m_previous, m_current);

    if (allSum > 0) {
        s.total = (userSum + systemSum) / allSum;
        s.user = userSum / allSum;
        s.system = systemSum / allSum;
        s.idle = idleSum / allSum;
    }
    return s;
}

QString CPUMonitor::brandString(const SystemRoots &roots)
{
    if (const auto info = SysFs::readFile(roots.proc + QStringLiteral("/cpuinfo"), 4 << 20)) {
        for (const QByteArray &line : info->split('\n')) {
            if (!line.startsWith("model name"))
                continue;
            const qsizetype colon = line.indexOf(':');
            if (colon < 0)
                continue;
            const QString name = cleanedName(line.mid(colon + 1));
            if (!name.isEmpty())
                return name;
        }
    }
    // Arm boards without a "model name" describe themselves in the device
    // tree (a NUL-terminated string).
    for (const QString &path : {roots.sys + QStringLiteral("/firmware/devicetree/base/model"),
                                roots.proc + QStringLiteral("/device-tree/model")}) {
        if (const auto model = SysFs::readFile(path, 4096)) {
            const QString name = cleanedName(*model);
            if (!name.isEmpty())
                return name;
        }
    }
    return QStringLiteral("CPU");
}
