#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/linux/files/small_file.h"
#include "platform/linux/linux_roots.h"

namespace vantor {

/// The temperatures, in thousandths of a degree Celsius, at which a zone begins to be cooled by
/// slowing down, is about to be too hot, and has the machine switched off. Trip points of the type
/// "active" turn on fans and do not describe the machine's state.
struct ThermalTrips {
    std::optional<std::int64_t> passive;
    std::optional<std::int64_t> hot;
    std::optional<std::int64_t> critical;

    bool operator==(const ThermalTrips&) const = default;

    /// Takes a trip point in: the lowest of its type counts. One at or below 0 degrees is what
    /// firmware writes for "none".
    void add(std::string_view type, std::int64_t temperature);

    bool canJudge() const { return passive || hot || critical; }

    /// 0 below all of them, 1 from passive on, 2 from hot on, 3 from critical on. Pure.
    int judge(std::int64_t temperature) const;
};

/// A temperature text of the kernel, in thousandths of a degree; absent when malformed. Pure.
std::optional<std::int64_t> parseTemperature(std::string_view text);

/// The thermal zones of /sys/class/thermal against their own trip points
/// (https://docs.kernel.org/driver-api/thermal/sysfs-api.html). One thread at a time.
class ThermalZones {
  public:
    /// How long the list of zones and their trip points holds, in seconds.
    static constexpr double listingInterval = 60;

    explicit ThermalZones(const LinuxRoots& roots) : folder_(roots.sys / "class/thermal") {}

    /// The worst state of all zones, 0 to 3; absent when none can be judged. Each temperature is
    /// read anew; the zones are listed when `uptime`, in seconds, says that it is time to.
    std::optional<int> state(double uptime);

  private:
    struct Zone {
        SmallFile temperature;
        ThermalTrips trips;
    };

    void list();

    std::filesystem::path folder_;
    std::vector<Zone> zones_;
    std::optional<double> listedAt_;
};

}  // namespace vantor
