#pragma once

#include "platform/system_controller.h"

namespace vantor {

/// By script.
class SimulatedSystemController : public SystemController {
  public:
    Service matchingService() override;
    void release(Service service) override;
    Connection open(Service service) override;
    void close(Connection connection) override;
    int callStructMethod(Connection connection, std::uint32_t selector,
                         std::span<const std::byte> request, std::span<std::byte> response,
                         std::size_t& responseSize) override;
};

}  // namespace vantor
