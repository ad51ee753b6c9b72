#include "platform/darwin/smc_temperature_reader.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "platform/darwin/smc_value.h"

namespace vantor {

namespace {

constexpr std::uint32_t smcTemperatureRecordSelector = 2;

constexpr std::array<std::string_view, 4> intelDieKeys{"TC0D", "TC0E", "TCXC", "TC0F"};
constexpr std::array<std::string_view, 10> intelCoreKeys{"TC0C", "TC1C", "TC2C", "TC3C", "TC4C",
                                                         "TC5C", "TC6C", "TC7C", "TC8C", "TC9C"};
constexpr std::array<std::string_view, 2> intelProximityKeys{"TC0P", "TC1P"};

}  // namespace

class SMCTemperatureReader::Connection {
  public:
    explicit Connection(SystemController& controller)
        : controller_(controller),
          service_(controller.matchingService()),
          connection_(service_ != 0 ? controller.open(service_) : 0) {}
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection() {
        if (connection_ != 0) controller_.close(connection_);
        if (service_ != 0) controller_.release(service_);
    }

    explicit operator bool() const { return connection_ != 0; }

    /// Sends the request; the size of the response, or absent when it failed.
    std::optional<std::size_t> call(Workspace& workspace) const {
        workspace.response.clear();
        std::size_t size = SMCRecord::size;
        const int error = controller_.callStructMethod(connection_, smcTemperatureRecordSelector,
                                                       workspace.request.bytes(),
                                                       workspace.response.bytes(), size);
        if (error != 0 || size < SMCRecord::valueOffset || size > SMCRecord::size) {
            return std::nullopt;
        }
        if (workspace.response.result() != 0) return std::nullopt;
        return size;
    }

  private:
    SystemController& controller_;
    SystemController::Service service_;
    SystemController::Connection connection_;
};

std::optional<double> SMCTemperatureReader::readHottest(Keys keys) {
    if (keys.empty()) return std::nullopt;
    const Connection connection(controller_);
    if (!connection) return std::nullopt;
    Workspace workspace;
    return readLargest(keys, connection, workspace);
}

std::optional<double> SMCTemperatureReader::readIntelCPU() {
    const Connection connection(controller_);
    if (!connection) return std::nullopt;
    Workspace workspace;
    if (const auto die = readFirst(intelDieKeys, connection, workspace)) return die;
    if (const auto core = readLargest(intelCoreKeys, connection, workspace)) return core;
    return readFirst(intelProximityKeys, connection, workspace);
}

std::optional<double> SMCTemperatureReader::readFirst(Keys keys, const Connection& connection,
                                                      Workspace& workspace) {
    for (const std::string_view key : keys) {
        if (const auto value = readTemperature(key, connection, workspace)) return value;
    }
    return std::nullopt;
}

std::optional<double> SMCTemperatureReader::readLargest(Keys keys, const Connection& connection,
                                                        Workspace& workspace) {
    std::optional<double> largest;
    for (const std::string_view key : keys) {
        if (const auto value = readTemperature(key, connection, workspace)) {
            largest = std::max(largest.value_or(*value), *value);
        }
    }
    return largest;
}

std::optional<double> SMCTemperatureReader::readTemperature(std::string_view key,
                                                            const Connection& connection,
                                                            Workspace& workspace) {
    const auto code = fourCC(key);
    if (!code) return std::nullopt;
    workspace.request.setKey(*code);
    const auto info = keyInfo(*code, connection, workspace);
    if (!info) return std::nullopt;
    const auto valueSize = static_cast<std::size_t>(info->dataSize);
    workspace.request.setDataSize(static_cast<std::uint32_t>(info->dataSize));
    workspace.request.setCommand(SMCRecord::Command::readBytes);
    const auto size = connection.call(workspace);
    if (!size || *size < SMCRecord::valueOffset + valueSize) return std::nullopt;
    return smcTemperature(info->dataType, workspace.response.value().first(valueSize));
}

std::optional<SMCTemperatureReader::KeyInfo> SMCTemperatureReader::keyInfo(
    std::uint32_t code, const Connection& connection, Workspace& workspace) {
    {
        const std::lock_guard guard(keyInfoCache_.lock);
        const auto known = keyInfoCache_.values.find(code);
        if (known != keyInfoCache_.values.end()) return known->second;
    }
    workspace.request.setDataSize(0);
    workspace.request.setCommand(SMCRecord::Command::readKeyInfo);
    if (!connection.call(workspace)) return std::nullopt;
    const std::uint32_t size = workspace.response.dataSize();
    if (size == 0 || size > SMCRecord::valueSize) return std::nullopt;
    const KeyInfo info{static_cast<std::int32_t>(size), workspace.response.dataType()};
    const std::lock_guard guard(keyInfoCache_.lock);
    keyInfoCache_.values.insert_or_assign(code, info);
    return info;
}

}  // namespace vantor
