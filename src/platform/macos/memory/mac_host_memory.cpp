#include "platform/macos/memory/mac_host_memory.h"

#include "platform/macos/processor/host_port.h"

namespace vantor {

HostMemory::Port MacHostMemory::acquirePort() {
    return acquireHostPort();
}

void MacHostMemory::releasePort(Port port) {
    releaseHostPort(port);
}

std::optional<std::size_t> MacHostMemory::vmStatistics(Port port, std::span<std::uint32_t> words) {
    // The kernel takes the size offered and fills in what it has of the record, an older one less.
    auto count = static_cast<mach_msg_type_number_t>(words.size());
    auto* const info = reinterpret_cast<host_info64_t>(words.data());
    if (::host_statistics64(port, HOST_VM_INFO64, info, &count) != KERN_SUCCESS) {
        return std::nullopt;
    }
    return count;
}

std::optional<std::uint64_t> MacHostMemory::pageSize(Port port) {
    vm_size_t size = 0;
    if (::host_page_size(port, &size) != KERN_SUCCESS) return std::nullopt;
    return size;
}

}  // namespace vantor
