#include "platform/linux/graphics/drm_fdinfo.h"

#include <algorithm>
#include <charconv>

#include "platform/linux/files/trimmed.h"

namespace vantor {

namespace {

/// A number with nothing behind it but the unit, if it has one.
std::optional<std::uint64_t> parseAmount(std::string_view text, std::string_view unit = {}) {
    std::uint64_t number = 0;
    const char* const end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc{}) return std::nullopt;
    if (trimmed({rest, static_cast<std::size_t>(end - rest)}) != unit) return std::nullopt;
    return number;
}

bool takePrefix(std::string_view& text, std::string_view prefix) {
    if (!text.starts_with(prefix)) return false;
    text.remove_prefix(prefix.size());
    return true;
}

}  // namespace

DRMEngine* DRMFdInfo::engine(std::string_view name) {
    const auto last = engines_.begin() + static_cast<std::ptrdiff_t>(engineCount_);
    const auto known = std::find_if(engines_.begin(), last,
                                    [&](const DRMEngine& each) { return each.name == name; });
    if (known != last) return &*known;
    if (name.empty() || engineCount_ == maxEngines) return nullptr;
    engines_[engineCount_].name = name;
    return &engines_[engineCount_++];
}

void DRMFdInfo::take(std::string_view key, std::string_view value) {
    if (takePrefix(key, "engine-capacity-")) {
        // None at all is no capacity to divide by.
        const auto capacity = parseAmount(value);
        if (DRMEngine* const known = capacity.value_or(0) > 0 ? engine(key) : nullptr) {
            known->capacity = *capacity;
        }
    } else if (takePrefix(key, "engine-")) {
        const auto busy = parseAmount(value, "ns");
        if (DRMEngine* const known = busy ? engine(key) : nullptr) known->busyNanoseconds = busy;
    } else if (takePrefix(key, "cycles-")) {
        const auto cycles = parseAmount(value);
        if (DRMEngine* const known = cycles ? engine(key) : nullptr) known->cycles = cycles;
    } else if (takePrefix(key, "total-cycles-")) {
        const auto cycles = parseAmount(value);
        if (DRMEngine* const known = cycles ? engine(key) : nullptr) known->totalCycles = cycles;
    } else if (key == "client-id") {
        if (const auto number = parseAmount(value)) {
            clientID = *number;
            hasClientID_ = true;
        }
    } else if (key == "driver") {
        driver = value;
    } else if (key == "pdev") {
        device = parsePCIAddress(value);
    }
}

std::optional<DRMFdInfo> DRMFdInfo::parse(std::string_view text) {
    DRMFdInfo info;
    while (!text.empty()) {
        const auto end = text.find('\n');
        if (end == std::string_view::npos) break;  // cut
        std::string_view line = text.substr(0, end);
        text.remove_prefix(end + 1);
        if (!takePrefix(line, "drm-")) continue;
        const auto colon = line.find(':');
        if (colon == std::string_view::npos) continue;
        info.take(line.substr(0, colon), trimmed(line.substr(colon + 1)));
    }
    const auto engines = info.engines();
    const bool tellsOfEngines =
        std::any_of(engines.begin(), engines.end(), [](const DRMEngine& each) {
            return each.busyNanoseconds || (each.cycles && each.totalCycles);
        });
    if (!info.hasClientID_ || !tellsOfEngines) return std::nullopt;
    return info;
}

}  // namespace vantor
