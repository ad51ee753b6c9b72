#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <map>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "platform/linux/files/kernel_file.h"
#include "platform/linux/storage/mount_table.h"
#include "platform/native_machine.h"
#include "probes/storage_reader.h"
#include "support/private_mounts.h"

/// The volumes of this very machine beside what df says of them.
namespace vantor::live_volumes_test {
namespace {

namespace fs = std::filesystem;

/// Others are writing to these disks all the time.
constexpr std::uint64_t slack = std::uint64_t{64} << 20;

struct Figures {
    std::string source;
    std::uint64_t used = 0;
    std::uint64_t available = 0;

    /// What the percentage of df is one of.
    std::uint64_t total() const { return used + available; }
};

/// df's rows by path. It writes a question mark for what cannot be written.
std::map<std::string, Figures> askDF(const std::string& arguments) {
    std::istringstream lines(outputOf("df -B1 --output=used,avail,source,target " + arguments));
    std::map<std::string, Figures> rows;
    std::string line;
    std::getline(lines, line);
    while (std::getline(lines, line)) {
        std::istringstream fields(line);
        Figures figures;
        std::string target;
        if (!(fields >> figures.used >> figures.available >> figures.source)) continue;
        std::getline(fields >> std::ws, target);
        rows[target] = figures;
    }
    return rows;
}

std::string asDFWritesIt(std::string path) {
    std::replace_if(
        path.begin(), path.end(),
        [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }, '?');
    return path;
}

std::vector<VolumeStats> readVolumes() {
    return StorageReader(makeNativeMachine()).read().value_or(std::vector<VolumeStats>{});
}

const VolumeStats* find(const std::vector<VolumeStats>& volumes, const std::string& path) {
    const auto found = std::find_if(volumes.begin(), volumes.end(),
                                    [&](const VolumeStats& v) { return v.path == path; });
    return found == volumes.end() ? nullptr : &*found;
}

TEST(LiveVolumes, HaveTheFiguresOfDF) {
    const auto before = askDF("--local");
    const auto list = StorageReader(makeNativeMachine()).read();
    const auto after = askDF("--local");
    if (before.empty()) GTEST_SKIP() << "there is no df here that says sizes and targets";
    const bool hasDisks = std::any_of(before.begin(), before.end(), [](const auto& row) {
        return row.second.source.starts_with("/dev/");
    });
    if (!hasDisks) GTEST_SKIP() << "no disk is mounted within this root folder";
    ASSERT_TRUE(list);
    int compared = 0;
    for (const VolumeStats& volume : *list) {
        SCOPED_TRACE(volume.path);
        const auto first = before.find(asDFWritesIt(volume.path));
        const auto second = after.find(asDFWritesIt(volume.path));
        if (first == before.end() || second == after.end()) continue;
        const auto expectBetween = [](std::uint64_t figure, std::uint64_t a, std::uint64_t b) {
            EXPECT_GE(figure + slack, std::min(a, b));
            EXPECT_LE(figure, std::max(a, b) + slack);
        };
        expectBetween(volume.totalBytes, first->second.total(), second->second.total());
        expectBetween(volume.availableBytes, first->second.available, second->second.available);
        ++compared;
    }
    EXPECT_GT(compared, 0);
}

/// The paths at which the table shows a part of a file system only, and private ones.
bool isHiddenFromPeople(const std::string& path, const std::vector<Mount>& mounts) {
    if (path.find("/.") != std::string::npos) return true;
    for (const char* folder :
         {"/run/", "/snap/", "/var/lib/snapd/", "/var/lib/docker/", "/var/lib/containers/"}) {
        if (path.starts_with(folder) && !path.starts_with("/run/media/")) return true;
    }
    return std::any_of(mounts.begin(), mounts.end(), [&](const Mount& mount) {
        const bool isPart = mount.root != "/" && mount.type != "btrfs";
        return unescapeMountText(mount.mountPoint) == path && (isPart || mount.major == 7);
    });
}

TEST(LiveVolumes, AreAllTheDisksThatDFLists) {
    const auto volumes = readVolumes();
    const auto table = readKernelFile("/proc/self/mountinfo");
    ASSERT_TRUE(table);
    std::vector<Mount> mounts;
    parseMountTable(*table, mounts);
    for (const auto& [path, figures] : askDF("--local")) {
        if (!figures.source.starts_with("/dev/")) continue;
        if (path != "/" && isHiddenFromPeople(path, mounts)) continue;
        const bool isListed = std::any_of(
            volumes.begin(), volumes.end(),
            [path = path](const VolumeStats& v) { return asDFWritesIt(v.path) == path; });
        EXPECT_TRUE(isListed) << path;
    }
}

/// A small disk of our own, made of a file.
class OwnDisk {
  public:
    OwnDisk() {
        std::string name = (fs::temp_directory_path() / "own-disk-XXXXXX").string();
        folder_ = ::mkdtemp(name.data());
        isMade_ = runQuietly("truncate -s 16M " + quoted(image()) + " && mkfs.ext4 -q -F " +
                             quoted(image()));
    }
    OwnDisk(const OwnDisk&) = delete;
    OwnDisk& operator=(const OwnDisk&) = delete;
    ~OwnDisk() {
        std::error_code ignored;
        fs::remove_all(folder_, ignored);
    }

