#pragma once

#include <utility>

#include "platform/linux/linux_roots.h"
#include "platform/system_controller.h"

namespace vantor {

/// Tells of nothing yet.
class LinuxSystemController : public SystemController {
  public:
    explicit LinuxSystemController(LinuxRoots roots) : roots_(std::move(roots)) {}

    Service matchingService() override;
    void release(Service service) override;
    Connection open(Service service) override;
    void close(Connection connection) override;
    int callStructMethod(Connection connection, std::uint32_t selector,
                         std::span<const std::byte> request, std::span<std::byte> response,
                         std::size_t& responseSize) override;

  private:
    [[maybe_unused]] LinuxRoots roots_;
};

}  // namespace vantor
