#pragma once

#include <cstdint>
#include <mutex>
#include <optional>
#include <span>
#include <string_view>
#include <unordered_map>

#include "platform/darwin/smc_record.h"
#include "platform/darwin/system_controller.h"

namespace vantor {

/// Reads temperatures, in degrees Celsius, from the system management controller by keys of four
/// characters. Each call opens a connection of its own and closes it again.
///
/// Any thread, several at once. What a key's value looks like is asked once for each key and kept;
/// the lock of that cache is never held while the controller is asked.
class SMCTemperatureReader {
  public:
    using Keys = std::span<const std::string_view>;

    explicit SMCTemperatureReader(SystemController& controller) : controller_(controller) {}

    /// The largest plausible value of the keys; absent when none has one.
    std::optional<double> readHottest(Keys keys);

    /// The processor of a machine without Apple silicon: its die, else its hottest core, else what
    /// is near it.
    std::optional<double> readIntelCPU();

  private:
    struct KeyInfo {
        std::int32_t dataSize = 0;  ///< bytes, 1 to 32
        std::uint32_t dataType = 0;
    };
    struct KeyInfoCache {
        std::mutex lock;
        std::unordered_map<std::uint32_t, KeyInfo> values;
    };
    /// The one request and the one response of a connection.
    struct Workspace {
        SMCRecord request;
        SMCRecord response;
    };
    class Connection;

    std::optional<double> readFirst(Keys keys, const Connection& connection, Workspace& workspace);
    std::optional<double> readLargest(Keys keys, const Connection& connection,
                                      Workspace& workspace);
    std::optional<double> readTemperature(std::string_view key, const Connection& connection,
                                          Workspace& workspace);
    std::optional<KeyInfo> keyInfo(std::uint32_t code, const Connection& connection,
                                   Workspace& workspace);

    SystemController& controller_;
    KeyInfoCache keyInfoCache_;
};

}  // namespace vantor
