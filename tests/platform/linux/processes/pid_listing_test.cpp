#include "platform/linux/processes/pid_listing.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "support/fake_kernel_tree.h"

namespace vantor::pid_listing_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using PIDs = std::vector<std::int32_t>;

/// A block of directory entries as getdents64 fills it.
class Block {
  public:
    Block& add(std::string_view name) {
        const std::size_t length = (19 + name.size() + 1 + 7) / 8 * 8;
        return add(name, static_cast<std::uint16_t>(length), length);
    }
    /// An entry of `size` bytes that says that it has `length`.
    Block& add(std::string_view name, std::uint16_t length, std::size_t size) {
        const std::size_t start = bytes_.size();
        bytes_.resize(start + size, std::byte{0xEE});
        std::memcpy(&bytes_[start + 16], &length, sizeof length);
        if (19 + name.size() <= size) {
            std::memcpy(bytes_.data() + start + 19, name.data(), name.size());
        }
        if (19 + name.size() < size) bytes_[start + 19 + name.size()] = std::byte{0};
        return *this;
    }
    Block& cut(std::size_t bytes) {
        bytes_.resize(bytes_.size() - bytes);
        return *this;
    }
    PIDs pids() const {
        PIDs pids;
        appendPIDs(bytes_, pids);
        return pids;
    }

  private:
    std::vector<std::byte> bytes_;
};

TEST(PIDEntries, OfAnEmptyBlockAreNone) {
    EXPECT_THAT(Block().pids(), IsEmpty());
}

TEST(PIDEntries, AreTheNamesThatAreNumbers) {
    EXPECT_THAT(
        Block().add(".").add("..").add("1").add("fb").add("4194303").add("self").add("27").pids(),
        ElementsAre(1, 4194303, 27));
}

TEST(PIDEntries, AreAppended) {
    PIDs pids{7};
    appendPIDs({}, pids);
    EXPECT_THAT(pids, ElementsAre(7));
}

TEST(PIDEntries, AreWholePositiveNumbers) {
    for (const char* name : {"", "123abc", "abc123", "12 3", " 12", "12 ", "+12", "-12", "0",
                             "0x12", "1.2", "2147483648", "99999999999999999999999999"}) {
        EXPECT_THAT(Block().add(name).add("5").pids(), ElementsAre(5)) << name;
    }
    EXPECT_THAT(Block().add("2147483647").pids(), ElementsAre(2147483647));
}

TEST(PIDEntries, KeepTheOrderOfTheBlock) {
    EXPECT_THAT(Block().add("30").add("10").add("20").pids(), ElementsAre(30, 10, 20));
}

TEST(PIDEntries, EndAtALengthOfZero) {
    EXPECT_THAT(Block().add("1").add("2", 0, 24).add("3").pids(), ElementsAre(1));
}

TEST(PIDEntries, EndAtALengthWithoutRoomForAName) {
    EXPECT_THAT(Block().add("1").add("2", 19, 24).add("3").pids(), ElementsAre(1));
    EXPECT_THAT(Block().add("1").add("2", 8, 24).add("3").pids(), ElementsAre(1));
}

TEST(PIDEntries, EndAtALengthPastTheBlock) {
    EXPECT_THAT(Block().add("1").add("2", 25, 24).pids(), ElementsAre(1));
    EXPECT_THAT(Block().add("1").add("2", 65535, 24).pids(), ElementsAre(1));
}

TEST(PIDEntries, EndWhereTheBlockIsCut) {
    for (std::size_t bytes = 1; bytes < 24; ++bytes)
        EXPECT_THAT(Block().add("1").add("2").cut(bytes).pids(), ElementsAre(1)) << bytes;
}

TEST(PIDEntries, MayBeNamesThatFillTheirEntry) {
    EXPECT_THAT(Block().add("12345", 24, 24).add("6").pids(), ElementsAre(12345, 6));
    EXPECT_THAT(Block().add("7", 20, 20).pids(), ElementsAre(7));
}

FileDescriptor openFolder(const std::filesystem::path& path) {
    return FileDescriptor{::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
}

TEST(PIDListing, AscendsWhateverTheFoldersOrder) {
    const FakeKernelTree tree;
    PIDs expected;
    for (std::int32_t i = 1; i <= 3000; ++i) {
        const std::int32_t pid = i * 7919 % 30011;
        tree.procFolder(std::to_string(pid));
        expected.push_back(pid);
    }
    tree.proc("stat", "");
    tree.procFolder("sys");
    std::sort(expected.begin(), expected.end());
    PIDListing listing;
    ASSERT_TRUE(listing.read(openFolder(tree.roots().proc)));
    EXPECT_EQ(PIDs(listing.pids().begin(), listing.pids().end()), expected) << "over many blocks";
}

TEST(PIDListing, SeesWhatChangedThroughTheSameDescriptor) {
    const FakeKernelTree tree;
    tree.procFolder("5");
    const FileDescriptor proc = openFolder(tree.roots().proc);
    PIDListing listing;
    ASSERT_TRUE(listing.read(proc));
    EXPECT_THAT(listing.pids(), ElementsAre(5));
    tree.procFolder("4");
    tree.removeProc("5");
    ASSERT_TRUE(listing.read(proc));
    EXPECT_THAT(listing.pids(), ElementsAre(4));
}

TEST(PIDListing, OfAnEmptyFolderIsEmptyAndNoFailure) {
    const FakeKernelTree tree;
    PIDListing listing;
    EXPECT_TRUE(listing.read(openFolder(tree.roots().proc)));
    EXPECT_THAT(listing.pids(), IsEmpty());
}

TEST(PIDListing, ThatFailsIsEmpty) {
    const FakeKernelTree tree;
    tree.procFolder("5");
    tree.proc("file", "5");
    PIDListing listing;
    ASSERT_TRUE(listing.read(openFolder(tree.roots().proc)));
    const FileDescriptor file{::open((tree.roots().proc / "file").c_str(), O_RDONLY | O_CLOEXEC)};
    ASSERT_TRUE(file);
    EXPECT_FALSE(listing.read(file)) << "no folder";
    EXPECT_THAT(listing.pids(), IsEmpty());
    EXPECT_FALSE(listing.read(FileDescriptor{}));
    EXPECT_THAT(listing.pids(), IsEmpty());
}

TEST(PIDListing, OfThisMachineHoldsThisProcess) {
    PIDListing listing;
    ASSERT_TRUE(listing.read(openFolder("/proc")));
    EXPECT_TRUE(std::binary_search(listing.pids().begin(), listing.pids().end(), ::getpid()));
    EXPECT_TRUE(std::is_sorted(listing.pids().begin(), listing.pids().end()));
}

}  // namespace
}  // namespace vantor::pid_listing_test
