#pragma once

#include <algorithm>
#include <string_view>
#include <tuple>
#include <vector>

#include "model/process_sample.h"
#include "platform/machine.h"
#include "probes/cpu_reader.h"
#include "probes/gpu_reader.h"
#include "probes/memory_reader.h"
#include "probes/network_reader.h"
#include "probes/power_reader.h"
#include "probes/process_reader.h"
#include "probes/storage_reader.h"
#include "probes/system_info_reader.h"
#include "sampling/dashboard_state.h"

/// The table of providers. Each entry has what the sampler, the monitor and the commit need: the
/// queue's label, the reader, which is made of the machine, how it is read and reset, how often and
/// from which stage on, and what its result changes. An incomplete entry does not compile.
///
/// `minInterval`: seconds between two readings where the refresh interval is shorter. `stage`: 0
/// for one that is read with the first tick; the others are staged in after it, in the order of
/// these numbers, and then join the ticks.
///
/// `Section`: what a result changes of the state, and `revision`: the counter of those who draw it.
/// `record`: the section is that part of the snapshot and takes its place, where it differs;
/// without it, commit.cpp has a function for that type of section. `series` and `times`: what a
/// chart draws of each result, changed or not.
namespace vantor {

/// A history, and what of a record goes into it.
template <class Value>
struct Series {
    std::vector<double> Histories::*history;
    Value value;
};
// Clang deduces nothing for such types before its version 17.
template <class Value>
Series(std::vector<double> Histories::*, Value) -> Series<Value>;

/// What a reading depends on beside the machine.
struct ReadingOptions {
    bool includePointToPointInterfaces = false;
};

struct CPUProvider {
    static constexpr std::string_view label = "com.kestrone.Vantor.provider.cpu";
    static constexpr double minInterval = 0;
    static constexpr int stage = 0;
    using Section = CPUStats;
    static constexpr auto record = &SystemSnapshot::cpu;
    static constexpr auto revision = &Revisions::cpu;
    static constexpr auto series = std::tuple{Series{&Histories::cpu, &CPUStats::totalUsage}};
    static constexpr auto times = &HistoryTimes::cpu;
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
    using Section = MemoryStats;
    static constexpr auto record = &SystemSnapshot::memory;
    static constexpr auto revision = &Revisions::memory;
    static double usedFraction(const MemoryStats& memory) {
        if (memory.totalBytes == 0) return 0;
        return std::clamp(
            static_cast<double>(memory.usedBytes) / static_cast<double>(memory.totalBytes), 0.0,
            1.0);
    }
    static constexpr auto series = std::tuple{Series{&Histories::memory, &usedFraction}};
    static constexpr auto times = &HistoryTimes::memory;
    using Reader = MemoryReader;

    static auto read(Reader& reader, Machine&, const ReadingOptions&) { return reader.read(); }
};

struct NetworkProvider {
    static constexpr std::string_view label = "com.kestrone.Vantor.provider.network";
    static constexpr double minInterval = 0;
    static constexpr int stage = 0;
    using Section = NetworkStats;
    static constexpr auto record = &SystemSnapshot::network;
    static constexpr auto revision = &Revisions::network;
    static constexpr auto series =
        std::tuple{Series{&Histories::download, &NetworkStats::downloadBytesPerSecond},
                   Series{&Histories::upload, &NetworkStats::uploadBytesPerSecond}};
    static constexpr auto times = &HistoryTimes::network;
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
    using Section = SystemInfoStats;
    static constexpr auto record = &SystemSnapshot::system;
    static constexpr auto revision = &Revisions::system;
    using Reader = SystemInfoReader;

    static const SystemInfoStats& read(Reader& reader, Machine&, const ReadingOptions&) {
        return reader.read();
    }
};

struct ProcessProvider {
    static constexpr std::string_view label = "com.kestrone.Vantor.provider.processes";
    static constexpr double minInterval = 0;
    static constexpr int stage = 1;
    using Section = ProcessSample;
    static constexpr auto revision = &Revisions::processes;
    using Reader = ProcessReader;

    static auto read(Reader& reader, Machine&, const ReadingOptions&) { return reader.read(); }
    static void resetDeltas(Reader& reader) { reader.resetDeltas(); }
};

struct GPUProvider {
    static constexpr std::string_view label = "com.kestrone.Vantor.provider.gpu";
    static constexpr double minInterval = 0;
    static constexpr int stage = 2;
    using Section = std::vector<GPUStats>;
    static constexpr auto revision = &Revisions::gpu;
    using Reader = GPUReader;

    static auto read(Reader& reader, Machine&, const ReadingOptions&) { return reader.read(); }
};

struct VolumeProvider {
    static constexpr std::string_view label = "com.kestrone.Vantor.provider.storage";
    static constexpr double minInterval = 15;
    static constexpr int stage = 4;
    using Section = std::vector<VolumeStats>;
    static constexpr auto revision = &Revisions::storage;
    using Reader = StorageReader;

    static auto read(Reader& reader, Machine&, const ReadingOptions&) { return reader.read(); }
};

struct PowerProvider {
    static constexpr std::string_view label = "com.kestrone.Vantor.provider.power";
    static constexpr double minInterval = 10;
    static constexpr int stage = 3;
    using Section = std::optional<PowerStats>;
    static constexpr auto record = &SystemSnapshot::power;
    static constexpr auto revision = &Revisions::system;
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

/// Whether a section is one part of the snapshot, and whether a chart draws it.
template <class Provider>
concept HasRecord = requires {
    Provider::record;
};
template <class Provider>
concept HasSeries = HasRecord<Provider> && requires {
    Provider::series;
    Provider::times;
};

}  // namespace vantor
