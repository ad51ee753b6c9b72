#include "probes/storage_reader.h"

namespace vantor {

std::optional<std::vector<VolumeStats>> StorageReader::read() {
    return std::nullopt;
}

}  // namespace vantor
