#include <cstdio>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/linux/linux_machine.h"
#include "platform/native_machine.h"
#include "probes/power_reader.h"
#include "probes/storage_reader.h"
#include "support/fake_kernel_tree.h"

#include "pass_row.h"
#include "slow_baseline.h"
#include "verdict.h"

/// Compares readings of the volumes and of a notebook's two batteries with merely asking for what
/// they are made of, in this process and in turns. Exits with 1 when one costs too much.
namespace vantor::bench {
namespace {

constexpr int wholeRounds = 200;
constexpr int passesPerRound = 10;
constexpr double ratioLimit = 1.5;

volatile std::size_t sink = 0;  // keeps results from being optimised away

void addSupply(const FakeKernelTree& tree, const std::string& name,
               const std::vector<std::pair<const char*, const char*>>& files) {
    const std::string folder = "devices/platform/acpi/power_supply/" + name;
    tree.link("class/power_supply/" + name, "../../" + folder);
    for (const auto& [file, content] : files)
        tree.sys(folder + "/" + file, content);
}

void makeNotebook(const FakeKernelTree& tree) {
    addSupply(tree, "AC", {{"type", "Mains\n"}, {"online", "0\n"}});
    for (const char* battery : {"BAT0", "BAT1"}) {
        addSupply(tree, battery,
                  {{"type", "Battery\n"},
                   {"present", "1\n"},
                   {"status", "Discharging\n"},
                   {"energy_now", "17230000\n"},
                   {"energy_full", "23480000\n"},
                   {"power_now", "5120000\n"},
                   {"voltage_now", "11812000\n"},
                   {"cycle_count", "214\n"},
                   {"model_name", "45N1127\n"}});
    }
}

int compare(Form form) {
    const int rounds = form.of(wholeRounds);
    const FakeKernelTree tree;
    makeNotebook(tree);
    StorageReader storage(makeNativeMachine());
    PowerReader power(std::make_shared<LinuxMachine>(tree.roots()));
    std::vector<std::string> paths;
    const auto volumes = storage.read();
    for (const VolumeStats& volume : volumes.value_or(std::vector<VolumeStats>{}))
        paths.push_back(volume.path);
    // In a container there may be none.
    const bool hasVolumes = !paths.empty();
    if (!hasVolumes) std::printf("This machine has no volume to ask.\n");
    StorageBaseline bareVolumes(paths);
    PowerBaseline bareSupplies(tree.roots().sys / "class/power_supply");
    int readings = 0;
    PassRow spaceAlone("mount table and statfs", passesPerRound);
    PassRow bareStorage("the same and the devices' files", passesPerRound);
    PassRow readStorage("StorageReader::read", passesPerRound);
    PassRow barePower("supplies, open-read-close", passesPerRound);
    PassRow readPower("PowerReader::read", passesPerRound);
    const auto round = [&] {
        if (hasVolumes) {
            spaceAlone.run([&] { sink = bareVolumes.askSpace(); });
            bareStorage.run([&] { sink = bareVolumes.askSpaceAndDevices(); });
            readStorage.run([&] { readings += storage.read() ? 1 : 0; });
        }
        barePower.run([&] { sink = bareSupplies.pass(); });
        readPower.run([&] { readings += power.read().stats() ? 1 : 0; });
    };
    for (int i = 0; i < 5; ++i)
        round();
    for (PassRow* row : {&spaceAlone, &bareStorage, &readStorage, &barePower, &readPower})
        row->forget();
    readings = 0;
    for (int i = 0; i < rounds; ++i)
        round();
    if (readings != (hasVolumes ? 2 : 1) * rounds * passesPerRound) {
        std::fprintf(stderr, "some readings gave no record: these times mean nothing\n");
        return 2;
    }
    reportHeading();
    if (hasVolumes) reportBeside(spaceAlone, bareStorage);
    const bool storagePasses =
        !hasVolumes || report(bareStorage, readStorage, ratioLimit, Allocations::allowed);
    const bool powerPasses = report(barePower, readPower, ratioLimit, Allocations::allowed);
    return form.status(storagePasses && powerPasses);
}

}  // namespace
}  // namespace vantor::bench

int main(int argc, char** argv) {
    return vantor::bench::compare(vantor::bench::Form(argc, argv));
}
