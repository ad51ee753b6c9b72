#include "platform/macos/frameworks/retained_reference.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <utility>

#include "platform/macos/frameworks/autorelease_pool.h"
#include "platform/macos/frameworks/frameworks_test_support.h"

namespace vantor::retained_reference_test {
namespace {

class RetainedReferenceTest : public FakeDarwinTest {
  protected:
    RetainedReference make() {
        return {&darwin.objects.create(FakeObject::Kind::text),
                darwin.frameworks()->coreFoundation.release};
    }
};

TEST_F(RetainedReferenceTest, ReleasesAtItsEnd) {
    const RetainedReference reference = make();
    EXPECT_TRUE(reference);
    EXPECT_EQ(darwin.objects.leaks().size(), 1u);
}

TEST_F(RetainedReferenceTest, ReleasesOnceWhenItIsReset) {
    RetainedReference reference = make();
    reference.reset();
    EXPECT_FALSE(reference);
    EXPECT_EQ(reference.get(), nullptr);
    EXPECT_EQ(darwin.objects.leaks().size(), 0u);
    reference.reset();
}

TEST_F(RetainedReferenceTest, HandsItsObjectOver) {
    RetainedReference reference = make();
    const void* const object = reference.get();
    const RetainedReference other = std::move(reference);
    EXPECT_EQ(other.get(), object);
    EXPECT_FALSE(reference);  // NOLINT(bugprone-use-after-move): that is what is tested
}

TEST_F(RetainedReferenceTest, ReleasesWhatItHeldBefore) {
    RetainedReference reference = make();
    reference = make();
    EXPECT_EQ(darwin.objects.leaks().size(), 1u);
    RetainedReference& itself = reference;
    reference = std::move(itself);
    EXPECT_TRUE(reference);
}

TEST_F(RetainedReferenceTest, GivesAwayWhatItHasNotToReleaseThen) {
    const void* object = nullptr;
    {
        RetainedReference reference = make();
        object = reference.giveAway();
        EXPECT_FALSE(reference);
    }
    EXPECT_EQ(darwin.objects.leaks().size(), 1u);
    darwin.objects.release(object);
}

TEST_F(RetainedReferenceTest, OfNothingNeedsNoFunction) {
    const RetainedReference none;
    const RetainedReference null(nullptr, nullptr);
    EXPECT_FALSE(none);
    EXPECT_FALSE(null);
}

class AutoreleasePoolTest : public FakeDarwinTest {};

TEST_F(AutoreleasePoolTest, LetsGoOfWhatWasAutoreleasedMeanwhile) {
    const auto frameworks = darwin.frameworks();
    const Ref instance = darwin.objects.instance({{"name", darwin.objects.text("a name")}});
    const void* name = nullptr;
    {
        const AutoreleasePool outer(frameworks->objectiveC);
        {
            const AutoreleasePool inner(frameworks->objectiveC);
            name = frameworks->objectiveC.sendObject(instance,
                                                     frameworks->objectiveC.registerName("name"));
            EXPECT_TRUE(darwin.objects.check(name, "name"));
        }
        EXPECT_THAT(darwin.objects.complaints(), testing::IsEmpty());
        EXPECT_EQ(darwin.pools().size(), 1u);
        darwin.objects.sweep();
    }
    EXPECT_THAT(darwin.pools(), testing::IsEmpty());
}

TEST_F(AutoreleasePoolTest, IsNoneWhereHalfOfItIsMissing) {
    auto frameworks = darwin.frameworks();
    frameworks->objectiveC.autoreleasePoolPop = nullptr;
    const AutoreleasePool pool(frameworks->objectiveC);
    EXPECT_THAT(darwin.pools(), testing::IsEmpty());
    frameworks = darwin.frameworks();
    frameworks->objectiveC.autoreleasePoolPush = nullptr;
    const AutoreleasePool other(frameworks->objectiveC);
    EXPECT_THAT(darwin.pools(), testing::IsEmpty());
}

}  // namespace
}  // namespace vantor::retained_reference_test
