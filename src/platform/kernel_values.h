#pragma once

#include <cstddef>
#include <span>
#include <string>

namespace vantor {

/// Named kernel values, the shape of sysctlbyname. Any thread.
class KernelValues {
  public:
    virtual ~KernelValues() = default;

    /// Gives 0 and sets `size` to the value's size, or gives an errno value. An empty `buffer` only
    /// asks for the size; one that is too small gives ENOMEM; an unknown name gives ENOENT. Texts
    /// end with a zero byte that counts into the size; integers are in the machine's byte order.
    virtual int sysctlbyname(const std::string& name, std::span<std::byte> buffer,
                             std::size_t& size) = 0;
};

}  // namespace vantor
