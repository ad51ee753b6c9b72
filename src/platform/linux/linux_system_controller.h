#pragma once

#include <memory>
#include <utility>

#include "platform/linux/processor_sensors.h"
#include "platform/system_controller.h"

namespace vantor {

/// Answers for the processors' sensors as a controller does: "TC0D" is the hottest package, "TC0C"
/// to "TC9C" are the hottest of the cores whose numbers end with that digit, all of the type
/// "flt ". There is no controller where there is no sensor.
class LinuxSystemController : public SystemController {
  public:
    explicit LinuxSystemController(std::shared_ptr<ProcessorSensors> sensors)
        : sensors_(std::move(sensors)) {}

    Service matchingService() override;
    void release(Service) override {}
    Connection open(Service service) override;
    void close(Connection) override {}
    int callStructMethod(Connection connection, std::uint32_t selector,
                         std::span<const std::byte> request, std::span<std::byte> response,
                         std::size_t& responseSize) override;

  private:
    std::shared_ptr<ProcessorSensors> sensors_;
};

}  // namespace vantor
