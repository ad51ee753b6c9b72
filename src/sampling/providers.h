#pragma once

#include <memory>
#include <string_view>
#include <tuple>

#include "platform/machine.h"
#include "probes/cpu_reader.h"
#include "probes/gpu_reader.h"
#include "probes/memory_reader.h"
#include "probes/network_reader.h"
#include "probes/power_reader.h"
#include "probes/process_reader.h"
#include "probes/storage_reader.h"
#include "probes/system_info_reader.h"
#include "sampling/pending_update.h"

/// The table of providers. Each entry has what the sampler and the monitor need: the queue's label,
/// the reader, which is made of the machine, how it is read and reset, how often and from which
/// stage on, and the section that its results are of. An incomplete entry does not compile.
///
/// `minInterval`: seconds between two readings where the refresh interval is shorter. `stage`: 0
/// for one that is read with the first tick; the others are staged in after it, in the order of
/// these numbers, and then join the ticks.
namespace vantor {

/// What a reading depends on beside the machine.
struct ReadingOptions {
    bool includePointToPointInterfaces = false;
};

struct CPUProvider {
    static constexpr std::string_view label = "com.kestrone.Vantor.provider.cpu";
    static constexpr double minInterval = 0;
    static constexpr int stage = 0;
    static constexpr auto section = &PendingUpdate::cpu;
    using Reader = CPUReader;

    static const CPUStats* read(Reader& reader, Machine&, const ReadingOptions&) {
        return reader.read();
    }
    static void resetDeltas(Reader& reader) { reader.resetDeltas(); }
};

struct MemoryProvider {
    static constexpr std::string_view label = "com.kestrone.Vantor.provider.memory";
    static constexpr double minInterval = 0;
    static constexpr int stage = 0;
    static constexpr auto section = &PendingUpdate::memory;
    using Reader = MemoryReader;

    static auto read(Reader& reader, Machine&, const ReadingOptions&) { return reader.read(); }
};

struct NetworkProvider {
    static constexpr std::string_view label = "com.kestrone.Vantor.provider.network";
    static constexpr double minInterval = 0;
    static constexpr int stage = 0;
    static constexpr auto section = &PendingUpdate::network;
    using Reader = NetworkReader;

    static const NetworkStats* read(Reader& reader, Machine& machine,
                                    const ReadingOptions& options) {
        // Not the instant of the gate: rates are measured from reading to reading.
        return reader.read(options.includePointToPointInterfaces,
                           machine.processInfo().systemUptime());
    }
    static void resetDeltas(Reader& reader) { reader.resetDeltas(); }
};

struct SystemInfoProvider {
    static constexpr std::string_view label = "com.kestrone.Vantor.provider.system";
    static constexpr double minInterval = 5;
    static constexpr int stage = 0;
    static constexpr auto section = &PendingUpdate::system;
    using Reader = SystemInfoReader;

    static const SystemInfoStats& read(Reader& reader, Machine&, const ReadingOptions&) {
        return reader.read();
    }
};

struct ProcessProvider {
    static constexpr std::string_view label = "com.kestrone.Vantor.provider.processes";
    static constexpr double minInterval = 0;
    static constexpr int stage = 1;
    static constexpr auto section = &PendingUpdate::processSample;
    using Reader = ProcessReader;

    static auto read(Reader& reader, Machine&, const ReadingOptions&) { return reader.read(); }
    static void resetDeltas(Reader& reader) { reader.resetDeltas(); }
};

struct GPUProvider {
    static constexpr std::string_view label = "com.kestrone.Vantor.provider.gpu";
    static constexpr double minInterval = 0;
    static constexpr int stage = 2;
    static constexpr auto section = &PendingUpdate::gpus;
    using Reader = GPUReader;

    static auto read(Reader& reader, Machine&, const ReadingOptions&) { return reader.read(); }
};

struct VolumeProvider {
    static constexpr std::string_view label = "com.kestrone.Vantor.provider.storage";
    static constexpr double minInterval = 15;
    static constexpr int stage = 4;
    static constexpr auto section = &PendingUpdate::volumes;
    using Reader = StorageReader;

    static auto read(Reader& reader, Machine&, const ReadingOptions&) { return reader.read(); }
};

struct PowerProvider {
    static constexpr std::string_view label = "com.kestrone.Vantor.provider.power";
    static constexpr double minInterval = 10;
    static constexpr int stage = 3;
    static constexpr auto section = &PendingUpdate::power;
    using Reader = PowerReader;

    static auto read(Reader& reader, Machine&, const ReadingOptions&) { return reader.read(); }
};

/// All of them, in the order in which their queues are made and they are asked.
using AllProviders = std::tuple<CPUProvider, MemoryProvider, NetworkProvider, SystemInfoProvider,
                                ProcessProvider, GPUProvider, VolumeProvider, PowerProvider>;

/// Calls `visit` with a value of each provider's type, in that order.
template <class Visit>
constexpr void forEachProvider(Visit&& visit) {
    std::apply([&](auto... provider) { (visit(provider), ...); }, AllProviders{});
}

/// Whether a provider's readings are differences that can be started over.
template <class Provider>
concept HasDeltas = requires(typename Provider::Reader& reader) {
    Provider::resetDeltas(reader);
};

}  // namespace vantor
