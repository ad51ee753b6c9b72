#include "probes/memory_reader.h"

namespace vantor {

std::optional<MemoryStats> MemoryReader::read() {
    return std::nullopt;
}

std::uint64_t MemoryReader::installedMemory() {
    return installedMemory_;
}

}  // namespace vantor
