#include "sampling/NetworkMonitor.h"

#include "sampling/SysFs.h"

#include <QFile>

#include <arpa/inet.h>
#include <chrono>
#include <cstring>
#include <ifaddrs.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/stat.h>

namespace {

double steadySeconds()
{
    using namespace std::chrono;
    return duration<double>(steady_clock::now().time_since_epoch()).count();
}

const char *skipBlanks(const char *p, const char *end)
{
    while (p < end && (*p == ' ' || *p == '\t'))
        ++p;
    return p;
}

const char *tokenEnd(const char *p, const char *end)
{
    while (p < end && *p != ' ' && *p != '\t')
        ++p;
    return p;
}

std::optional<quint64> parseHex(const char *begin, const char *end)
{
    if (begin == end || end - begin > 16)
        return std::nullopt;
    quint64 v = 0;
    for (const char *p = begin; p < end; ++p) {
        const char c = *p;
        int digit;
        if (c >= '0' && c <= '9')
            digit = c - '0';
        else if (c >= 'a' && c <= 'f')
            digit = c - 'a' + 10;
        else if (c >= 'A' && c <= 'F')
            digit = c - 'A' + 10;
        else
            return std::nullopt;
        v = v * 16 + quint64(digit);
    }
    return v;
}

} // namespace

NetworkMonitor::NetworkMonitor(SystemRoots roots)
    : m_roots(std::move(roots))
    , m_dev(m_roots.proc + QStringLiteral("/net/dev"))
    , m_route(m_roots.proc + QStringLiteral("/net/route"))
    , m_clock(steadySeconds)
{
    if (m_roots.live)
        m_addresses = systemAddresses;
}

void NetworkMonitor::setCountedInterfaces(const QStringList &names)
{
    m_countOnly.clear();
    for (const QString &name : names)
        m_countOnly.append(QFile::encodeName(name));
    for (Interface &i : m_interfaces)
        i.counted = isCounted(i.name);
}

bool NetworkMonitor::isCounted(const QByteArray &name) const
{
    if (!m_countOnly.isEmpty())
        return m_countOnly.contains(name);
    // Physical interfaces have a device link; loopback, bridges, veth pairs,
    // tunnels and the like do not, so traffic that passes through several of
    // them is counted once, where it leaves the machine.
    return SysFs::linkOrFileExists(m_roots.sys + QLatin1StringView("/class/net/") + QString::fromLocal8Bit(name)
                                   + QLatin1StringView("/device"));
}

// Sums the counted interfaces' counters into `in`/`out` and, for interfaces
// already known from the previous reading, what they moved since then into
// `newIn`/`newOut`. A counter that went down (the interface was re-created
// or its driver reset it) adds nothing for this interval.
bool NetworkMonitor::readCounters(quint64 &in, quint64 &out, double &newIn, double &newOut)
{
    if (!m_dev.read(m_buffer, 1 << 20))
        return false;
    for (Interface &i : m_interfaces)
        i.seen = false;

    // Inside a container's network namespace nothing has a device behind
    // it; there every interface but loopback counts instead.
    struct Sums {
        quint64 in = 0, out = 0;
        double newIn = 0, newOut = 0;
        int interfaces = 0;
        void add(const Interface &i, quint64 rx, quint64 tx, bool known)
        {
            if (known) {
                newIn += rx >= i.in ? double(rx - i.in) : 0.0;
                newOut += tx >= i.out ? double(tx - i.out) : 0.0;
            }
            in += rx;
            out += tx;
            ++interfaces;
        }
    } counted, fallback;

    size_t hint = 0; // the file lists interfaces in the same order each time
    const char *p = m_buffer.constData();
    const char *const end = p + m_buffer.size();
    while (p < end) {
        const char *eol = static_cast<const char *>(std::memchr(p, '\n', size_t(end - p)));
        if (!eol)
            eol = end;
        // "  name: rx_bytes rx_packets ... (8 receive fields) tx_bytes ...";
        // the two header lines have no colon before a '|'.
        const char *colon = static_cast<const char *>(std::memchr(p, ':', size_t(eol - p)));
        const char *bar = static_cast<const char *>(std::memchr(p, '|', size_t(eol - p)));
        if (colon && !bar) {
            const char *nameStart = skipBlanks(p, colon);
            const QByteArrayView name(nameStart, colon - nameStart);
            quint64 fields[9] = {};
            int got = 0;
            const char *q = colon + 1;
            while (got < 9) {
                q = skipBlanks(q, eol);
                const char *e = tokenEnd(q, eol);
                const auto v = SysFs::parseUnsigned(q, e);
                if (!v)
                    break;
                fields[got++] = *v;
                q = e;
            }
            if (got == 9 && !name.isEmpty()) {
                size_t index = m_interfaces.size();
                if (hint < m_interfaces.size() && m_interfaces[hint].name == name) {
                    index = hint;
                } else if (const auto it = m_index.constFind(QByteArray::fromRawData(name.data(), name.size()));
                           it != m_index.cend()) {
                    index = *it;
                }
                const bool known = index < m_interfaces.size();
                if (!known) {
                    Interface fresh;
                    fresh.name = name.toByteArray();
                    fresh.counted = isCounted(fresh.name);
                    fresh.loopback = fresh.name == "lo";
                    m_index.insert(fresh.name, index);
                    m_interfaces.push_back(std::move(fresh));
                }
                Interface &i = m_interfaces[index];
                if (!i.seen) { // a repeated name counts once
                    const quint64 rx = fields[0];
                    const quint64 tx = fields[8];
                    if (i.counted)
                        counted.add(i, rx, tx, known);
                    if (!i.loopback)
                        fallback.add(i, rx, tx, known);
                    i.seen = true;
                    i.in = rx;
                    i.out = tx;
                }
                hint = index + 1;
            }
        }
        p = eol + 1;
    }
    // Interfaces that went away are forgotten; should one come back, it
    // starts afresh.
    if (std::erase_if(m_interfaces, [](const Interface &i) { return !i.seen; }) > 0) {
        m_index.clear();
        for (size_t i = 0; i < m_interfaces.size(); ++i)
            m_index.insert(m_interfaces[i].name, i);
    }

    const Sums &use = counted.interfaces > 0 || !m_countOnly.isEmpty() ? counted : fallback;
    in = use.in;
    out = use.out;
    newIn = use.newIn;
    newOut = use.newOut;
    return true;
}

