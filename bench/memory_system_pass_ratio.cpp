#include <cstdio>

#include "platform/native_machine.h"
#include "probes/memory_reader.h"
#include "probes/system_info_reader.h"

#include "kept_files.h"
#include "pass_row.h"
#include "verdict.h"

/// Compares readings of memory and of the system with merely reading the files that they are made
/// of, in this process and in turns. Exits with 1 when one costs too much.
namespace vantor::bench {
namespace {

constexpr int wholeRounds = 200;
constexpr int passesPerRound = 25;
constexpr double ratioLimit = 1.5;

volatile std::size_t sink = 0;  // keeps results from being optimised away

int compare(Form form) {
    const int rounds = form.of(wholeRounds);
    KeptFiles memoryText(memoryFiles(), std::size_t{16} * 1024);
    KeptFiles systemText(systemFiles(), 256);
    MemoryReader memory(makeNativeMachine());
    SystemInfoReader system(makeNativeMachine());
    int readings = 0;
    PassRow bareMemory("meminfo and such, kept open", passesPerRound);
    PassRow readMemory("MemoryReader::read", passesPerRound);
    PassRow bareSystem("uptime, name and such, kept open", passesPerRound);
    PassRow readSystem("SystemInfoReader::read", passesPerRound);
    const auto round = [&] {
        bareMemory.run([&] { sink = memoryText.read(); });
        readMemory.run([&] { readings += memory.read() ? 1 : 0; });
        bareSystem.run([&] { sink = systemText.read(); });
        readSystem.run([&] { readings += system.read().uptimeSeconds > 0 ? 1 : 0; });
    };
    for (int i = 0; i < 5; ++i)
        round();
    for (PassRow* row : {&bareMemory, &readMemory, &bareSystem, &readSystem})
        row->forget();
    readings = 0;
    for (int i = 0; i < rounds; ++i)
        round();
    if (readings != 2 * rounds * passesPerRound) {
        std::fprintf(stderr, "some readings gave no record: these times mean nothing\n");
        return 2;
    }
    reportHeading();
    const bool memoryPasses = report(bareMemory, readMemory, ratioLimit, Allocations::forbidden);
    const bool systemPasses = report(bareSystem, readSystem, ratioLimit, Allocations::forbidden);
    return form.status(memoryPasses && systemPasses);
}

}  // namespace
}  // namespace vantor::bench

int main(int argc, char** argv) {
    return vantor::bench::compare(vantor::bench::Form(argc, argv));
}
