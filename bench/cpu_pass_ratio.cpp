#include <cstddef>
#include <cstdio>

#include "probes/cpu_reader.h"

#include "pass_row.h"
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

int compare(Form form) {
    const int rounds = form.of(wholeRounds);
    StatBaseline baseline;
    CPUReader reader(makeTickingMachine());
    int readings = 0;
    PassRow keptOpen("stat, kept open", passesPerRound);
    PassRow opened("stat, open-read-close", passesPerRound);
    PassRow reading("CPUReader::read", passesPerRound);
    const auto round = [&] {
        keptOpen.run([&] { sink = baseline.keepOpen(); });
        opened.run([&] { sink = baseline.openReadClose(); });
        reading.run([&] { readings += reader.read() != nullptr ? 1 : 0; });
    };
    for (int i = 0; i < 5; ++i)
        round();
    for (PassRow* row : {&keptOpen, &opened, &reading})
        row->forget();
    readings = 0;
    for (int i = 0; i < rounds; ++i)
        round();
    if (readings != rounds * passesPerRound) {
        std::fprintf(stderr, "some readings gave no record: these times mean nothing\n");
        return 2;
    }

    reportHeading();
    reportBeside(opened, keptOpen);
    return form.status(report(keptOpen, reading, ratioLimit, Allocations::forbidden));
}

}  // namespace
}  // namespace vantor::bench

int main(int argc, char** argv) {
    return vantor::bench::compare(vantor::bench::Form(argc, argv));
}
