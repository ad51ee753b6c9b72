#pragma once

#include "platform/kernel_values.h"
#include "platform/linux/linux_roots.h"

namespace vantor {

/// Answers the named kernel values that have a Linux counterpart, as sysctlbyname would:
///
///   machdep.cpu.brand_string  text     name of the processor
///   hw.model                  text     name of the machine
///   hw.logicalcpu             32-bit   processors online
///   hw.physicalcpu            32-bit   distinct cores of those
///   hw.cpufrequency           64-bit   nominal clock in hertz
///   hw.memsize                64-bit   bytes of memory: MemTotal
///   hw.tbfrequency            64-bit   units of process times in a second: they are nanoseconds
///   kern.maxproc              32-bit   processes there can be: pid_max
///   kern.osversion            text     release of the kernel, by uname where its file is missing
///
/// Any other name is ENOENT, as is one whose file is missing or malformed.
class LinuxKernelValues : public KernelValues {
  public:
    explicit LinuxKernelValues(LinuxRoots roots) : roots_(std::move(roots)) {}

    int sysctlbyname(const std::string& name, std::span<std::byte> buffer,
                     std::size_t& size) override;

  private:
    LinuxRoots roots_;
};

}  // namespace vantor
