#include <algorithm>
#include <chrono>
#include <cstdio>
#include <memory>
#include <vector>

#include "platform/native_machine.h"
#include "probes/network_reader.h"
#include "sampling/counted_allocations.h"

#include "network_baseline.h"
#include "verdict.h"

/// Compares a network reading with merely fetching what it is made of, both in this process and in
/// turns, so that the machine's moods touch them alike. Exits with 1 when the reading costs too
/// much.
namespace vantor::bench {
namespace {

constexpr int wholeRounds = 200;
constexpr int passesPerRound = 25;
constexpr int passesPerLookup = 5;  // of the primary interface, at a reading each second
constexpr double ratioLimit = 1.5;

volatile std::size_t sink = 0;  // keeps results from being optimised away

struct Row {
    const char* name;
    std::vector<double> microseconds;  // per pass, one of each round
    std::size_t allocations = 0;

    explicit Row(const char* n) : name(n) { microseconds.reserve(wholeRounds); }

    template <class Pass>
    void run(Pass pass) {
        using Clock = std::chrono::steady_clock;
        const std::size_t before = countedAllocations();
        const auto start = Clock::now();
        for (int i = 0; i < passesPerRound; ++i)
            pass(i);
        const std::chrono::duration<double, std::micro> spent = Clock::now() - start;
        allocations += countedAllocations() - before;
        microseconds.push_back(spent.count() / passesPerRound);
    }

    void forget() {
        microseconds.clear();
        allocations = 0;
    }

    double median() {
        const auto middle =
            microseconds.begin() + static_cast<std::ptrdiff_t>(microseconds.size() / 2);
        std::nth_element(microseconds.begin(), middle, microseconds.end());
        return *middle;
    }
};

bool report(Row& row, double baseline, bool isLimited) {
    const double median = row.median();
    const double perPass = static_cast<double>(row.allocations) /
                           (static_cast<double>(row.microseconds.size()) * passesPerRound);
    const bool passes = !isLimited || (median <= ratioLimit * baseline && row.allocations == 0);
    std::printf("%-28s %9.2f %10.2f %10.2f", row.name, median, median / baseline, perPass);
    if (isLimited) {
        std::printf(" %8.1f  %s\n", ratioLimit, passes ? "ok" : "TOO MUCH");
    } else {
        std::printf(" %8s  %s\n", "-", "-");
    }
    return passes;
}

int compare(Form form) {
    const int rounds = form.of(wholeRounds);
    NetworkBaseline baseline;
    NetworkReader reader(makeNativeMachine());
    double uptime = 0;
    int readings = 0;
    Row bare("netlink dumps and routes");
    Row reading("NetworkReader::read");
    const auto round = [&] {
        bare.run([&](int i) {
            sink = baseline.pass();
            if (i % passesPerLookup == 0) sink = baseline.readRoutes();
        });
        reading.run([&](int) {
            uptime += 1;
            readings += reader.read(true, uptime) != nullptr ? 1 : 0;
        });
    };
    for (int i = 0; i < 5; ++i)
        round();
    for (Row* row : {&bare, &reading})
        row->forget();
    readings = 0;
    for (int i = 0; i < rounds; ++i)
        round();
    if (readings != rounds * passesPerRound) {
        std::fprintf(stderr, "some readings gave no record: these times mean nothing\n");
        return 2;
    }

    const double a = bare.median();
    std::printf("%-28s %9s %10s %10s %8s  %s\n", "pass", "us", "/bare", "allocs", "limit",
                "verdict");
    report(bare, a, false);
    const bool passes = report(reading, a, true);
    tellResult(reading.name, reading.median() / a, ratioLimit, passes);
    return form.status(passes);
}

}  // namespace
}  // namespace vantor::bench

int main(int argc, char** argv) {
    return vantor::bench::compare(vantor::bench::Form(argc, argv));
}
