#pragma once
// NVIDIA's management library (libnvidia-ml.so.1), opened by name at run time.
// Plain C++: only the standard library and <dlfcn.h>, so this pair of files
// also builds on its own into a probe for a machine with an NVIDIA card.
//
// Opening (dlopen plus the library's own initialisation, which can take a
// noticeable while when the driver is not persistent) happens once, on a
// background thread started by the first ready() call, and is kept for the
// life of the process. Until it has finished, ready() is false and readers
// simply have no NVIDIA figures that tick. Only the GPU readings of an open
// panel open it: `sulkbox bar` and a closed panel never load the library.

#include <functional>
#include <string>
#include <vector>

namespace nvml {

// One device's figures; each has its own flag because older boards or
// drivers answer some queries and refuse others.
struct NvmlReading {
    bool ok = false; // the device answered at least one query
    bool hasUtil = false;
    double util01 = 0; // busy share of the last sample period, 0..1
    bool hasTemp = false;
    double tempC = 0; // core temperature, °C
    bool hasPower = false;
    double powerW = 0; // board power now, watts
    bool hasEnergy = false;
    double energyJ = 0; // board energy since the driver loaded, joules
};

// Where readers get NVIDIA figures from: the library below in the
// application, a fake in tests. An empty vector means no NVIDIA device.
using Source = std::function<std::vector<NvmlReading>()>;

class Nvml {
public:
    enum class State { closed, opening, ready, unavailable };

    // The process-wide instance (never destroyed, so a background open can
    // outlive static destruction safely).
    static Nvml &shared();

    // Starts the background open on first use; true once the library is
    // initialised and at least one device was found. Never blocks.
    bool ready();
    // Opens on the calling thread (or waits for an open already under way).
    // For tools; the readers use ready().
    bool openNow();

    State state() const;
    // Why opening failed, for the probe's output.
    std::string failure() const;

    // One reading per device, in the library's order. Empty when not ready.
    std::vector<NvmlReading> readAll();

    // A Source over shared() that never blocks. Its first call starts the
    // background open.
    static Source sharedSource();
    // A Source over shared() that answers only once something else has
    // opened the library, and never opens it itself: for readers that run
    // whether or not anyone looks at GPU figures.
    static Source openedSource();

    Nvml(const Nvml &) = delete;
    Nvml &operator=(const Nvml &) = delete;

private:
    Nvml();
    void open();
    struct Impl;
    Impl *d;
};

} // namespace nvml
