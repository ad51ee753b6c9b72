#include "app/build_info.h"

#include <gtest/gtest.h>

#include <optional>

namespace vantor::build_info_test {
namespace {

TEST(BuildInfo, HasTheVersionAndTheBuildOfThisProgram) {
    EXPECT_EQ(BuildInfo().text("CFBundleShortVersionString"), VANTOR_VERSION);
    EXPECT_EQ(BuildInfo().text("CFBundleVersion"), VANTOR_BUILD_NUMBER);
    EXPECT_EQ(BuildInfo().text("CFBundleName"), std::nullopt);
    EXPECT_EQ(BuildInfo().text(""), std::nullopt);
}

}  // namespace
}  // namespace vantor::build_info_test
