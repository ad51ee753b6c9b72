#include "platform/darwin/darwin_primary_interface.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/simulated/simulated_dynamic_store.h"

namespace vantor::darwin_primary_interface_test {
namespace {

constexpr auto ipv4Key = "State:/Network/Global/IPv4";
constexpr auto ipv6Key = "State:/Network/Global/IPv6";

class DarwinPrimaryInterfaceTest : public testing::Test {
  protected:
    void set(const char* key, const std::string& name) {
        store.values.insert_or_assign(
            key, PropertyValue(PropertyDictionary{{"PrimaryInterface", PropertyValue(name)}}));
    }
    std::string name() { return std::string(primary.name().value_or("(none)")); }

    SimulatedDynamicStore store;
    DarwinPrimaryInterface primary{store};
};

TEST_F(DarwinPrimaryInterfaceTest, IsIPv4sAndThenIPv6IsNotAsked) {
    set(ipv4Key, "en0");
    set(ipv6Key, "en1");
    EXPECT_EQ(name(), "en0");
    EXPECT_EQ(store.lookups, 1);
}

TEST_F(DarwinPrimaryInterfaceTest, IsIPv6sWhereIPv4sIsNoTextOrEmpty) {
    set(ipv6Key, "en1");
    EXPECT_EQ(name(), "en1");
    const std::vector<PropertyValue> none{
        PropertyValue(PropertyDictionary{}),
        PropertyValue(PropertyDictionary{{"PrimaryInterface", PropertyValue("")}}),
        PropertyValue(PropertyDictionary{{"PrimaryInterface", PropertyValue(7)}}),
        PropertyValue(PropertyDictionary{{"Router", PropertyValue("10.0.0.1")}}),
        PropertyValue("en0")};
    for (const PropertyValue& value : none) {
        store.values.insert_or_assign(ipv4Key, value);
        EXPECT_EQ(name(), "en1");
    }
}

TEST_F(DarwinPrimaryInterfaceTest, IsAskedForEachTime) {
    EXPECT_EQ(name(), "(none)");
    set(ipv4Key, "en0");
    EXPECT_EQ(name(), "en0");
    store.values.clear();
    EXPECT_EQ(name(), "(none)");
}

}  // namespace
}  // namespace vantor::darwin_primary_interface_test
