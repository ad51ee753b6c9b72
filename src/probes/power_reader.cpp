#include "probes/power_reader.h"

namespace vantor {

PowerReadResult PowerReader::read() {
    return PowerReadResult::failure();
}

std::optional<PowerStats> PowerReader::stats(const PropertyDictionary&) {
    return std::nullopt;
}

}  // namespace vantor
