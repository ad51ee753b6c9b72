#include "platform/name_map.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vantor::name_map_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> namesOf(const NameMap<int>& map) {
    std::vector<std::string> names;
    map.forEach([&](const std::string& name, int) { names.push_back(name); });
    return names;
}

TEST(NameMap, FindsWhatItHolds) {
    NameMap<int> map;
    EXPECT_EQ(map.find("a"), nullptr);
    map.hold("b").value = 2;
    map.hold("a").value = 1;
    ASSERT_NE(map.find("a"), nullptr);
    EXPECT_EQ(*map.find("a"), 1);
    EXPECT_EQ(*map.find("b"), 2);
    EXPECT_EQ(map.find("c"), nullptr);
    EXPECT_EQ(map.size(), 2u);
}

TEST(NameMap, IsWalkedInTheOrderOfItsNames) {
    NameMap<int> map;
    for (const char* name : {"eth1", "lo", "docker0", "eth0"})
        map.hold(name);
    EXPECT_THAT(namesOf(map), ElementsAre("docker0", "eth0", "eth1", "lo"));
}

TEST(NameMap, SaysWhetherANameIsNew) {
    NameMap<int> map;
    EXPECT_TRUE(map.hold("a").isNew);
    EXPECT_FALSE(map.hold("a").isNew);
    map.clear();
    EXPECT_TRUE(map.hold("a").isNew);
}

TEST(NameMap, FindsInAnyOrderOfAsking) {
    NameMap<int> map;
    const std::vector<std::string> names{"eth1", "lo", "docker0", "eth0", "veth7", "wlan0"};
    for (std::size_t i = 0; i < names.size(); ++i)
        map.hold(names[i]).value = static_cast<int>(i);
    for (std::size_t first = 0; first < names.size(); ++first) {
        for (std::size_t second = 0; second < names.size(); ++second) {
            EXPECT_EQ(*map.find(names[first]), static_cast<int>(first));
            EXPECT_EQ(*map.find(names[second]), static_cast<int>(second));
            EXPECT_EQ(map.find("none"), nullptr);
        }
    }
}

TEST(NameMap, HoldsNothingAfterClearing) {
    NameMap<int> map;
    map.hold("a");
    map.clear();
    EXPECT_EQ(map.find("a"), nullptr);
    EXPECT_EQ(map.size(), 0u);
    EXPECT_THAT(namesOf(map), IsEmpty());
}

TEST(NameMap, ErasesByName) {
    NameMap<int> map;
    for (const char* name : {"a", "b", "c"})
        map.hold(name);
    map.eraseIf([](const std::string& name) { return name != "b"; });
    EXPECT_THAT(namesOf(map), ElementsAre("b"));
    EXPECT_EQ(map.size(), 1u);
}

TEST(NameMap, KeepsTheStorageOfAValueForTheNamesReturn) {
    NameMap<std::string> map;
    map.hold("a").value = std::string(100, 'x');
    const char* const storage = map.find("a")->data();
    map.clear();
    EXPECT_EQ(map.hold("a").value.data(), storage);
}

// Containers have interfaces with made-up names: those must not pile up.
TEST(NameMap, GivesUpThePlacesOfNamesThatNeverReturn) {
    NameMap<std::string> map;
    for (int i = 0; i < 100; ++i)
        map.hold("veth" + std::to_string(i)).value = std::string(100, 'x');
    map.clear();  // still the size of what was held last
    map.hold("eth0");
    map.clear();
    EXPECT_EQ(map.hold("veth7").value, "") << "its place was given up";
}

}  // namespace
}  // namespace vantor::name_map_test
