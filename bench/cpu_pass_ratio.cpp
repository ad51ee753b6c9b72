#include <algorithm>
#include <chrono>
#include <cstdio>
#include <memory>
#include <vector>

#include "probes/cpu_reader.h"
#include "sampling/counted_allocations.h"

#include "stat_baseline.h"
#include "ticking_machine.h"
#include "verdict.h"

/// Compares a processor reading with merely reading /proc/stat, both in this process and in turns,
/// so that the machine's moods touch them alike. Exits with 1 when the reading costs too much.
namespace vantor::bench {
namespace {

constexpr int wholeRounds = 400;
constexpr int passesPerRound = 25;
constexpr double ratioLimit = 2.0;

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
            pass();
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

bool report(Row& row, double keptOpen, double opened, bool isLimited) {
    const double median = row.median();
    const double perPass = static_cast<double>(row.allocations) /
                           (static_cast<double>(row.microseconds.size()) * passesPerRound);
    const bool passes = !isLimited || (median <= ratioLimit * keptOpen && row.allocations == 0);
    std::printf("%-28s %9.2f %10.2f %10.2f %10.2f", row.name, median, median / keptOpen,
                median / opened, perPass);
    if (isLimited) {
        std::printf(" %8.1f  %s\n", ratioLimit, passes ? "ok" : "TOO MUCH");
    } else {
        std::printf(" %8s  %s\n", "-", "-");
    }
    return passes;
}

int compare(Form form) {
    const int rounds = form.of(wholeRounds);
    StatBaseline baseline;
    CPUReader reader(makeTickingMachine());
    int readings = 0;
    Row keptOpen("stat, kept open");
    Row opened("stat, open-read-close");
    Row reading("CPUReader::read");
    const auto round = [&] {
        keptOpen.run([&] { sink = baseline.keepOpen(); });
        opened.run([&] { sink = baseline.openReadClose(); });
        reading.run([&] { readings += reader.read() != nullptr ? 1 : 0; });
    };
    for (int i = 0; i < 5; ++i)
        round();
    for (Row* row : {&keptOpen, &opened, &reading})
        row->forget();
    readings = 0;
    for (int i = 0; i < rounds; ++i)
        round();
    if (readings != rounds * passesPerRound) {
        std::fprintf(stderr, "some readings gave no record: these times mean nothing\n");
        return 2;
    }

    const double a = keptOpen.median();
    const double b = opened.median();
    std::printf("%-28s %9s %10s %10s %10s %8s  %s\n", "pass", "us", "/kept open", "/opened",
                "allocs", "limit", "verdict");
    report(keptOpen, a, b, false);
    report(opened, a, b, false);
    const bool passes = report(reading, a, b, true);
    tellResult(reading.name, reading.median() / a, ratioLimit, passes);
    return form.status(passes);
}

}  // namespace
}  // namespace vantor::bench

int main(int argc, char** argv) {
    return vantor::bench::compare(vantor::bench::Form(argc, argv));
}
