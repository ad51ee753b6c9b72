#include "model/shared_text.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

namespace vantor::shared_text_test {
namespace {

TEST(SharedText, APairLivesAsLongAsEitherOfItsTexts) {
    auto [name, command] = SharedText::pair("tool", "/usr/bin/tool");
    EXPECT_EQ(name.string(), "tool");
    EXPECT_EQ(command.string(), "/usr/bin/tool");
    name = SharedText();
    EXPECT_EQ(command.string(), "/usr/bin/tool");
    const auto [empty, other] = SharedText::pair("", "text");
    EXPECT_TRUE(empty.isSame(SharedText())) << "no empty text costs anything";
    EXPECT_EQ(other.string(), "text");
}

TEST(SharedText, IsEmptyAtFirst) {
    const SharedText text;
    EXPECT_EQ(text.string(), "");
    EXPECT_TRUE(text == SharedText(""));
    EXPECT_TRUE(text.isSame(SharedText(std::string{}))) << "no empty text costs anything";
}

TEST(SharedText, IsTheTextThatItWasMadeOf) {
    const SharedText text = "Finder";
    EXPECT_EQ(text.string(), "Finder");
    const std::string& plain = text;
    EXPECT_EQ(plain, "Finder");
    EXPECT_TRUE(text == std::string_view("Finder"));
    EXPECT_FALSE(text == std::string_view("Find"));
}

TEST(SharedText, KeepsZeroBytes) {
    const std::string bytes("a\0b", 3);
    EXPECT_EQ(SharedText(bytes).string(), bytes);
}

TEST(SharedText, ACopyIsTheSameObject) {
    const SharedText text = "launchd";
    const SharedText copy = text;
    EXPECT_TRUE(copy.isSame(text));
    EXPECT_EQ(&copy.string(), &text.string());
    EXPECT_EQ(copy, text);
}

TEST(SharedText, EqualTextsAreEqualWithoutBeingTheSame) {
    const SharedText one = "cron";
    const SharedText other = std::string("cron");
    EXPECT_FALSE(one.isSame(other));
    EXPECT_EQ(one, other);
    EXPECT_FALSE(one == SharedText("crond"));
    EXPECT_FALSE(one == SharedText());
}

TEST(SharedText, OutlivesTheOneThatItWasCopiedFrom) {
    SharedText copy;
    {
        const SharedText text = std::string(1000, 'x');
        copy = text;
    }
    EXPECT_EQ(copy.string(), std::string(1000, 'x'));
}

TEST(SharedText, AMovedFromTextIsEmpty) {
    SharedText text = "gone";
    const SharedText taken = std::move(text);
    EXPECT_EQ(taken.string(), "gone");
    EXPECT_EQ(text.string(), "");  // NOLINT(bugprone-use-after-move): that is the question
}

TEST(SharedText, ReassigningOneLeavesItsCopyAlone) {
    SharedText text = "before";
    const SharedText copy = text;
    text = "after";
    EXPECT_EQ(copy.string(), "before");
    EXPECT_EQ(text.string(), "after");
}

TEST(SharedText, IsPrintedAsItsText) {
    std::ostringstream out;
    out << SharedText("kernel_task") << SharedText();
    EXPECT_EQ(out.str(), "kernel_task");
}

TEST(SharedText, MayBeCopiedOnManyThreadsAtOnce) {
    const SharedText text = "shared by all";
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&text] {
            for (int round = 0; round < 2000; ++round) {
                const SharedText copy = text;
                const SharedText empty;
                ASSERT_TRUE(copy.isSame(text));
                ASSERT_TRUE(empty.string().empty());
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
}

}  // namespace
}  // namespace vantor::shared_text_test
