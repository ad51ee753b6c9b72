#include "ui/app_metadata.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "ui/rendering.h"

namespace vantor::app_metadata_test {
namespace {

using Facts = std::map<std::string, std::string, std::less<>>;

/// A bundle that carries what the test gives it.
class FakeBundle : public BundleInfo {
  public:
    explicit FakeBundle(Facts facts) : facts_(std::move(facts)) {}
    std::optional<std::string> text(std::string_view key) const override {
        const auto found = facts_.find(key);
        return found == facts_.end() ? std::nullopt : std::optional(found->second);
    }

  private:
    Facts facts_;
};

TEST(AppMetadata, TakesVersionAndBuildFromTheBundle) {
    const FakeBundle bundle(
        Facts{{"CFBundleShortVersionString", "2.5.1"}, {"CFBundleVersion", "417"}});
    const AppMetadata metadata(bundle);
    EXPECT_EQ(utf8(metadata.version()), "2.5.1");
    EXPECT_EQ(utf8(metadata.build()), "417");
}

TEST(AppMetadata, ABundleWithoutABuildHasBuild0) {
    const AppMetadata metadata(FakeBundle(Facts{{"CFBundleShortVersionString", "2.5.1"}}));
    EXPECT_EQ(utf8(metadata.version()), "2.5.1");
    EXPECT_EQ(utf8(metadata.build()), "0");
}

TEST(AppMetadata, ABundleWithoutAVersionHasAnUnknownOne) {
    const AppMetadata metadata(FakeBundle(Facts{{"CFBundleVersion", "417"}}));
    EXPECT_EQ(utf8(metadata.version()), "Unknown");
    EXPECT_EQ(utf8(metadata.build()), "417");
}

TEST(AppMetadata, OutlivesTheBundleItWasReadFrom) {
    auto bundle = std::make_unique<FakeBundle>(
        Facts{{"CFBundleShortVersionString", "1.0"}, {"CFBundleVersion", "3"}});
    const AppMetadata metadata(*bundle);
    bundle.reset();
    EXPECT_EQ(utf8(metadata.version()), "1.0");
}

}  // namespace
}  // namespace vantor::app_metadata_test
