#include "platform/posix/icu_name_order.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

namespace vantor::icu_name_order_test {
namespace {

using testing::ElementsAre;

std::vector<std::string> sorted(std::vector<std::string> names, const std::string& language = {}) {
    ICUNameOrder order(language);
    const auto ranks = order.ranks(names);
    std::vector<std::string> result;
    for (std::uint32_t rank = 0; result.size() < names.size(); ++rank) {
        for (std::size_t i = 0; i < names.size(); ++i) {
            if (ranks[i] == rank) result.push_back(names[i]);
        }
    }
    return result;
}

TEST(ICUNameOrder, HasAccentedLettersWhereTheirLettersAre) {
    EXPECT_THAT(sorted({"Zeta", "\u00C9lan", "Foto", "Eden"}),
                ElementsAre("Eden", "\u00C9lan", "Foto", "Zeta"));
    EXPECT_THAT(sorted({"\u00DCbung", "Vier", "\u00C4rzte", "Ufer", "Archiv"}),
                ElementsAre("Archiv", "\u00C4rzte", "\u00DCbung", "Ufer", "Vier"));
}

TEST(ICUNameOrder, IsThatOfTheLanguage) {
    const std::vector<std::string> names{"Zoo", "\u00C4rla", "Arla"};
    EXPECT_THAT(sorted(names, "de_DE"), ElementsAre("Arla", "\u00C4rla", "Zoo"));
    EXPECT_THAT(sorted(names, "sv_SE"), ElementsAre("Arla", "Zoo", "\u00C4rla"));
}

TEST(ICUNameOrder, HasNumbersByTheirValue) {
    EXPECT_THAT(sorted({"disk10", "disk2", "Disk 9", "disk 10"}),
                ElementsAre("Disk 9", "disk 10", "disk2", "disk10"));
    EXPECT_THAT(sorted({"br1.10", "br1.9", "en10a1", "en2a9"}),
                ElementsAre("br1.9", "br1.10", "en2a9", "en10a1"));
    EXPECT_THAT(sorted({"a100000000000000000000", "a99999999999999999999"}),
                ElementsAre("a99999999999999999999", "a100000000000000000000"));
}

TEST(ICUNameOrder, HasCaseDecideWhereNothingElseDoes) {
    EXPECT_THAT(sorted({"beta", "Alpha", "alpha", "Beta2", "beta1"}),
                ElementsAre("alpha", "Alpha", "beta", "beta1", "Beta2"));
}

TEST(ICUNameOrder, TakesComposedAndDecomposedCharactersForOne) {
    ICUNameOrder order("fr_FR");
    const std::vector<std::string> names{"\u00E9tude 2", "e\u0301tude 1", "e\u0301tude 2", "f"};
    EXPECT_THAT(order.ranks(names), ElementsAre(1, 0, 1, 2));
}

TEST(ICUNameOrder, HasShorterNamesAndEmptyOnesFirst) {
    EXPECT_THAT(sorted({"eth0", "eth", ""}), ElementsAre("", "eth", "eth0"));
}

TEST(ICUNameOrder, TakesBytesThatAreNoText) {
    EXPECT_THAT(sorted({"b", "a\xFF\xFE", "a"}), ElementsAre("a", "a\xFF\xFE", "b"));
    EXPECT_THAT(sorted({std::string(5000, 'x'), std::string(4999, 'x')}),
                ElementsAre(std::string(4999, 'x'), std::string(5000, 'x')));
}

TEST(ICUNameOrder, OfALanguageThatNobodyKnowsIsTheCommonOne) {
    EXPECT_THAT(sorted({"Zeta", "\u00C9lan", "Eden"}, "xx_not a language"),
                ElementsAre("Eden", "\u00C9lan", "Zeta"));
}

/// Sets a variable of the environment for as long as it lives.
class Variable {
  public:
    Variable(const char* name, const char* value) : name_(name) {
        if (const char* const before = std::getenv(name)) before_ = before;
        ::setenv(name, value, 1);
    }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;
    ~Variable() {
        if (before_) {
            ::setenv(name_, before_->c_str(), 1);
        } else {
            ::unsetenv(name_);
        }
    }

  private:
    const char* name_;
    std::optional<std::string> before_;
};

TEST(LanguageOfNames, IsTheMostParticularThatIsSet) {
    const Variable lang("LANG", "de_DE.UTF-8");
    const Variable collate("LC_COLLATE", "");
    const Variable all("LC_ALL", "");
    EXPECT_EQ(languageOfNames(), "de_DE");
    const Variable other("LC_COLLATE", "sv_SE.UTF-8@euro");
    EXPECT_EQ(languageOfNames(), "sv_SE");
    const Variable whole("LC_ALL", "C.UTF-8");
    EXPECT_EQ(languageOfNames(), "");
}

}  // namespace
}  // namespace vantor::icu_name_order_test
