#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace vantor {

/// Walks the bytes of a list of interfaces with their counters (interface_message.h).
/// Pure.
class InterfaceDump {
  public:
    struct Message {
        std::uint16_t index = 0;
        std::uint64_t received = 0;  ///< bytes
        std::uint64_t sent = 0;
    };
    enum class Step { message, end, malformed };

    explicit InterfaceDump(std::span<const std::byte> bytes) : rest_(bytes) {}

    /// Moves to the next interface, past the messages of other versions and types. After `end` or
    /// `malformed` there is nothing more.
    Step next(Message& message);

  private:
    std::span<const std::byte> rest_;
};

}  // namespace vantor
