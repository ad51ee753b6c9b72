#pragma once

#include <memory>

#include "platform/darwin/system_controller.h"
#include "platform/macos/frameworks/frameworks.h"

namespace vantor {

/// The user client of the service AppleSMC, opened for this program's own task with type 0.
class MacSystemController : public SystemController {
  public:
    explicit MacSystemController(std::shared_ptr<const Frameworks> frameworks);

    Service matchingService() override;
    void release(Service service) override;
    Connection open(Service service) override;
    void close(Connection connection) override;
    int callStructMethod(Connection connection, std::uint32_t selector,
                         std::span<const std::byte> request, std::span<std::byte> response,
                         std::size_t& responseSize) override;

  private:
    std::shared_ptr<const Frameworks> frameworks_;
    bool canAsk_;
};

}  // namespace vantor
