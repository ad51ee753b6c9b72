#pragma once

#include <deque>
#include <filesystem>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "platform/linux/linux_roots.h"
#include "platform/linux/sensors/processor_sensor.h"

namespace vantor {

/// The sensors that one scan has found.
struct ProcessorSensorList {
    using Group = std::vector<const ProcessorSensor*>;

    std::deque<ProcessorSensor> sensors;  ///< a deque: they stay where they are
    Group packages;                       ///< one for each, of the best kind that it has
    Group cores;

    /// Zones of the processor beside hwmon's packages, for when none of those answers.
    std::deque<ProcessorSensor> standIns;
    Group zones;

    ProcessorSensorList() = default;
    ProcessorSensorList(const ProcessorSensorList&) = delete;
    ProcessorSensorList& operator=(const ProcessorSensorList&) = delete;
};

/// The temperature sensors of the processors, by driver and label, because their numbers change
/// from boot to boot: /sys/class/hwmon (https://docs.kernel.org/hwmon/sysfs-interface.html), and
/// the thermal zones where that knows no package or none answers. Of other devices only the name is
/// read, so that no disk is woken, and of graphics cards nothing.
///
/// Any thread. One of them scans, the others get the list before at once; nothing is locked while
/// files are read.
class ProcessorSensors {
  public:
    using Uptime = std::function<double()>;
    using List = std::shared_ptr<const ProcessorSensorList>;  ///< never null

    /// How long a scan holds, in seconds, and how long when a whole group has stopped answering.
    static constexpr double scanInterval = 60;
    static constexpr double retryInterval = 5;

    explicit ProcessorSensors(const LinuxRoots& roots, Uptime uptime = monotonicSeconds);

    List list();

    /// The hottest sensor of a package, or of a core, in degrees Celsius; absent when none answers.
    /// Whether there are any is in the list.
    std::optional<double> hottestPackage();
    std::optional<double> hottestCore();

  private:
    static double monotonicSeconds();

    List listNotOlderThan(double seconds);
    /// What `read` makes of a list that has something in the group that `select` returns.
    template <class Select, class Read>
    std::optional<double> hottest(Select select, Read read);

    std::filesystem::path folder_;
    Uptime uptime_;
    std::mutex lock_;
    List list_ = std::make_shared<const ProcessorSensorList>();
    std::optional<double> scannedAt_;
    bool isScanning_ = false;
};

}  // namespace vantor
