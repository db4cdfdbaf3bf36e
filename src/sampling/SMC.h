#pragma once
// The System Management Controller of Apple hardware, reached on Linux
// through the applesmc driver's files. Elsewhere it stays closed and every
// read is absent.

#include "model/Records.h"
#include "sampling/SystemRoots.h"

#include <QList>
#include <QString>

#include <optional>

class SMC {
public:
    explicit SMC(SystemRoots roots = {});

    // The process-wide instance over the live /sys.
    static SMC &shared();

    bool isOpen() const { return m_isOpen; }
    std::optional<double> readValue(const QString &key);
    QList<FanInfo> fans();

private:
    SystemRoots m_roots;
    bool m_isOpen = false;
};
