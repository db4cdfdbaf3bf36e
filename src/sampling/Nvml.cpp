#include "sampling/Nvml.h"

#include <atomic>
#include <condition_variable>
#include <dlfcn.h>
#include <mutex>
#include <thread>

namespace nvml {
namespace {

// The few declarations needed from NVIDIA's public API reference. Every
// call returns nvmlReturn_t, an enumeration whose success value is 0.
using nvmlReturn_t = int;
constexpr nvmlReturn_t NVML_SUCCESS = 0;
struct nvmlDevice_st;
using nvmlDevice_t = nvmlDevice_st *;
struct nvmlUtilization_t {
    unsigned int gpu;    // percent of the last sample period a kernel ran
    unsigned int memory; // percent of it device memory was read or written
};
using nvmlTemperatureSensors_t = int;
constexpr nvmlTemperatureSensors_t NVML_TEMPERATURE_GPU = 0;

using InitFn = nvmlReturn_t (*)();
using CountFn = nvmlReturn_t (*)(unsigned int *);
using HandleFn = nvmlReturn_t (*)(unsigned int, nvmlDevice_t *);
using UtilFn = nvmlReturn_t (*)(nvmlDevice_t, nvmlUtilization_t *);
using TempFn = nvmlReturn_t (*)(nvmlDevice_t, nvmlTemperatureSensors_t, unsigned int *);
using EnergyFn = nvmlReturn_t (*)(nvmlDevice_t, unsigned long long *); // millijoules
using PowerFn = nvmlReturn_t (*)(nvmlDevice_t, unsigned int *);        // milliwatts

constexpr unsigned int maxDevices = 64;

} // namespace

struct Nvml::Impl {
    mutable std::mutex lock;
    std::condition_variable opened;
    std::atomic<State> state{State::closed};
    std::string failure;

    void *library = nullptr;
    UtilFn utilization = nullptr;
    TempFn temperature = nullptr;
    EnergyFn energy = nullptr;
    PowerFn power = nullptr;
    std::vector<nvmlDevice_t> devices;
};

Nvml::Nvml()
    : d(new Impl)
{
}

Nvml &Nvml::shared()
{
    static Nvml *instance = new Nvml; // deliberately never deleted
    return *instance;
}

Nvml::State Nvml::state() const
{
    return d->state.load();
}

std::string Nvml::failure() const
{
    std::lock_guard<std::mutex> guard(d->lock);
    return d->failure;
}

void Nvml::open()
{
    std::string why;
    void *library = ::dlopen("libnvidia-ml.so.1", RTLD_NOW | RTLD_LOCAL);
    std::vector<nvmlDevice_t> devices;
    UtilFn utilization = nullptr;
    TempFn temperature = nullptr;
    EnergyFn energy = nullptr;
    PowerFn power = nullptr;

    if (!library) {
        const char *err = ::dlerror();
        why = err ? err : "libnvidia-ml.so.1 not found";
    } else {
        auto init = reinterpret_cast<InitFn>(::dlsym(library, "nvmlInit_v2"));
        auto count = reinterpret_cast<CountFn>(::dlsym(library, "nvmlDeviceGetCount_v2"));
        auto handle = reinterpret_cast<HandleFn>(::dlsym(library, "nvmlDeviceGetHandleByIndex_v2"));
        utilization = reinterpret_cast<UtilFn>(::dlsym(library, "nvmlDeviceGetUtilizationRates"));
        temperature = reinterpret_cast<TempFn>(::dlsym(library, "nvmlDeviceGetTemperature"));
        energy = reinterpret_cast<EnergyFn>(::dlsym(library, "nvmlDeviceGetTotalEnergyConsumption"));
        power = reinterpret_cast<PowerFn>(::dlsym(library, "nvmlDeviceGetPowerUsage"));
        unsigned int n = 0;
        if (!init || !count || !handle) {
            why = "the library lacks nvmlInit_v2, nvmlDeviceGetCount_v2 or nvmlDeviceGetHandleByIndex_v2";
        } else if (const nvmlReturn_t rc = init(); rc != NVML_SUCCESS) {
            why = "nvmlInit_v2 returned " + std::to_string(rc);
        } else if (const nvmlReturn_t rc = count(&n); rc != NVML_SUCCESS) {
            why = "nvmlDeviceGetCount_v2 returned " + std::to_string(rc);
        } else {
            for (unsigned int i = 0; i < n && i < maxDevices; ++i) {
                nvmlDevice_t device = nullptr;
                if (handle(i, &device) == NVML_SUCCESS && device)
                    devices.push_back(device);
            }
            if (devices.empty())
                why = "no NVIDIA device";
        }
        // The library stays loaded even when unusable: unloading a driver
        // library after a partial initialisation is not worth the risk.
    }

    std::lock_guard<std::mutex> guard(d->lock);
    d->library = library;
    d->utilization = utilization;
    d->temperature = temperature;
    d->energy = energy;
    d->power = power;
    d->devices = std::move(devices);
    d->failure = why;
    d->state = d->devices.empty() ? State::unavailable : State::ready;
    d->opened.notify_all();
}

bool Nvml::ready()
{
    State expected = State::closed;
    if (d->state.compare_exchange_strong(expected, State::opening)) {
        try {
            std::thread([this] { open(); }).detach();
        } catch (...) {
            // No thread to be had: open here once rather than never.
            open();
        }
    }
    return d->state.load() == State::ready;
}

bool Nvml::openNow()
{
    State expected = State::closed;
    if (d->state.compare_exchange_strong(expected, State::opening)) {
        open();
    } else {
        std::unique_lock<std::mutex> guard(d->lock);
        d->opened.wait(guard, [this] { return d->state.load() != State::opening; });
    }
    return d->state.load() == State::ready;
}

std::vector<NvmlReading> Nvml::readAll()
{
    std::vector<NvmlReading> out;
    if (d->state.load() != State::ready)
        return out;
    std::lock_guard<std::mutex> guard(d->lock);
    out.reserve(d->devices.size());
    for (nvmlDevice_t device : d->devices) {
        NvmlReading r;
        nvmlUtilization_t util{};
        if (d->utilization && d->utilization(device, &util) == NVML_SUCCESS) {
            r.hasUtil = true;
            r.util01 = util.gpu >= 100 ? 1.0 : util.gpu / 100.0;
        }
        unsigned int temp = 0;
        if (d->temperature && d->temperature(device, NVML_TEMPERATURE_GPU, &temp) == NVML_SUCCESS) {
            r.hasTemp = true;
            r.tempC = double(temp);
        }
        unsigned int milliwatts = 0;
        if (d->power && d->power(device, &milliwatts) == NVML_SUCCESS) {
            r.hasPower = true;
            r.powerW = milliwatts / 1000.0;
        }
        unsigned long long millijoules = 0;
        if (d->energy && d->energy(device, &millijoules) == NVML_SUCCESS) {
            r.hasEnergy = true;
            r.energyJ = double(millijoules) / 1000.0;
        }
        r.ok = r.hasUtil || r.hasTemp || r.hasPower || r.hasEnergy;
        out.push_back(r);
    }
    return out;
}

Source Nvml::sharedSource()
{
    return [] {
        Nvml &lib = Nvml::shared();
        return lib.ready() ? lib.readAll() : std::vector<NvmlReading>{};
    };
}

Source Nvml::openedSource()
{
    return [] {
        Nvml &lib = Nvml::shared();
        return lib.state() == State::ready ? lib.readAll() : std::vector<NvmlReading>{};
    };
}

} // namespace nvml
