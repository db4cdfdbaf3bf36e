#pragma once
// GPU utilisation: amdgpu's gpu_busy_percent, or NVIDIA's management library
// opened by name at run time.

#include "model/Records.h"
#include "sampling/SystemRoots.h"

class GPUMonitor {
public:
    explicit GPUMonitor(SystemRoots roots = {});

    GPUSample read();

private:
    SystemRoots m_roots;
};
