#include "platform/macos/system/mac_kernel_values.h"

#include <sys/sysctl.h>

#include <cerrno>

namespace vantor {

int MacKernelValues::sysctlbyname(const std::string& name, std::span<std::byte> buffer,
                                  std::size_t& size) {
    std::size_t count = buffer.size();
    void* const value = buffer.empty() ? nullptr : buffer.data();
    if (::sysctlbyname(name.c_str(), value, &count, nullptr, 0) != 0) return errno;
    size = count;
    return 0;
}

}  // namespace vantor
