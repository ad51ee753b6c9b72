#pragma once

#include <optional>
#include <string_view>

#include "platform/linux/files/small_file.h"
#include "platform/linux/linux_roots.h"

namespace vantor {

/// Whether the machine has been told to save power: by its firmware's profile
/// (/sys/firmware/acpi/platform_profile) or by the processors' preference between energy and
/// performance (energy_performance_preference of the first cpufreq policy). One thread at a time.
class LowPowerMode {
  public:
    /// How long the search for the files holds, in seconds: drivers bring them along.
    static constexpr double searchInterval = 60;

    explicit LowPowerMode(LinuxRoots roots) : roots_(std::move(roots)) {}

    /// The values are read anew; the files are sought when `uptime`, in seconds, says that it is
    /// time to.
    bool isEnabled(double uptime);

  private:
    void search();

    LinuxRoots roots_;
    std::optional<SmallFile> profile_;
    std::optional<SmallFile> preference_;
    bool quietIsLowest_ = false;
    std::optional<double> searchedAt_;
};

/// Whether a list of profiles such as "quiet balanced performance" has none that is for saving
/// power, so that its quiet one is what that is set with. Pure.
bool isQuietTheLowestOf(std::string_view choices);

}  // namespace vantor
