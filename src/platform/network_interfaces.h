#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/reusable_list.h"

namespace vantor {

/// The interfaces of the machine with their counters and addresses, all of one moment. One thread
/// at a time.
///
/// Linux: rtnetlink's dumps of links and addresses, and of counters while it tells of no change.
/// macOS: see platform/darwin/interface_calls.h.
class NetworkInterfaces {
  public:
    /// Bytes.
    struct Counters {
        std::uint64_t received = 0;
        std::uint64_t sent = 0;

        bool operator==(const Counters&) const = default;
    };
    /// Bytes, of a system that counts no further than 32 bits somewhere.
    struct ShortCounters {
        std::uint32_t received = 0;
        std::uint32_t sent = 0;

        bool operator==(const ShortCounters&) const = default;
    };
    struct Address {
        bool isIPv6 = false;
        std::string text;  ///< as numbers; a scope follows behind a "%" ("fe80::1%eth0")

        bool operator==(const Address&) const = default;
    };
    /// One interface. A system may tell of one in several records, then what comes last counts.
    struct Record {
        std::string name;         ///< any bytes; never empty
        std::uint32_t index = 0;  ///< which interface it is, whatever it is called; 0 = not known
        bool isUp = false;
        bool isRunning = false;
        bool isLoopback = false;
        bool isPointToPoint = false;
        std::optional<Counters> counters;
        std::optional<ShortCounters> shortCounters;
        ReusableList<Address> addresses;  ///< in the system's order

        /// Makes it that of another interface, which has nothing but a name. Storage is kept.
        void reset(std::string_view newName) {
            name = newName;
            index = 0;
            isUp = isRunning = isLoopback = isPointToPoint = false;
            counters.reset();
            shortCounters.reset();
            addresses.clear();
        }
    };
    using List = ReusableList<Record>;

    virtual ~NetworkInterfaces() = default;

    /// Replaces the content of `list`; false, with any content, when the interfaces cannot be had
    /// or there are none. Allocates nothing while they stay the same.
    virtual bool read(List& list) = 0;
};

}  // namespace vantor
