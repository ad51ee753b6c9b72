#pragma once

#include <atomic>
#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "platform/darwin/smc_record.h"
#include "platform/darwin/system_controller.h"

namespace vantor {

/// A controller by script. Set the members before the calls that are to see them; the calls may
/// come from several threads at once.
class SimulatedSystemController : public SystemController {
  public:
    /// What a call for a key answers, when not its value.
    struct Fault {
        int error = 0;                      ///< of the call itself
        std::uint8_t result = 0;            ///< of the record
        std::optional<std::size_t> length;  ///< returned instead of the record's 80 bytes
    };
    struct Key {
        std::uint32_t type = 0;
        std::vector<std::byte> bytes;        ///< 32 at most
        std::optional<std::uint32_t> size;   ///< returned instead of the number of bytes
        Fault keyInfoFault, readBytesFault;  ///< of the commands
    };
    /// One call of callStructMethod that came through a connection of this controller's.
    struct Call {
        std::string key;
        SMCRecord::Command command{};
        std::uint32_t dataSize = 0;

        bool operator==(const Call&) const = default;
    };

    bool isPresent = false;
    bool openFails = false;
    std::map<std::string, Key, std::less<>> keys;

    /// Runs within every call to the controller, on its caller's thread, with nothing locked.
    std::function<void()> onCall;

    /// A value of the type "sp78" or "flt ".
    Key& setFixed(const std::string& key, double celsius);
    Key& setFloat(const std::string& key, float celsius);

    std::vector<Call> calls() const;
    void forgetCalls();
    int connectionsOpened() const { return connectionsOpened_; }
    int servicesOutstanding() const { return servicesOutstanding_; }
    int connectionsOutstanding() const { return connectionsOutstanding_; }
    /// Calls whose response was not all zeros, or whose request said more than key, size and
    /// command, or that came with another selector, size or connection than they should.
    int improperCalls() const { return improperCalls_; }

    Service matchingService() override;
    void release(Service service) override;
    Connection open(Service service) override;
    void close(Connection connection) override;
    int callStructMethod(Connection connection, std::uint32_t selector,
                         std::span<const std::byte> request, std::span<std::byte> response,
                         std::size_t& responseSize) override;

  private:
    void tell() const;
    bool isProper(Connection connection, std::uint32_t selector, std::span<const std::byte> request,
                  std::span<const std::byte> response) const;

    mutable std::mutex lock_;
    std::vector<Call> calls_;
    std::atomic<int> connectionsOpened_{0};
    std::atomic<int> servicesOutstanding_{0};
    std::atomic<int> connectionsOutstanding_{0};
    std::atomic<int> improperCalls_{0};
};

}  // namespace vantor
