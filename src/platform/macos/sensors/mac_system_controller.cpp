#include "platform/macos/sensors/mac_system_controller.h"

#include <utility>

#include "platform/macos/frameworks/autorelease_pool.h"

namespace vantor {

namespace {

constexpr std::uint32_t userClientType = 0;
constexpr int unsupported = -536870201;  // kIOReturnUnsupported, 0xE00002C7

}  // namespace

MacSystemController::MacSystemController(std::shared_ptr<const Frameworks> frameworks)
    : frameworks_(std::move(frameworks)),
      canAsk_(frameworks_->task != 0 && frameworks_->ioKit.serviceMatching &&
              frameworks_->ioKit.serviceGetMatchingService && frameworks_->ioKit.objectRelease &&
              frameworks_->ioKit.serviceOpen && frameworks_->ioKit.serviceClose &&
              frameworks_->ioKit.connectCallStructMethod) {}

SystemController::Service MacSystemController::matchingService() {
    if (!canAsk_) return 0;
    const AutoreleasePool pool(frameworks_->objectiveC);
    const CFTypeRef matching = frameworks_->ioKit.serviceMatching("AppleSMC");
    if (!matching) return 0;
    // Takes the dictionary, also when there is no such service.
    return frameworks_->ioKit.serviceGetMatchingService(frameworks_->mainPort, matching);
}

void MacSystemController::release(Service service) {
    if (canAsk_ && service != 0) frameworks_->ioKit.objectRelease(service);
}

SystemController::Connection MacSystemController::open(Service service) {
    MachPort connection = 0;
    if (!canAsk_ || service == 0) return 0;
    if (frameworks_->ioKit.serviceOpen(service, frameworks_->task, userClientType, &connection) !=
        0) {
        return 0;
    }
    return connection;
}

void MacSystemController::close(Connection connection) {
    if (canAsk_ && connection != 0) frameworks_->ioKit.serviceClose(connection);
}

int MacSystemController::callStructMethod(Connection connection, std::uint32_t selector,
                                          std::span<const std::byte> request,
                                          std::span<std::byte> response,
                                          std::size_t& responseSize) {
    if (!canAsk_) return unsupported;
    std::size_t size = response.size();
    const int result = frameworks_->ioKit.connectCallStructMethod(
        connection, selector, request.data(), request.size(), response.data(), &size);
    if (result == 0) responseSize = size;
    return result;
}

}  // namespace vantor
