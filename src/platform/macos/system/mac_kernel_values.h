#pragma once

#include "platform/kernel_values.h"

namespace vantor {

/// The kernel's own named values.
class MacKernelValues : public KernelValues {
  public:
    int sysctlbyname(const std::string& name, std::span<std::byte> buffer,
                     std::size_t& size) override;
};

}  // namespace vantor
