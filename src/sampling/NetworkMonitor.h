#pragma once
// Network rates and totals from the 64-bit per-interface byte counters of
// the physical interfaces; the primary interface is the one with the default
// route.

#include "model/Records.h"
#include "sampling/SysFs.h"
#include "sampling/SystemRoots.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QStringList>

#include <functional>
#include <optional>
#include <utility>
#include <vector>

class NetworkMonitor {
public:
    // (interface name, dotted IPv4 address), in the system's order.
    using AddressList = QList<std::pair<QString, QString>>;

    explicit NetworkMonitor(SystemRoots roots = {});

    // Rates since the previous reading over the physical interfaces (those
    // with a device behind them; where there is none, as in a container,
    // everything but loopback). The first reading only primes. The
    // interface name and address are looked up again only when
    // `refreshAddress` is true; otherwise the last ones are kept.
    NetworkSample read(bool refreshAddress);

    // Where IPv4 addresses come from; getifaddrs on the live machine,
    // nothing for a captured snapshot.
    void setAddressSource(std::function<AddressList()> source) { m_addresses = std::move(source); }
    // Seconds on a steady clock; the rates divide by its differences.
    void setClock(std::function<double()> clock) { m_clock = std::move(clock); }
    // Counts exactly these interfaces instead of the physical ones, for
    // measuring one link, virtual or not. An empty list restores the rule.
    void setCountedInterfaces(const QStringList &names);

    static AddressList systemAddresses();

private:
    struct Interface {
        QByteArray name;
        quint64 in = 0;
        quint64 out = 0;
        bool counted = false;
        bool loopback = false;
        bool seen = false;
    };

    bool readCounters(quint64 &in, quint64 &out, double &newIn, double &newOut);
    bool isCounted(const QByteArray &name) const;
    std::optional<QString> defaultRouteInterface();
    void lookUpPrimary();

    SystemRoots m_roots;
    SysFs::KeptFile m_dev;
    SysFs::KeptFile m_route;
    QByteArray m_buffer;
    std::vector<Interface> m_interfaces;
    QHash<QByteArray, size_t> m_index; // position in m_interfaces by name
    QList<QByteArray> m_countOnly;
    std::function<AddressList()> m_addresses;
    std::function<double()> m_clock;
    std::optional<double> m_prevTime;
    QString m_iface = Records::unknownText;
    QString m_ip = Records::unknownText;
};
