#include "probes/interface_order.h"

#include "probes/standard_order.h"

namespace vantor {

bool comesFirst(const NetworkInterfaceStats& a, const NetworkInterfaceStats& b,
                const std::string* primaryName) {
    if (primaryName) {
        const bool aIsPrimary = a.name == *primaryName;
        if (aIsPrimary != (b.name == *primaryName)) return aIsPrimary;
    }
    const bool aHasAddress = a.ipv4Address || a.ipv6Address;
    if (aHasAddress != (b.ipv4Address || b.ipv6Address)) return aHasAddress;
    const double aSum = a.downloadBytesPerSecond + a.uploadBytesPerSecond;
    const double bSum = b.downloadBytesPerSecond + b.uploadBytesPerSecond;
    if (aSum != bSum) return aSum > bSum;
    return compareStandard(a.name, b.name) < 0;
}

}  // namespace vantor
