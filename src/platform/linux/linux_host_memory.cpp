#include "platform/linux/linux_host_memory.h"

namespace vantor {

std::optional<std::size_t> LinuxHostMemory::vmStatistics(Port, std::span<std::uint32_t>) {
    return std::nullopt;
}

std::optional<std::uint64_t> LinuxHostMemory::pageSize(Port) {
    return std::nullopt;
}

}  // namespace vantor