    bool isMade() const { return isMade_; }
    std::string image() const { return folder_ + "/image"; }

    /// A folder to mount something on.
    std::string place(const std::string& name) const {
        const std::string path = folder_ + "/" + name;
        fs::create_directories(path);
        return path;
    }

  private:
    std::string folder_;
    bool isMade_ = false;
};

std::string checkOwnDisk(const OwnDisk& disk) {
    const std::string odd = disk.place("a b\nc\\d");
    if (!runQuietly("mount -n -o loop " + quoted(disk.image()) + " " + quoted(odd))) return "skip";
    std::string complaints;
    const auto expect = [&](bool holds, const char* what) {
        if (!holds) complaints += std::string(what) + "; ";
    };
    const auto others = readVolumes().size() - 1;
    const auto listed = readVolumes();
    const VolumeStats* const volume = find(listed, odd);
    const auto rows = askDF(quoted(odd));
    if (!volume) return "a disk with an odd path is not listed";
    expect(rows.size() == 1 && rows.begin()->second.total() == volume->totalBytes,
           "its used space differs");
    expect(rows.size() == 1 && rows.begin()->second.available == volume->availableBytes,
           "its free space differs");
    expect(volume->name == "a b\nc\\d", "its name differs");
    expect(!volume->isInternal && !volume->isRemovable && !volume->isReadOnly, "its flags differ");

    fs::create_directory(odd + "/folder");
    runQuietly("mount -n --bind " + quoted(odd + "/folder") + " " + quoted(disk.place("bound")));
    runQuietly("mount -n --bind " + quoted(odd) + " " + quoted(disk.place("a much longer path")));
    runQuietly("mount -n -t tmpfs none " + quoted(disk.place("memory")));
    expect(readVolumes().size() == others + 1, "a second mount of it is listed, or memory is");

    runQuietly("mount -n -o remount,ro,bind " + quoted(odd));
    const auto readOnly = readVolumes();
    expect(find(readOnly, odd) && find(readOnly, odd)->isReadOnly, "it is not read-only");

    runQuietly("mount -n -t tmpfs none " + quoted(odd));
    const auto covered = readVolumes();
    expect(!find(covered, odd), "it is listed though something covers it");
    expect(find(covered, disk.place("a much longer path")) != nullptr,
           "its other mount does not stand for it");
    return complaints;
}

TEST(LiveVolumes, ADiskOfOurOwnIsListedOnceAndAsItIs) {
    const OwnDisk disk;
    if (!disk.isMade()) GTEST_SKIP() << "there is no mkfs.ext4 here";
    const ChildOutcome outcome = withPrivateMounts([&] { return checkOwnDisk(disk); });
    if (!outcome.wasPossible) GTEST_SKIP() << "mounts of one's own are not allowed here";
    if (outcome.complaints == "skip") GTEST_SKIP() << "there are no loop devices here";
    EXPECT_EQ(outcome.complaints, "");
}

}  // namespace
}  // namespace vantor::live_volumes_test
