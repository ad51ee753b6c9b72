#include "platform/linux/power/low_power_mode.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <string>
#include <system_error>

#include "platform/linux/files/kernel_file.h"

namespace vantor {

namespace {

constexpr std::string_view policyPrefix = "policy";

/// The folder of the policy with the lowest number; the first processor may be offline.
std::optional<std::filesystem::path> firstPolicy(const std::filesystem::path& folder) {
    std::optional<std::filesystem::path> first;
    std::uint32_t lowest = 0;
    std::error_code error;
    for (std::filesystem::directory_iterator at(folder, error), end; !error && at != end;
         at.increment(error)) {
        const std::string name = at->path().filename();
        if (!name.starts_with(policyPrefix)) continue;
        std::uint32_t number = 0;
        const char* const nameEnd = name.data() + name.size();
        const auto [rest, wrong] =
            std::from_chars(name.data() + policyPrefix.size(), nameEnd, number);
        if (wrong != std::errc{} || rest != nameEnd || (first && number >= lowest)) continue;
        first = at->path();
        lowest = number;
    }
    return first;
}

}  // namespace

bool isQuietTheLowestOf(std::string_view choices) {
    bool hasQuiet = false;
    constexpr std::string_view blanks = " \t\n";
    while (true) {
        const auto first = choices.find_first_not_of(blanks);
        if (first == std::string_view::npos) return hasQuiet;
        choices.remove_prefix(first);
        const std::string_view word = choices.substr(0, choices.find_first_of(blanks));
        if (word == "low-power") return false;
        hasQuiet = hasQuiet || word == "quiet";
        choices.remove_prefix(word.size());
    }
}

void LowPowerMode::search() {
    const auto seek = [](std::optional<SmallFile>& kept, const std::filesystem::path& path) {
        kept.emplace(path);
        if (!kept->isOpen()) kept.reset();
    };
    const auto acpi = roots_.sys / "firmware/acpi";
    seek(profile_, acpi / "platform_profile");
    const auto choices =
        profile_ ? readKernelText(acpi / "platform_profile_choices") : std::nullopt;
    quietIsLowest_ = choices && isQuietTheLowestOf(*choices);
    preference_.reset();
    if (const auto policy = firstPolicy(roots_.sys / "devices/system/cpu/cpufreq")) {
        seek(preference_, *policy / "energy_performance_preference");
    }
}

bool LowPowerMode::isEnabled(double uptime) {
    if (!searchedAt_ || uptime - *searchedAt_ >= searchInterval) {
        search();
        searchedAt_ = uptime;
    }
    std::array<char, 64> buffer{};
    if (profile_) {
        const auto profile = profile_->readText(buffer);
        if (profile == "low-power" || (quietIsLowest_ && profile == "quiet")) return true;
    }
    return preference_ && preference_->readText(buffer) == "power";
}

}  // namespace vantor
