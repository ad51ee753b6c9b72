#include "platform/linux/memory/zram_devices.h"

#include <array>
#include <charconv>
#include <limits>
#include <system_error>

#include "model/checked.h"

namespace vantor {

std::optional<std::uint64_t> parseZramUsedBytes(std::string_view text) {
    std::uint64_t number = 0;
    for (int field = 0; field < 3; ++field) {
        const auto first = text.find_first_not_of(' ');
        if (first == std::string_view::npos) return std::nullopt;
        text.remove_prefix(first);
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
        if (error != std::errc{}) return std::nullopt;
        text.remove_prefix(static_cast<std::size_t>(end - text.data()));
        // Only what follows a number tells that it was not cut.
        if (text.empty() || (text.front() != ' ' && text.front() != '\n')) return std::nullopt;
    }
    return number;
}

void ZramDevices::find() {
    statistics_.clear();
    std::error_code error;
    for (std::filesystem::directory_iterator at(folder_, error), end; !error && at != end;
         at.increment(error)) {
        if (!at->path().filename().native().starts_with("zram")) continue;
        if (SmallFile file(at->path() / "mm_stat"); file.isOpen()) {
            statistics_.push_back(std::move(file));
        }
    }
}

std::uint64_t ZramDevices::usedBytes(std::optional<std::uint64_t> swapTotal) {
    if (!wereFound_ || swapTotal != swapTotal_) find();
    wereFound_ = true;
    swapTotal_ = swapTotal;
    std::uint64_t sum = 0;
    std::array<char, 512> buffer{};
    for (const SmallFile& file : statistics_) {
        const auto text = file.read(buffer);
        const auto used = text ? parseZramUsedBytes(*text) : std::nullopt;
        const auto more = checkedSum(sum, used.value_or(0));
        if (!more) return std::numeric_limits<std::uint64_t>::max();
        sum = *more;
    }
    return sum;
}

}  // namespace vantor
