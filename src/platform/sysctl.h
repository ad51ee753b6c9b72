#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/kernel_values.h"

namespace vantor {

/// Reads named kernel values; absent on any failure. Stateless, any thread.
class Sysctl {
  public:
    explicit Sysctl(KernelValues& values) : values_(&values) {}

    /// The text up to its first zero byte; absent when it is not UTF-8. A value that keeps growing
    /// between the calls is given up after three reads.
    std::optional<std::string> string(const std::string& name) const;

    /// Absent unless the value is exactly four bytes.
    std::optional<std::int32_t> int32(const std::string& name) const;

    /// Absent unless the value is exactly eight bytes.
    std::optional<std::uint64_t> uint64(const std::string& name) const;

  private:
    KernelValues* values_;
};

}  // namespace vantor
