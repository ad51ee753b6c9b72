#include "platform/macos/processor/mac_load_averages.h"

#include <algorithm>
#include <cstdlib>

namespace vantor {

int MacLoadAverages::getloadavg(std::span<double> averages) {
    const auto wanted = std::min<std::size_t>(averages.size(), 3);
    return ::getloadavg(averages.data(), static_cast<int>(wanted));
}

}  // namespace vantor
