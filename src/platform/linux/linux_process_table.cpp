#include "platform/linux/linux_process_table.h"

namespace vantor {

int LinuxProcessTable::listAllPIDs(std::span<std::int32_t>) {
    return 0;
}

int LinuxProcessTable::taskAllInfo(std::int32_t, TaskAllInfo&) {
    return 0;
}

int LinuxProcessTable::path(std::int32_t, std::span<char>) {
    return 0;
}

int LinuxProcessTable::name(std::int32_t, std::span<char>) {
    return 0;
}

}  // namespace vantor
