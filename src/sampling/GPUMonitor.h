#pragma once
// GPU utilisation: the DRM cards' gpu_busy_percent (amdgpu), else NVIDIA's
// management library on the live machine. No card and no library: hasUsage
// false.

#include "model/Records.h"
#include "sampling/Nvml.h"
#include "sampling/SystemRoots.h"

class GPUMonitor {
public:
    explicit GPUMonitor(SystemRoots roots = {});

    GPUSample read();

    // Where NVIDIA figures come from; by default the management library
    // when the roots are live, none otherwise.
    void setNvidiaSource(nvml::Source source) { m_nvidia = std::move(source); }

private:
    SystemRoots m_roots;
    nvml::Source m_nvidia;
};
