#include "platform/macos/processor/mac_host_processors.h"

#include <algorithm>

#include "platform/macos/processor/host_port.h"

namespace vantor {

HostProcessors::Port MacHostProcessors::acquirePort() {
    return acquireHostPort();
}

void MacHostProcessors::releasePort(Port port) {
    releaseHostPort(port);
}

std::optional<std::size_t> MacHostProcessors::totalTicks(Port port,
                                                         std::span<std::uint32_t> counters) {
    auto count = static_cast<mach_msg_type_number_t>(
        std::min<std::size_t>(counters.size(), HOST_CPU_LOAD_INFO_COUNT));
    auto* const info = reinterpret_cast<host_info_t>(counters.data());
    if (::host_statistics(port, HOST_CPU_LOAD_INFO, info, &count) != KERN_SUCCESS) {
        return std::nullopt;
    }
    return count;
}

std::optional<HostProcessors::ProcessorArray> MacHostProcessors::processorTicks(Port port) {
    natural_t processorCount = 0;
    processor_info_array_t words = nullptr;
    mach_msg_type_number_t wordCount = 0;
    if (::host_processor_info(port, PROCESSOR_CPU_LOAD_INFO, &processorCount, &words, &wordCount) !=
        KERN_SUCCESS) {
        return std::nullopt;
    }
    return ProcessorArray{processorCount, reinterpret_cast<const std::uint32_t*>(words), wordCount};
}

void MacHostProcessors::releaseArray(const std::uint32_t* words, std::size_t byteCount) {
    ::vm_deallocate(::mach_task_self(), reinterpret_cast<vm_address_t>(words), byteCount);
}

}  // namespace vantor
