#pragma once

#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "model/network_stats.h"
#include "platform/machine.h"
#include "platform/name_map.h"
#include "probes/interface_accumulators.h"
#include "probes/interface_order.h"

namespace vantor {

/// Turns the interfaces' byte counters and addresses into rates and rows.
///
/// One thread at a time: the sampler calls it on the network provider's queue only. All that it
/// works with and the record it hands out are kept and reused, so that a read in the steady state
/// allocates nothing.
class NetworkReader {
  public:
    explicit NetworkReader(std::shared_ptr<Machine> machine);

    /// One sample; `uptime` is the monotonic uptime in seconds. Null when there is none this time:
    /// on the first read after creation or reset, when the platform does not answer, and when the
    /// primary interface's rates could not be measured. The record stays the reader's own and holds
    /// until the next read.
    const NetworkStats* read(bool includePointToPointInterfaces, double uptime);

    /// Forgets the counters seen so far: the next read measures no rate.
    void resetDeltas() { previousSamples_.clear(); }

  private:
    /// What the next read compares with.
    struct CounterSample {
        std::uint64_t received = 0;
        std::uint64_t sent = 0;
        double uptime = 0;
        bool uses64BitCounters = false;
        std::uint32_t index = 0;
    };
    struct Deltas {
        std::uint64_t received = 0;
        std::uint64_t sent = 0;
        double elapsed = 0;  ///< seconds; 0 = no rate
        bool isMeasured = false;
    };

    static Deltas deltas(const CounterSample& previous, const InterfaceAccumulator& now,
                         double uptime);
    Deltas replaceBaseline(std::string_view name, const InterfaceAccumulator& now, double uptime);
    void makeRows(bool includePointToPointInterfaces, double uptime);
    const std::string* primaryInterfaceName(double uptime);
    const NetworkInterfaceStats* primaryRow(const std::string* name) const;
    const std::string& hostName(double uptime);

    static constexpr double never = -std::numeric_limits<double>::max();

    std::shared_ptr<Machine> machine_;
    NameMap<CounterSample> previousSamples_;
    std::optional<std::string> cachedHostname_;
    double lastHostnameLookupUptime_ = never;
    std::optional<std::string> cachedPrimaryInterfaceName_;
    double lastPrimaryInterfaceLookupUptime_ = never;
    NetworkInterfaces::List interfaces_;
    InterfaceAccumulators accumulators_;
    InterfaceOrder order_;
    NameMap<std::monostate> measuredRateInterfaceBuffer_;
    NetworkStats stats_;
};

}  // namespace vantor
