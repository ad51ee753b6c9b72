#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/linux/storage/linux_mounted_volumes.h"
#include "platform/linux/storage/patient_file_systems.h"
#include "probes/storage_reader.h"
#include "support/becomes_true.h"
#include "support/fake_file_systems.h"
#include "support/fake_kernel_tree.h"
#include "support/machine_with_volumes.h"

namespace vantor {

using Available = std::map<std::string, std::uint64_t>;  // bytes by path

/// Volumes that hang when they are told to, and the list of them.
class HangingVolumeWorld : public testing::Test {
  protected:
    // Lines of the table.
    const std::string root = "1 0 8:1 / / rw - ext4 /dev/sda1 rw\n";
    const std::string stick = "2 1 8:17 / /media/stick rw - fuseblk /dev/sdb1 rw\n";
    const std::string pool = "3 1 0:40 / /srv/pool rw - fuse.mergerfs a:b rw\n";
    const std::string vault = "4 1 0:41 / /home/me/vault rw - fuse.gocryptfs /home/me/cipher rw\n";

    HangingVolumeWorld() {
        say("/", 600);
        say("/media/stick", 50);
        say("/srv/pool", 70);
        say("/home/me/vault", 90);
    }
    ~HangingVolumeWorld() override { fileSystems->goOnForGood(); }

    void mount(const std::string& table) { tree.proc("self/mountinfo", table); }
    void say(const std::string& path, std::uint64_t available) {
        fileSystems->say(path, FileSystems::Space{1, 1000, available, false, {}});
    }

    /// Time is up for those that hang only.
    PatientFileSystems::Wait waitForOthers() {
        return [this, fake = fileSystems](const std::string& path,
                                          const PatientFileSystems::Answer& answer,
                                          PatientFileSystems::Time) {
            ++waits[path];
            if (!fake->hangs(path)) static_cast<void>(answer.wait_for(std::chrono::seconds(20)));
        };
    }

    std::vector<VolumeStats> read() {
        auto list = reader.read();
        EXPECT_TRUE(list);
        return list.value_or(std::vector<VolumeStats>());
    }
    Available list() {
        Available available;
        for (const VolumeStats& volume : read())
            available[volume.path] = volume.availableBytes;
        return available;
    }

    /// Lists until that is the list: a late answer is there when its thread has got so far.
    bool listBecomes(const Available& wanted) {
        return becomesTrue([&] { return list() == wanted; });
    }

    std::map<std::string, int> waits;  // by path
    FakeKernelTree tree;
    std::shared_ptr<HangingFileSystems> fileSystems = std::make_shared<HangingFileSystems>();
    std::shared_ptr<LinuxMountedVolumes> volumes = std::make_shared<LinuxMountedVolumes>(
        tree.roots(), std::make_shared<PatientFileSystems>(
                          fileSystems, PatientFileSystems::usualLimit, waitForOthers()));
    StorageReader reader{std::make_shared<MachineWithVolumes>(SimulatedMachine::laptop(), volumes)};
};

}  // namespace vantor
