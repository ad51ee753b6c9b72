#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "platform/darwin/interface_calls.h"
#include "platform/name_map.h"

namespace vantor {

/// One interface's 64-bit counters, in bytes.
struct InterfaceCounters {
    std::uint64_t received = 0;
    std::uint64_t sent = 0;
    std::uint16_t index = 0;  ///< which interface it is, whatever it is called
};

/// Fetches the list of interfaces with their 64-bit counters. One thread at a time.
///
/// Its buffer is kept. It grows with the list, and shrinks only when it was far too large many
/// times in a row, so that one large list does not hold on to memory for ever.
class InterfaceDumpReader {
  public:
    using Counters = NameMap<InterfaceCounters>;

    /// Replaces the counters; false when the list cannot be had, is malformed, or holds an
    /// interface that has no name (any more). The counters then mean nothing.
    bool read64BitInterfaceCounters(InterfaceCalls& interfaces);

    const Counters& counters() const { return interfaceCounterBuffer_; }

  private:
    bool readAndParse(InterfaceCalls& interfaces);
    std::optional<std::size_t> fetch(InterfaceCalls& interfaces);
    bool parse64BitInterfaceCounters(InterfaceCalls& interfaces, std::span<const std::byte> bytes);
    void trimRouteBufferIfPersistentlyOversized(std::size_t validLength);

    std::vector<std::byte> routeBuffer_;
    int routeBufferOversizeSuccesses_ = 0;
    std::array<char, 16> interfaceNameBuffer_{};
    Counters interfaceCounterBuffer_;
};

}  // namespace vantor
