#include "model/record_fields.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <utility>

#include "model/record_walk.h"

namespace vantor::record_fields_test {
namespace {

template <class Record>
class RecordFields : public testing::Test {};

using Records = testing::Types<CPUStats, MemoryStats, NetworkInterfaceStats, NetworkStats, GPUStats,
                               VolumeStats, ProcessStats, ProcessSample, SystemInfoStats,
                               PowerStats, SystemSnapshot>;
TYPED_TEST_SUITE(RecordFields, Records);

TYPED_TEST(RecordFields, AreAllMembersOfTheRecord) {
    EXPECT_EQ(fieldCount<TypeParam>, record_walk::memberCount<TypeParam>());
}

TYPED_TEST(RecordFields, AreNamedOnceEach) {
    std::set<std::string> names = record_walk::keys<TypeParam>(true);
    names.merge(record_walk::keys<TypeParam>(false));
    EXPECT_EQ(names.size(), fieldCount<TypeParam>);
}

TYPED_TEST(RecordFields, AreDifferentMembers) {
    TypeParam record{};
    std::set<const void*> members;
    forEachField(record, [&](const char*, const auto& field) {
        members.insert(&field);
        return true;
    });
    EXPECT_EQ(members.size(), fieldCount<TypeParam>);
}

TYPED_TEST(RecordFields, AreEmptyInANewRecord) {
    const TypeParam record{};
    forEachField(record, [](const char* name, const auto& field) {
        EXPECT_EQ(field, std::remove_cvref_t<decltype(field)>{}) << name;
        return true;
    });
}

}  // namespace
}  // namespace vantor::record_fields_test
