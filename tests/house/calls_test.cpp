#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "house/call_rules.h"
#include "house/made_up_house.h"

namespace vantor::calls_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Calls, HaveNoDefaultToFallBackTo) {
    EXPECT_THAT(findDefaults(VANTOR_SOURCE_DIR "/src/platform"), IsEmpty());
}

TEST(Calls, MayBePureAndHaveADestructor) {
    const MadeUpHouse house;
    house.write("a.h",
                "class A {\n"
                "    virtual ~A() = default;\n"
                "    virtual int a(int b = 1) = 0;\n"
                "    virtual std::optional<int> b(\n"
                "        int c) const\n"
                "        = 0;\n"
                "    // virtual int c() { return 1; }\n"
                "    /* virtual\n int d(); */\n"
                "    int virtualAddress() { return 0; }\n"
                "};\n");
    EXPECT_THAT(findDefaults(house.root()), IsEmpty());
}

TEST(Calls, ShowEveryDefaultSorted) {
    const MadeUpHouse house;
    house.write("b.h", "struct B {\n    virtual const char* name();\n};\n");
    house.write("a.h",
                "struct A {\n"
                "    virtual int first() = 0;\n"
                "    virtual bool mayBe(int /*number*/) { return true; }\n"
                "    virtual int\n"
                "    last() const noexcept;\n"
                "};\n");
    EXPECT_THAT(findDefaults(house.root()), ElementsAre(Breach{"a.h", 3, "a default for mayBe"},
                                                        Breach{"a.h", 4, "a default for last"},
                                                        Breach{"b.h", 2, "a default for name"}));
}

TEST(Calls, AreLookedForInTheFolderItself) {
    const MadeUpHouse house;
    const std::string withDefault = "struct A {\n    virtual int a();\n};\n";
    house.write("linux/a.h", withDefault);
    house.write("a.cpp", withDefault);
    house.write("derived_machine.h", withDefault);
    EXPECT_THAT(findDefaults(house.root()), IsEmpty());
}

}  // namespace
}  // namespace vantor::calls_test
