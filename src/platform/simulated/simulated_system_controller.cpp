#include "platform/simulated/simulated_system_controller.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace vantor {

namespace {

constexpr std::uint32_t simulatedSystemControllerRecordSelector = 2;
constexpr SystemController::Service simulatedSystemControllerTheService = 71;
constexpr SystemController::Connection firstConnection = 5000;
constexpr int failedCall = -536870212;
constexpr std::uint8_t simulatedSystemControllerNoSuchKey = 0x84;

std::string textOf(std::uint32_t code) {
    std::string text(4, '\0');
    for (std::size_t i = 4; i-- > 0; code >>= 8)
        text[i] = static_cast<char>(code & 0xFF);
    return text;
}

}  // namespace

SimulatedSystemController::Key& SimulatedSystemController::setFixed(const std::string& key,
                                                                    double celsius) {
    const auto number =
        static_cast<std::uint16_t>(static_cast<std::int16_t>(std::lround(celsius * 256)));
    Key& entry = keys[key];
    entry.type = *fourCC("sp78");
    entry.bytes = {static_cast<std::byte>(number >> 8), static_cast<std::byte>(number & 0xFF)};
    return entry;
}

SimulatedSystemController::Key& SimulatedSystemController::setFloat(const std::string& key,
                                                                    float celsius) {
    Key& entry = keys[key];
    entry.type = *fourCC("flt ");
    entry.bytes.resize(sizeof celsius);
    std::memcpy(entry.bytes.data(), &celsius, sizeof celsius);
    return entry;
}

std::vector<SimulatedSystemController::Call> SimulatedSystemController::calls() const {
    const std::lock_guard guard(lock_);
    return calls_;
}

void SimulatedSystemController::forgetCalls() {
    const std::lock_guard guard(lock_);
    calls_.clear();
}

void SimulatedSystemController::tell() const {
    if (onCall) onCall();
}

SystemController::Service SimulatedSystemController::matchingService() {
    tell();
    if (!isPresent) return 0;
    ++servicesOutstanding_;
    return simulatedSystemControllerTheService;
}

void SimulatedSystemController::release(Service service) {
    tell();
    if (service != simulatedSystemControllerTheService) ++improperCalls_;
    --servicesOutstanding_;
}

SystemController::Connection SimulatedSystemController::open(Service service) {
    tell();
    if (service != simulatedSystemControllerTheService) ++improperCalls_;
    if (openFails) return 0;
    ++connectionsOutstanding_;
    return firstConnection + static_cast<Connection>(connectionsOpened_++);
}

void SimulatedSystemController::close(Connection connection) {
    tell();
    if (connection < firstConnection) ++improperCalls_;
    --connectionsOutstanding_;
}

bool SimulatedSystemController::isProper(Connection connection, std::uint32_t selector,
                                         std::span<const std::byte> request,
                                         std::span<const std::byte> response) const {
    if (connection < firstConnection || selector != simulatedSystemControllerRecordSelector)
        return false;
    if (request.size() != SMCRecord::size || response.size() != SMCRecord::size) return false;
    SMCRecord record;
    std::copy(request.begin(), request.end(), record.bytes().begin());
    record.setKey(0);
    record.setDataSize(0);
    record.setCommand({});
    const auto isZero = [](std::byte byte) { return byte == std::byte{0}; };
    return std::all_of(record.bytes().begin(), record.bytes().end(), isZero) &&
           std::all_of(response.begin(), response.end(), isZero);
}

int SimulatedSystemController::callStructMethod(Connection connection, std::uint32_t selector,
                                                std::span<const std::byte> request,
                                                std::span<std::byte> response,
                                                std::size_t& responseSize) {
    tell();
    if (!isProper(connection, selector, request, response)) {
        ++improperCalls_;
        return failedCall;
    }
    SMCRecord record;
    std::copy(request.begin(), request.end(), record.bytes().begin());
    const std::string name = textOf(record.key());
    const bool isKeyInfo = record.command() == SMCRecord::Command::readKeyInfo;
    {
        const std::lock_guard guard(lock_);
        calls_.push_back({name, record.command(), record.dataSize()});
    }
    const auto found = keys.find(name);
    if (found == keys.end()) {
        record.setResult(simulatedSystemControllerNoSuchKey);
    } else {
        const Key& key = found->second;
        const Fault& fault = isKeyInfo ? key.keyInfoFault : key.readBytesFault;
        if (fault.error != 0) return fault.error;
        record.setResult(fault.result);
        if (isKeyInfo) {
            record.setDataSize(key.size.value_or(static_cast<std::uint32_t>(key.bytes.size())));
            record.setDataType(key.type);
        } else {
            std::copy(key.bytes.begin(), key.bytes.end(), record.value().begin());
        }
        responseSize = fault.length.value_or(SMCRecord::size);
    }
    std::copy(record.bytes().begin(), record.bytes().end(), response.begin());
    return 0;
}

}  // namespace vantor
