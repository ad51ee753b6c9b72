#pragma once

namespace vantor::bench {

/// CPU time of all of this program's threads, in seconds, the kernel's part included.
double processCPUSeconds();

/// The same of the calling thread alone.
double threadCPUSeconds();

}  // namespace vantor::bench
