#include "platform/linux/processor/linux_load_averages.h"

#include <algorithm>
#include <charconv>

namespace vantor {

int LinuxLoadAverages::getloadavg(std::span<double> averages) {
    const auto content = file_.read();
    if (!content) return -1;
    std::string_view text = *content;
    const std::size_t wanted = std::min<std::size_t>(averages.size(), 3);
    int count = 0;
    while (static_cast<std::size_t>(count) < wanted) {
        double value = 0;
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
        // Only a blank ends a number here: without one the text was cut inside it.
        if (error != std::errc{} || end == text.data() + text.size() || *end != ' ') break;
        averages[static_cast<std::size_t>(count++)] = value;
        text.remove_prefix(static_cast<std::size_t>(end - text.data()) + 1);
    }
    return count == 0 ? -1 : count;
}

}  // namespace vantor
