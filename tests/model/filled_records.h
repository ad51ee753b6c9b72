#pragma once

#include "model/process_sample.h"
#include "model/system_snapshot.h"

/// One record of each kind with every field set, no two alike and none at its default, so that a
/// field that is forgotten or taken for another shows.
namespace vantor::filled {

inline CPUStats cpu() {
    return {"Processor 9",   0.5,           0.375, 0.125, 0.25, {0.75, 0.0625}, 8, 4,
            {1.5, 2.5, 3.5}, 2'600'000'000, 61.5};
}

inline MemoryStats memory() {
    return {700, 600, 300, 200, 101, 50, 99};
}

inline NetworkInterfaceStats interface() {
    return {"en0", "192.0.2.7", "2001:db8::7", 11, 12, 13.5, 14.5, true};
}

inline NetworkStats network() {
    return {"host.example", "en1", "192.0.2.8", "2001:db8::8", 21.5, 22.5, {interface()}};
}

inline GPUStats gpu() {
    return {"gpu:1", "Graphics 1", true, 0.3125, 55.5, 31, 32, 33};
}

inline VolumeStats volume() {
    return {"Data", "/data", 41, 42, true, true, true};
}

inline ProcessStats process() {
    return {4242, "worker", "/usr/bin/worker", 137.5, 51};
}

inline ProcessSample processSample() {
    ProcessStats other = process();
    other.pid = 4243;
    ProcessStats third = process();
    third.pid = 4244;
    return {{process(), other, third}, {other}, {third, process()}};
}

inline SystemInfoStats system() {
    return {"host", "Model 3", "System 1.2.3", "kernel 4", "arm64", true, 61.25, "Serious", true};
}

inline PowerStats power() {
    return {"Battery 0", 0.875, true, true, 71, 72};
}

inline SystemSnapshot snapshot() {
    using namespace std::chrono;
    return {sys_days{year{2026} / 11 / 14} + hours{17} + minutes{53} + seconds{42},
            cpu(),
            memory(),
            network(),
            {gpu()},
            {volume()},
            {process()},
            system(),
            power()};
}

}  // namespace vantor::filled
