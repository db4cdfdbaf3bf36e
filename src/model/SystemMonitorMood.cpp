#include "model/SystemMonitor.h"

// The mood and roast state of the model lives here.

void SystemMonitor::updateMood()
{
}
