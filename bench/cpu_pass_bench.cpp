#include <benchmark/benchmark.h>

#include <memory>
#include <semaphore>

#include "platform/threads/threaded_serial_queue.h"
#include "probes/cpu_reader.h"
#include "sampling/counted_allocations.h"
#include "sampling/system_sampler.h"

#include "stat_baseline.h"
#include "ticking_machine.h"

/// One processor reading on the live machine, from the bare system calls up to the whole pipeline.
namespace vantor::bench {
namespace {

constexpr int warmUp = 50;

template <class Pass>
void measure(benchmark::State& state, Pass pass) {
    for (int i = 0; i < warmUp; ++i)
        pass();
    const std::size_t before = countedAllocations();
    for (auto _ : state)
        pass();
    state.counters["allocations"] = benchmark::Counter(
        static_cast<double>(countedAllocations() - before), benchmark::Counter::kAvgIterations);
}

void statKeptOpen(benchmark::State& state) {
    StatBaseline baseline;
    measure(state, [&] { benchmark::DoNotOptimize(baseline.keepOpen()); });
}
BENCHMARK(statKeptOpen)->Unit(benchmark::kMicrosecond);

void statOpenReadClose(benchmark::State& state) {
    StatBaseline baseline;
    measure(state, [&] { benchmark::DoNotOptimize(baseline.openReadClose()); });
}
BENCHMARK(statOpenReadClose)->Unit(benchmark::kMicrosecond);

void cpuReaderRead(benchmark::State& state) {
    CPUReader reader(makeTickingMachine());
    measure(state, [&] { benchmark::DoNotOptimize(reader.read()); });
}
BENCHMARK(cpuReaderRead)->Unit(benchmark::kMicrosecond);

void gateToCompletion(benchmark::State& state) {
    ThreadedSerialQueueFactory queues;
    const auto sampler = SystemSampler::make(makeTickingMachine(), queues);
    std::binary_semaphore answered{0};
    measure(state, [&] {
        sampler->requestCPU(0.5, true, [&answered](const CPUStats*) { answered.release(); });
        answered.acquire();
    });
}
BENCHMARK(gateToCompletion)->Unit(benchmark::kMicrosecond)->UseRealTime();

}  // namespace
}  // namespace vantor::bench
