#include "platform/posix/plain_name_key.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <random>
#include <string>
#include <vector>

#include "platform/posix/icu_name_order.h"

namespace vantor::plain_name_key_test {
namespace {

// Greek, of which no key is made: with it in a list all names are left to ICU.
constexpr const char* notPlain = "\u03C9";
constexpr const char* characters =
    "abzABZ0019 _-,;:!?.()[]{}@*/&#%+"
    "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ23456789";

std::vector<std::string> randomNames(std::mt19937& random) {
    const std::string all = characters;
    // Few characters make names that are almost alike.
    const std::size_t used = random() % 3 == 0 ? all.size() : 2 + random() % 12;
    const std::size_t from = random() % (all.size() - used + 1);
    std::vector<std::string> names(12);
    for (std::string& name : names) {
        name.resize(random() % 7);
        for (char& character : name)
            character = all[from + random() % used];
    }
    return names;
}

std::vector<std::uint32_t> ranksByICU(ICUNameOrder& order, std::vector<std::string> names) {
    names.emplace_back(notPlain);
    auto ranks = order.ranks(names);
    ranks.pop_back();
    return ranks;
}

/// Kilobytes of the tables of ICU that this process has in its memory.
std::size_t loadedTablesOfICU() {
    std::ifstream maps("/proc/self/smaps");
    std::string line;
    bool isOfICU = false;
    std::size_t kilobytes = 0;
    while (std::getline(maps, line)) {
        if (line.find("-") < 17 && line.find(" r") != std::string::npos)
            isOfICU = line.find("libicudata") != std::string::npos;
        if (isOfICU && line.starts_with("Rss:")) kilobytes += std::stoul(line.substr(4));
    }
    return kilobytes;
}

TEST(PlainNameKey, PutsNamesIntoTheOrderOfICU) {
    std::mt19937 random(7);
    for (const char* const language :
         {"", "ar_EG", "de_DE", "de_AT", "en_US", "es_ES", "fr_FR", "fr_CA", "it_IT", "ja_JP",
          "nl_NL", "pl_PL", "pt_BR", "ru_RU", "zh_CN", "zh_TW"}) {
        ASSERT_TRUE(hasPlainOrder(language)) << language;
        ICUNameOrder order(language);
        for (int i = 0; i < 3000; ++i) {
            const std::vector<std::string> names = randomNames(random);
            ASSERT_EQ(order.ranks(names), ranksByICU(order, names))
                << language << ": " << testing::PrintToString(names);
        }
    }
}

TEST(PlainNameKey, IsOfEachNameThatTheKernelGivesAnInterface) {
    for (const char* const name : {"lo", "eth0", "enp0s31f6", "wlp3s0", "br-1f2e3d", "veth1a2b@if7",
                                   "docker0", "tun0.100", "eth0:1", "wg_home", ""})
        EXPECT_TRUE(plainKeyOf(name)) << name;
}

TEST(PlainNameKey, IsOfNoNameWithOtherCharacters) {
    for (const char* const name : {"\u00C9lan", "a\xFF", "a\tb", "a\x01", "a'b", "a|b", "a~"})
        EXPECT_FALSE(plainKeyOf(name)) << name;
}

TEST(PlainNameKey, IsOfNoNumberThatItsLengthCannotTell) {
    EXPECT_TRUE(plainKeyOf(std::string(64, '7')));
    EXPECT_TRUE(plainKeyOf(std::string(1000, '0') + "7"));
    EXPECT_FALSE(plainKeyOf(std::string(65, '7')));
}

TEST(PlainNameKey, IsNotForLanguagesWithLettersOfTheirOwnAmongThePlainOnes) {
    for (const char* const language : {"da_DK", "nb_NO", "cs_CZ", "sk_SK", "hu_HU", "et_EE",
                                       "lt_LT", "cy_GB", "hr_HR", "sq_AL", "xx"})
        EXPECT_FALSE(hasPlainOrder(language)) << language;
    ICUNameOrder danish("da_DK");
    const std::vector<std::string> names{"zoo", "aarhus"};
    EXPECT_THAT(danish.ranks(names), testing::ElementsAre(0, 1));
}

/// Ends this process with 0 where the tables are loaded with the first name that needs them.
[[noreturn]] void exitWithTablesLoadedAtNeed() {
    const std::size_t before = loadedTablesOfICU();
    ICUNameOrder order("de_DE");
    const auto ranks = order.ranks(std::vector<std::string>{"wlp3s0", "eth10", "eth9", "lo"});
    const bool isSorted = ranks == std::vector<std::uint32_t>{3, 1, 0, 2};
    const std::size_t plain = loadedTablesOfICU();
    order.ranks(std::vector<std::string>{"b", notPlain});
    _exit(isSorted && plain == before && loadedTablesOfICU() > before ? 0 : 1);
}

TEST(PlainNameKey, LeavesTheTablesOfICUUnread) {
    // In a process of its own: tests before this one have loaded them.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(exitWithTablesLoadedAtNeed(), testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace vantor::plain_name_key_test
