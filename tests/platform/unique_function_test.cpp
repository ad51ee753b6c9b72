#include "platform/unique_function.h"

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <string>
#include <utility>

namespace vantor::unique_function_test {
namespace {

/// Counts its living copies, and moves that may throw if `mayThrow`.
template <std::size_t Size, bool mayThrow = false>
struct Tracked {
    int* living;
    std::array<std::byte, Size> ballast{};

    explicit Tracked(int& count) : living(&count) { ++*living; }
    Tracked(Tracked&& other) noexcept(!mayThrow) : living(other.living) { ++*living; }
    Tracked(const Tracked&) = delete;
    Tracked& operator=(const Tracked&) = delete;
    ~Tracked() { --*living; }
    const void* operator()() const { return this; }
};

using Finder = UniqueFunction<const void*(), 64>;

bool isInside(const void* address, const Finder& function) {
    const auto* at = static_cast<const std::byte*>(address);
    const auto* begin = reinterpret_cast<const std::byte*>(&function);
    return std::less_equal<>{}(begin, at) && std::less<>{}(at, begin + sizeof function);
}

TEST(UniqueFunction, IsEmptyUntilItHoldsACallable) {
    UniqueFunction<int()> function;
    EXPECT_FALSE(function);
    function = [] { return 7; };
    EXPECT_TRUE(function);
    EXPECT_EQ(function(), 7);
}

TEST(UniqueFunction, PassesArgumentsAndResults) {
    UniqueFunction<std::string(std::unique_ptr<int>, std::string&)> function =
        [](std::unique_ptr<int> number, std::string& text) {
            text += '!';
            return text + std::to_string(*number);
        };
    std::string text = "a";
    EXPECT_EQ(function(std::make_unique<int>(3), text), "a!3");
    EXPECT_EQ(text, "a!");
}

TEST(UniqueFunction, HoldsWhatCannotBeCopied) {
    UniqueFunction<int()> function = [number = std::make_unique<int>(5)] { return ++*number; };
    UniqueFunction<int()> moved = std::move(function);
    EXPECT_FALSE(function);  // NOLINT(bugprone-use-after-move): a moved-from one is empty
    EXPECT_EQ(moved(), 6);
    EXPECT_EQ(moved(), 7);
}

TEST(UniqueFunction, KeepsASmallCallableInsideItself) {
    int living = 0;
    Finder function = Tracked<32>(living);
    EXPECT_TRUE(isInside(function(), function));
    Finder moved = std::move(function);
    EXPECT_TRUE(isInside(moved(), moved));
    EXPECT_EQ(living, 1);
}

TEST(UniqueFunction, BoxesALargeCallable) {
    int living = 0;
    {
        Finder function = Tracked<256>(living);
        const void* box = function();
        EXPECT_FALSE(isInside(box, function));
        const Finder moved = std::move(function);
        EXPECT_EQ(living, 1);
    }
    EXPECT_EQ(living, 0);
}

TEST(UniqueFunction, BoxesACallableWhoseMoveMayThrow) {
    int living = 0;
    Finder function = Tracked<8, true>(living);
    EXPECT_FALSE(isInside(function(), function));
}

TEST(UniqueFunction, DestroysItsCallableOnce) {
    int living = 0;
    {
        Finder function = Tracked<32>(living);
        Finder other = Tracked<32>(living);
        EXPECT_EQ(living, 2);
        other = std::move(function);
        EXPECT_EQ(living, 1) << "the old callable goes when another takes its place";
        other = Finder{};
        EXPECT_EQ(living, 0);
        function = Tracked<256>(living);
        EXPECT_EQ(living, 1);
    }
    EXPECT_EQ(living, 0);
}

TEST(UniqueFunction, SurvivesItsOwnAssignment) {
    UniqueFunction<int()> function = [number = std::make_unique<int>(5)] { return *number; };
    auto& same = function;
    function = std::move(same);
    EXPECT_EQ(function(), 5);
}

TEST(Task, HasRoomForAWorkItemOfTheSamplers) {
    struct Item {
        std::array<std::byte, 144> captured;
        void operator()() const {}
    };
    static_assert(sizeof(Task) <= 176);
    Task task = Item{};
    task();
    EXPECT_TRUE(task);
}

}  // namespace
}  // namespace vantor::unique_function_test
