#include "platform/linux/linux_system_controller.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <optional>

#include "platform/smc_record.h"

namespace vantor {

namespace {

constexpr SystemController::Service systemControllerTheService = 1;
constexpr SystemController::Connection theConnection = 1;
constexpr std::uint32_t systemControllerRecordSelector = 2;

constexpr std::uint8_t badCommand = 0x82;
constexpr std::uint8_t systemControllerNoSuchKey = 0x84;
constexpr std::uint8_t keyNotReadable = 0x85;

constexpr std::uint32_t packageKey = 0x54433044;                     // "TC0D"
constexpr std::uint32_t firstCoreKey = 0x54433043;                   // "TC0C"
constexpr std::uint32_t systemControllerFloatingPoint = 0x666C7420;  // "flt "

/// The digit of "TC0C" to "TC9C".
std::optional<std::size_t> coreDigit(std::uint32_t key) {
    constexpr std::uint32_t step = 0x100;
    if (key < firstCoreKey || (key - firstCoreKey) % step != 0) return std::nullopt;
    const std::size_t digit = (key - firstCoreKey) / step;
    return digit < 10 ? std::optional(digit) : std::nullopt;
}

bool knows(const ProcessorSensorList& list, std::uint32_t key) {
    if (key == packageKey) return !list.packages.empty();
    const auto digit = coreDigit(key);
    return digit && !list.cores[*digit].empty();
}

void answerKeyInfo(const ProcessorSensorList& list, SMCRecord& record) {
    if (!knows(list, record.key())) {
        record.setResult(systemControllerNoSuchKey);
        return;
    }
    record.setDataSize(sizeof(float));
    record.setDataType(systemControllerFloatingPoint);
}

void answerBytes(ProcessorSensors& sensors, SMCRecord& record) {
    const auto digit = coreDigit(record.key());
    if (record.key() != packageKey && !digit) {
        record.setResult(systemControllerNoSuchKey);
        return;
    }
    const auto temperature = digit ? sensors.hottestCore(*digit) : sensors.hottestPackage();
    if (!temperature) {
        record.setResult(keyNotReadable);
        return;
    }
    const auto value = static_cast<float>(*temperature);
    std::memcpy(record.value().data(), &value, sizeof value);
}

}  // namespace

SystemController::Service LinuxSystemController::matchingService() {
    return sensors_->list()->sensors.empty() ? 0 : systemControllerTheService;
}

SystemController::Connection LinuxSystemController::open(Service service) {
    return service == systemControllerTheService ? theConnection : 0;
}

int LinuxSystemController::callStructMethod(Connection connection, std::uint32_t selector,
                                            std::span<const std::byte> request,
                                            std::span<std::byte> response,
                                            std::size_t& responseSize) {
    if (connection != theConnection || selector != systemControllerRecordSelector) return EINVAL;
    if (request.size() < SMCRecord::size || response.size() < SMCRecord::size) return EINVAL;
    SMCRecord record;
    std::copy_n(request.begin(), SMCRecord::size, record.bytes().begin());
    const SMCRecord::Command command = record.command();
    const std::uint32_t key = record.key();
    record.clear();
    record.setKey(key);
    switch (command) {
        case SMCRecord::Command::readKeyInfo:
            answerKeyInfo(*sensors_->list(), record);
            break;
        case SMCRecord::Command::readBytes:
            answerBytes(*sensors_, record);
            break;
        default:
            record.setResult(badCommand);
    }
    std::copy(record.bytes().begin(), record.bytes().end(), response.begin());
    responseSize = SMCRecord::size;
    return 0;
}

}  // namespace vantor
