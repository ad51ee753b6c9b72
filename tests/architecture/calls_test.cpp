#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "architecture/call_rules.h"
#include "architecture/sample_tree.h"

namespace vantor::calls_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Calls, HaveNoDefaultToFallBackTo) {
    EXPECT_THAT(findDefaults(VANTOR_SOURCE_DIR "/src/platform"), IsEmpty());
    EXPECT_THAT(findDefaults(VANTOR_SOURCE_DIR "/src/platform/darwin"), IsEmpty());
}

TEST(Calls, MayBePureAndHaveADestructor) {
    const SampleTree sample;
    sample.write("a.h",
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
    EXPECT_THAT(findDefaults(sample.root()), IsEmpty());
}

TEST(Calls, ShowEveryDefaultSorted) {
    const SampleTree sample;
    sample.write("b.h", "struct B {\n    virtual const char* name();\n};\n");
    sample.write("a.h",
                 "struct A {\n"
                 "    virtual int first() = 0;\n"
                 "    virtual bool mayBe(int /*number*/) { return true; }\n"
                 "    virtual int\n"
                 "    last() const noexcept;\n"
                 "};\n");
    EXPECT_THAT(findDefaults(sample.root()), ElementsAre(Breach{"a.h", 3, "a default for mayBe"},
                                                         Breach{"a.h", 4, "a default for last"},
                                                         Breach{"b.h", 2, "a default for name"}));
}

TEST(Calls, AreLookedForInTheFolderItself) {
    const SampleTree sample;
    const std::string withDefault = "struct A {\n    virtual int a();\n};\n";
    sample.write("linux/a.h", withDefault);
    sample.write("a.cpp", withDefault);
    EXPECT_THAT(findDefaults(sample.root()), IsEmpty());
}

}  // namespace
}  // namespace vantor::calls_test
