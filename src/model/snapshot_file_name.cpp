#include "model/snapshot_file_name.h"

#include <cstddef>

#include "model/system_snapshot.h"

namespace vantor {

namespace {

std::string padded(int number, std::size_t width) {
    const std::string digits = std::to_string(number);
    return digits.size() < width ? std::string(width - digits.size(), '0') + digits : digits;
}

}  // namespace

Timestamp fileMoment(const SystemSnapshot& snapshot, Timestamp now) {
    return snapshot.timestamp == SystemSnapshot::empty().timestamp ? now : snapshot.timestamp;
}

std::string snapshotFileName(const CalendarTime& t) {
    return "Vantor-" + padded(t.year, 4) + '-' + padded(t.month, 2) + '-' + padded(t.day, 2) + '-' +
           padded(t.hour, 2) + padded(t.minute, 2) + padded(t.second, 2) + ".json";
}

}  // namespace vantor
