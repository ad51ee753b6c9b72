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

void InterfaceOrder::sort(std::vector<NetworkInterfaceStats>& rows,
                          const std::string* primaryName) {
    ranks_.learn(rows);
    places_.clear();
    for (const NetworkInterfaceStats& row : rows) {
        places_.push_back({primaryName && row.name == *primaryName,
                           row.ipv4Address.has_value() || row.ipv6Address.has_value(),
                           row.downloadBytesPerSecond + row.uploadBytesPerSecond,
                           ranks_.of(row.name), places_.size()});
    }
    std::sort(places_.begin(), places_.end(), comesFirst);
    others_.resize(rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i)
        std::swap(others_[i], rows[places_[i].row]);
    rows.swap(others_);
}

}  // namespace vantor
