#include "platform/macos/network/mac_dynamic_store.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "platform/macos/frameworks/frameworks_test_support.h"

namespace vantor::mac_dynamic_store_test {
namespace {

constexpr auto ipv4Key = "State:/Network/Global/IPv4";

class MacDynamicStoreTest : public FakeDarwinTest {
  protected:
    void SetUp() override {
        darwin.storeValues[ipv4Key] =
            objects.dictionary({{objects.text("PrimaryInterface"), objects.text("en0")},
                                {objects.text("PrimaryService"), objects.text("D3A1")},
                                {objects.text("Router"), objects.text("192.168.1.1")}});
    }

    static std::string primaryInterface(MacDynamicStore& store) {
        const PropertyValue* const value = store.copyValue(ipv4Key);
        const PropertyDictionary* const dictionary = value ? value->dictionary() : nullptr;
        const std::string* const name =
            dictionary ? findText(*dictionary, "PrimaryInterface") : nullptr;
        return name ? *name : "";
    }

    FakeObjects& objects = darwin.objects;
};

TEST_F(MacDynamicStoreTest, TellsThePrimaryInterface) {
    MacDynamicStore store(darwin.frameworks());
    EXPECT_EQ(primaryInterface(store), "en0");
    darwin.storeValues.clear();
    EXPECT_EQ(primaryInterface(store), "");
    EXPECT_EQ(store.copyValue("State:/Network/Global/IPv6"), nullptr);
}

TEST_F(MacDynamicStoreTest, TellsOfWhateverIsThere) {
    MacDynamicStore store(darwin.frameworks());
    for (const Ref other : objectsOtherThan(FakeObject::Kind::dictionary)) {
        darwin.storeValues[ipv4Key] = other;
        EXPECT_EQ(primaryInterface(store), "");
    }
    for (const Ref other : objectsOtherThan(FakeObject::Kind::text)) {
        darwin.storeValues[ipv4Key] =
            objects.dictionary({{objects.text("PrimaryInterface"), other}});
        EXPECT_EQ(primaryInterface(store), "");
    }
}

TEST_F(MacDynamicStoreTest, SurvivesEachFunctionMissing) {
    int told = 0;
    withEachFunctionMissing([&](const std::shared_ptr<const Frameworks>& some) {
        MacDynamicStore store(some);
        if (primaryInterface(store) == "en0") ++told;
    });
    // Most of the functions are not needed for this.
    EXPECT_GT(told, 40);
}

TEST_F(MacDynamicStoreTest, SurvivesEachCallFailing) {
    withEachCallFailing(5, [&](const std::shared_ptr<const Frameworks>& some) {
        MacDynamicStore store(some);
        primaryInterface(store);
    });
}

TEST_F(MacDynamicStoreTest, KeepsNothingOfManyReads) {
    MacDynamicStore store(darwin.frameworks());
    manyTimes([&] { ASSERT_EQ(primaryInterface(store), "en0"); });
}

}  // namespace
}  // namespace vantor::mac_dynamic_store_test
