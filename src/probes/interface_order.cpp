#include "probes/interface_order.h"

#include <algorithm>

namespace vantor {

bool InterfaceOrder::comesFirst(const Place& a, const Place& b) {
    if (a.isPrimary != b.isPrimary) return a.isPrimary;
    if (a.hasAddress != b.hasAddress) return a.hasAddress;
    if (a.traffic != b.traffic) return a.traffic > b.traffic;
    if (a.nameRank != b.nameRank) return a.nameRank < b.nameRank;
    return a.row < b.row;
}

InterfaceOrder::Place InterfaceOrder::placeOf(const NetworkInterfaceStats& row, std::size_t at,
                                              const std::string* primaryName) const {
    return {primaryName && row.name == *primaryName,
            row.ipv4Address.has_value() || row.ipv6Address.has_value(),
            row.downloadBytesPerSecond + row.uploadBytesPerSecond, ranks_.of(row.name), at};
}

void InterfaceOrder::sort(std::vector<NetworkInterfaceStats>& rows,
                          const std::string* primaryName) {
    ranks_.learn(rows);
    if (places_.size() != rows.size()) {
        places_.resize(rows.size());
        for (std::size_t i = 0; i < rows.size(); ++i)
            places_[i].row = i;
    }
    // Those of quiet interfaces are in order as they were the last time.
    for (Place& place : places_)
        place = placeOf(rows[place.row], place.row, primaryName);
    if (!std::is_sorted(places_.begin(), places_.end(), comesFirst))
        std::sort(places_.begin(), places_.end(), comesFirst);
    others_.resize(rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i)
        std::swap(others_[i], rows[places_[i].row]);
    rows.swap(others_);
}

void InterfaceOrder::undo(std::vector<NetworkInterfaceStats>& rows) {
    if (rows.size() != places_.size()) return;
    for (std::size_t i = 0; i < rows.size(); ++i)
        std::swap(others_[places_[i].row], rows[i]);
    rows.swap(others_);
}

}  // namespace vantor
