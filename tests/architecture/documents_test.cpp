#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "architecture/document_rules.h"
#include "architecture/sample_tree.h"

namespace vantor::documents_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Documents, NameOnlyPathsThatExist) {
    EXPECT_THAT(findMissingPaths(VANTOR_SOURCE_DIR), IsEmpty());
}

TEST(Documents, ShowEachMissingPathWithItsLine) {
    const SampleTree sample;
    sample.write("src/model/a.h", "int a;\n");
    sample.write("README.md",
                 "In `src/model/a.h`, src/model, `src/` and (src/model/a.h).\n"
                 "Not `src/model/b.h`.\n"
                 "\n"
                 "    ./scripts/run      builds\n");
    sample.write("docs/map.md", "| [a](../src/model/c.h) | tests/a_test.cpp, |\n");
    EXPECT_THAT(findMissingPaths(sample.root()),
                ElementsAre(Breach{"README.md", 2, "no such path: src/model/b.h"},
                            Breach{"README.md", 4, "no such path: scripts/run"},
                            Breach{"docs/map.md", 1, "a link to nothing: ../src/model/c.h"},
                            Breach{"docs/map.md", 1, "no such path: tests/a_test.cpp"}));
}

TEST(Documents, MayNameSeveralFilesAtOnce) {
    const SampleTree sample;
    sample.write("src/ui/cards/cpu_card.h", "");
    sample.write("src/ui/cards/cpu_card.cpp", "");
    sample.write("src/ui/theme.h", "");
    sample.write("fuzz/cpu_list_fuzz.cpp", "");
    sample.write("README.md",
                 "`src/ui/cards/*_card.{h,cpp}`, `src/*/theme.h`, `fuzz/<parser>_fuzz.cpp`\n"
                 "`src/ui/*_card.h`\n"
                 "`src/ui/theme.{h,cpp}`\n"
                 "`fuzz/<parser>.txt`\n");
    EXPECT_THAT(findMissingPaths(sample.root()),
                ElementsAre(Breach{"README.md", 2, "no such path: src/ui/*_card.h"},
                            Breach{"README.md", 3, "no such path: src/ui/theme.{h,cpp}"},
                            Breach{"README.md", 4, "no such path: fuzz/<parser>.txt"}));
}

TEST(Documents, LinkFromTheirOwnFolder) {
    const SampleTree sample;
    sample.write("docs/a.md", "[b](b.md), [there](b.md#there), [here](#here), [a](../LICENSE)\n");
    sample.write("docs/b.md", "[a](docs/a.md)\n");
    sample.write("LICENSE", "");
    EXPECT_THAT(findMissingPaths(sample.root()),
                ElementsAre(Breach{"docs/b.md", 1, "a link to nothing: docs/a.md"}));
}

TEST(Documents, MayNameWhatIsNotOfTheTree) {
    const SampleTree sample;
    sample.write("README.md",
                 "https://example.org/docs/a.html, [site](https://example.org/src/a.h)\n"
                 "build/mac/src/Vantor.app, /sys/class/power_supply, my-scripts/run\n");
    EXPECT_THAT(findMissingPaths(sample.root()), IsEmpty());
}

}  // namespace
}  // namespace vantor::documents_test
