#include "probes/system_info_reader.h"

#include "model/system_snapshot.h"

namespace vantor {

const SystemInfoStats& SystemInfoReader::read() {
    std::call_once(isIdentified_, [this] { identify(); });
    return stats_;
}

void SystemInfoReader::identify() {
    stats_ = SystemSnapshot::empty().system;
}

}  // namespace vantor
