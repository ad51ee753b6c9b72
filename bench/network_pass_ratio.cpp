#include <cstddef>
#include <cstdio>

#include "platform/native_machine.h"
#include "probes/network_reader.h"

#include "network_baseline.h"
#include "pass_row.h"
#include "verdict.h"

/// Compares a network reading while no link changes with merely fetching what it is then made of,
/// the counters and now and then the routes, and with the lists of all links and addresses. In this
/// process and in turns, so that the machine's moods touch them alike. Exits with 1 when the
/// reading costs too much.
namespace vantor::bench {
namespace {

constexpr int wholeRounds = 200;
constexpr int passesPerRound = 25;
constexpr int passesPerLookup = 5;  // of the primary interface, at a reading each second
constexpr double ratioLimit = 1.5;

volatile std::size_t sink = 0;  // keeps results from being optimised away

int compare(Form form) {
    const int rounds = form.of(wholeRounds);
    NetworkBaseline baseline;
    NetworkReader reader(makeNativeMachine());
    double uptime = 0;
    int readings = 0;
    int asked = 0;
    PassRow bare("netlink counters and routes", passesPerRound);
    PassRow lists("links, addresses and routes", passesPerRound);
    PassRow reading("NetworkReader::read", passesPerRound);
    const auto routes = [&] {
        if (++asked % passesPerLookup == 0) sink = baseline.readRoutes();
    };
    const auto round = [&] {
        bare.run([&] {
            sink = baseline.counters();
            routes();
        });
        lists.run([&] {
            sink = baseline.pass();
            routes();
        });
        reading.run([&] {
            uptime += 1;
            readings += reader.read(true, uptime) != nullptr ? 1 : 0;
        });
    };
    for (int i = 0; i < 5; ++i)
        round();
    for (PassRow* row : {&bare, &lists, &reading})
        row->forget();
    readings = 0;
    for (int i = 0; i < rounds; ++i)
        round();
    if (readings != rounds * passesPerRound) {
        std::fprintf(stderr, "some readings gave no record: these times mean nothing\n");
        return 2;
    }
    reportHeading();
    reportBeside(lists, bare);
    return form.status(report(bare, reading, ratioLimit, Allocations::forbidden));
}

}  // namespace
}  // namespace vantor::bench

int main(int argc, char** argv) {
    return vantor::bench::compare(vantor::bench::Form(argc, argv));
}
