#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "probes/network_reader_fixture.h"

/// Which interface is the primary one, the order of the rows, and what is not asked every time.
namespace vantor::network_reader_primary_test {
namespace {

using testing::ElementsAre;
using testing::Optional;
using testing::StrEq;

TEST_F(NetworkReaderTest, TheTotalsAreThePrimaryInterfacesAndNoSum) {
    add("en1");
    read();
    at("en0").received += 10;
    at("en1").received += 5000;
    const NetworkStats* stats = read();
    EXPECT_THAT(names(stats), ElementsAre("en0", "en1"));
    EXPECT_EQ(stats->downloadBytesPerSecond, 10);
}

TEST_F(NetworkReaderTest, WithoutAPrimaryNameTheFirstRowIsThePrimaryOne) {
    setNoPrimary();
    add("en1").addresses = {{Family::ipv6, "fd00::1"}};
    add("en2");
    read();
    at("en1").sent += 10;
    at("en2").sent += 999;
    const NetworkStats* stats = read();
    EXPECT_THAT(names(stats), ElementsAre("en1", "en0", "en2"));
    EXPECT_THAT(stats->primaryInterfaceName, Optional(StrEq("en1")));
    EXPECT_THAT(stats->primaryIPv6Address, Optional(StrEq("fd00::1")));
    EXPECT_EQ(stats->uploadBytesPerSecond, 10);
}

TEST_F(NetworkReaderTest, APrimaryNameWithoutARowLeavesTheFirstRowThePrimaryOne) {
    setPrimary("ppp0");
    read();
    EXPECT_THAT(read()->primaryInterfaceName, Optional(StrEq("en0")));
}

TEST_F(NetworkReaderTest, ThePrimaryOneMustBeMeasuredTheOthersNeedNot) {
    read();
    add("en1");
    EXPECT_NE(read(), nullptr);
    setPrimary("en2");
    add("en2");
    EXPECT_EQ(read(5), nullptr);
    EXPECT_NE(read(), nullptr);
}

TEST_F(NetworkReaderTest, IPv4sRouteComesBeforeIPv6s) {
    add("en1");
    setPrimary("en1", "IPv6");
    read();
    EXPECT_THAT(read()->primaryInterfaceName, Optional(StrEq("en0")));
}

TEST_F(NetworkReaderTest, IPv6sRouteServesWhereIPv4HasNone) {
    add("en1");
    setPrimary("en1", "IPv6");
    auto& values = machine->dynamicStore().values;
    const auto key = "State:/Network/Global/IPv4";
    const std::vector<PropertyValue> none{
        PropertyValue(PropertyDictionary{}),
        PropertyValue(PropertyDictionary{{"PrimaryInterface", PropertyValue("")}}),
        PropertyValue(PropertyDictionary{{"PrimaryInterface", PropertyValue(7)}}),
        PropertyValue(PropertyDictionary{{"Router", PropertyValue("10.0.0.1")}}),
        PropertyValue("en0")};
    read();
    for (const auto& value : none) {
        values.insert_or_assign(key, value);
        EXPECT_THAT(read(5)->primaryInterfaceName, Optional(StrEq("en1")));
    }
    values.erase(key);
    EXPECT_THAT(read(5)->primaryInterfaceName, Optional(StrEq("en1")));
}

TEST_F(NetworkReaderTest, ThePrimaryNameIsLookedUpAgainAfterFiveSeconds) {
    add("en1");
    auto& store = machine->dynamicStore();
    uptime = 0;
    read(0);
    EXPECT_EQ(store.lookups, 1);
    setPrimary("en1");
    EXPECT_THAT(read(4.999)->primaryInterfaceName, Optional(StrEq("en0")));
    EXPECT_EQ(store.lookups, 1);
    uptime = 0;
    EXPECT_THAT(read(5.0)->primaryInterfaceName, Optional(StrEq("en1")));
    EXPECT_EQ(store.lookups, 2);
    EXPECT_NE(read(4), nullptr);
    EXPECT_EQ(store.lookups, 2) << "five seconds after the second look";
}

TEST_F(NetworkReaderTest, ThatThereIsNoPrimaryNameIsRememberedToo) {
    setNoPrimary();
    auto& store = machine->dynamicStore();
    read();
    EXPECT_EQ(store.lookups, 2);
    read(4.9);
    EXPECT_EQ(store.lookups, 2);
    read(0.2);
    EXPECT_EQ(store.lookups, 4);
}

TEST_F(NetworkReaderTest, APrimaryNameThatWentIsForgotten) {
    add("en1").received += 5000;
    setPrimary("en1");
    read();
    EXPECT_THAT(read()->primaryInterfaceName, Optional(StrEq("en1")));
    setNoPrimary();
    EXPECT_THAT(read(5)->primaryInterfaceName, Optional(StrEq("en0")));
}

TEST_F(NetworkReaderTest, TheHostNameIsReadAgainAfterSixtySeconds) {
    uptime = -1;
    read();
    ASSERT_EQ(uptime, 0);
    EXPECT_EQ(read(1)->hostname, "simulated.local") << "looked up at 1 s";
    machine->processInfo().host = "renamed.local";
    uptime = 0;
    EXPECT_EQ(read(60.999)->hostname, "simulated.local");
    uptime = 0;
    EXPECT_EQ(read(61.0)->hostname, "renamed.local");
}

TEST_F(NetworkReaderTest, TheHostNameIsNotReadForNothing) {
    read();
    machine->processInfo().host = "renamed.local";
    EXPECT_EQ(read()->hostname, "renamed.local") << "a read without a record has not asked";
}

TEST_F(NetworkReaderTest, ResetKeepsTheHostNameAndThePrimaryName) {
    read();
    read();
    machine->processInfo().host = "renamed.local";
    const int lookups = machine->dynamicStore().lookups;
    reader.resetDeltas();
    read();
    EXPECT_EQ(read()->hostname, "simulated.local");
    EXPECT_EQ(machine->dynamicStore().lookups, lookups);
}

TEST_F(NetworkReaderTest, RowsAreThePrimaryThenThoseWithAddressesThenByTrafficThenByName) {
    for (const char* name : {"br10", "br9", "en3", "en2", "en1"})
        add(name);
    at("en1").addresses = {{Family::ipv4, "10.0.0.1"}};
    at("en2").addresses = {{Family::ipv6, "fd00::2"}};
    setPrimary("en3");
    read();
    at("en2").sent += 9;
    at("en1").received += 8;
    EXPECT_THAT(names(read()), ElementsAre("en3", "en2", "en1", "en0", "br9", "br10"));
    at("en1").received += 500;
    at("br10").received += 1;
    EXPECT_THAT(names(read()), ElementsAre("en3", "en1", "en0", "en2", "br10", "br9"));
}

}  // namespace
}  // namespace vantor::network_reader_primary_test