NetworkSample NetworkMonitor::read(bool refreshAddress)
{
    quint64 in = 0, out = 0;
    double newIn = 0, newOut = 0;
    if (!readCounters(in, out, newIn, newOut))
        return {};

    NetworkSample s;
    const double now = m_clock ? m_clock() : steadySeconds();
    if (m_prevTime) {
        const double dt = now - *m_prevTime;
        if (dt > 0) {
            s.downRate = newIn / dt;
            s.upRate = newOut / dt;
        }
    }
    m_prevTime = now;
    s.totalIn = double(in);
    s.totalOut = double(out);

    if (refreshAddress)
        lookUpPrimary();
    s.primaryInterface = m_iface;
    s.ipv4 = m_ip;
    return s;
}

// The interface of the default IPv4 route with the lowest metric. Lines of
// /proc/net/route: Iface Destination Gateway Flags RefCnt Use Metric Mask
// ..., addresses and flags in hex.
std::optional<QString> NetworkMonitor::defaultRouteInterface()
{
    if (!m_route.read(m_buffer, 1 << 20))
        return std::nullopt;
    std::optional<QString> best;
    quint64 bestMetric = 0;
    const char *p = m_buffer.constData();
    const char *const end = p + m_buffer.size();
    bool header = true;
    while (p < end) {
        const char *eol = static_cast<const char *>(std::memchr(p, '\n', size_t(end - p)));
        if (!eol)
            eol = end;
        if (header) {
            header = false;
            p = eol + 1;
            continue;
        }
        const char *tokens[8][2] = {};
        int got = 0;
        for (const char *q = p; got < 8;) {
            q = skipBlanks(q, eol);
            if (q == eol)
                break;
            tokens[got][0] = q;
            q = tokenEnd(q, eol);
            tokens[got][1] = q;
            ++got;
        }
        if (got == 8) {
            const auto destination = parseHex(tokens[1][0], tokens[1][1]);
            const auto flags = parseHex(tokens[3][0], tokens[3][1]);
            const auto metric = SysFs::parseUnsigned(tokens[6][0], tokens[6][1]);
            const auto mask = parseHex(tokens[7][0], tokens[7][1]);
            constexpr quint64 routeUp = 0x1;
            if (destination == 0u && mask == 0u && flags && (*flags & routeUp) && metric
                && (!best || *metric < bestMetric)) {
                best = QString::fromUtf8(tokens[0][0], tokens[0][1] - tokens[0][0]);
                bestMetric = *metric;
            }
        }
        p = eol + 1;
    }
    return best;
}

void NetworkMonitor::lookUpPrimary()
{
    const AddressList addresses = m_addresses ? m_addresses() : AddressList{};
    if (const auto routed = defaultRouteInterface()) {
        // Names are matched as the system gives them and shown printable.
        m_iface = SysFs::printable(*routed);
        m_ip = Records::unknownText;
        for (const auto &[name, address] : addresses) {
            if (name == *routed) {
                m_ip = address;
                break;
            }
        }
        return;
    }
    // No default route: the first physical interface that has an address.
    for (const auto &[name, address] : addresses) {
        if (isCounted(QFile::encodeName(name))) {
            m_iface = SysFs::printable(name);
            m_ip = address;
            return;
        }
    }
    m_iface = Records::unknownText;
    m_ip = Records::unknownText;
}

NetworkMonitor::AddressList NetworkMonitor::systemAddresses()
{
    AddressList list;
    ifaddrs *head = nullptr;
    if (::getifaddrs(&head) != 0)
        return list;
    for (const ifaddrs *a = head; a; a = a->ifa_next) {
        if (!a->ifa_addr || a->ifa_addr->sa_family != AF_INET || !a->ifa_name)
            continue;
        char text[INET_ADDRSTRLEN] = {};
        const auto *v4 = reinterpret_cast<const sockaddr_in *>(a->ifa_addr);
        if (!::inet_ntop(AF_INET, &v4->sin_addr, text, sizeof text))
            continue;
        list.append({QString::fromUtf8(a->ifa_name), QString::fromLatin1(text)});
    }
    ::freeifaddrs(head);
    return list;
}
