#include "settings/ini_text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>

namespace vantor::ini_text_test {
namespace {

using testing::IsEmpty;
using Value = DefaultsStore::Value;

DefaultsValues valuesOf(std::string_view bytes) {
    const auto ini = IniText::parse(bytes);
    return ini ? ini->values() : DefaultsValues{{"damaged", true}};
}

Value valueOf(const std::string& written) {
    return valuesOf("x=" + written + "\n").at("x");
}

Value text(const char* characters) {
    return std::string(characters);
}

std::string withValue(std::string_view bytes, std::string_view key, const Value& value) {
    auto ini = IniText::parse(bytes).value();
    ini.setValue(key, value);
    return ini.text();
}

TEST(IniText, ReadsTheFileOfAnEarlierVersion) {
    EXPECT_EQ(valuesOf("[General]\nappearance=light\nhistoryLength=120\n"
                       "includePointToPointInterfaces=true\nrefreshInterval=0.5\n"
                       "showMenuBar=false\n"),
              (DefaultsValues{{"appearance", std::string("light")},
                              {"historyLength", std::int64_t{120}},
                              {"includePointToPointInterfaces", true},
                              {"refreshInterval", 0.5},
                              {"showMenuBar", false}}));
    EXPECT_EQ(
        valuesOf("[General]\nVantor.LegacyDashboard=300 200 900 700 2 24 2 2 normal\n"
                 "dashboard=0 26 1366 820 1 24 1 3 maximised\n"),
        (DefaultsValues{{"Vantor.LegacyDashboard", std::string("300 200 900 700 2 24 2 2 normal")},
                        {"dashboard", std::string("0 26 1366 820 1 24 1 3 maximised")}}));
}

TEST(IniText, ReadsWhatHandsHaveWrittenAsWhatItLooksLike) {
    EXPECT_EQ(valueOf("true"), Value{true});
    EXPECT_EQ(valueOf("false"), Value{false});
    EXPECT_EQ(valueOf("True"), text("True"));
    EXPECT_EQ(valueOf(" 7  "), Value{std::int64_t{7}});
    EXPECT_EQ(valueOf("-90"), Value{std::int64_t{-90}});
    EXPECT_EQ(valueOf("9007199254740993"), Value{std::int64_t{9'007'199'254'740'993}});
    EXPECT_EQ(valueOf("3.5"), Value{3.5});
    EXPECT_EQ(valueOf("1e-3"), Value{0.001});
    EXPECT_EQ(valueOf("+5"), text("+5"));
    EXPECT_EQ(valueOf("0x10"), text("0x10"));
    EXPECT_EQ(valueOf("12px"), text("12px"));
    EXPECT_EQ(valueOf("1e999"), text("1e999"));
    EXPECT_EQ(valueOf("1-2"), text("1-2"));
    EXPECT_EQ(valueOf(""), text(""));
    EXPECT_EQ(valueOf("2,5"), text("")) << "a list";
    EXPECT_EQ(valueOf("@Variant(0)"), text("")) << "something else";
}

TEST(IniText, ReadsEscapedTexts) {
    EXPECT_EQ(valueOf(R"("a;b, c=d")"), text("a;b, c=d"));
    EXPECT_EQ(valueOf(R"(" blanks ")"), text(" blanks "));
    EXPECT_EQ(valueOf(R"(a\nb\t\"c\"\\)"), text("a\nb\t\"c\"\\"));
    EXPECT_EQ(valueOf(R"(\x1f\xe9\x20ac)"), text("\x1f\xc3\xa9\xe2\x82\xac"));
    EXPECT_EQ(valueOf(R"(\101\xd83d)"), text("A\xef\xbf\xbd"));
    EXPECT_EQ(valueOf(R"(@@home)"), text("@home"));
    EXPECT_EQ(valueOf("caf\xc3\xa9"), text("caf\xc3\xa9"));
    EXPECT_EQ(valueOf("ends with \\"), text("ends with "));
    EXPECT_EQ(valueOf("\\xffffffffffffffffff"), text("\xef\xbf\xbd"));
}

TEST(IniText, ReadsEscapedKeys) {
    EXPECT_EQ(valuesOf("a%20b=1\ngroup\\c=2\n%U20AC=3\n100%=4\n"),
              (DefaultsValues{{"a b", std::int64_t{1}},
                              {"group/c", std::int64_t{2}},
                              {"\xe2\x82\xac", std::int64_t{3}},
                              {"100%", std::int64_t{4}}}));
}

TEST(IniText, OursAreTheGeneralGroupAndWhatComesBeforeAnyGroup) {
    EXPECT_EQ(valuesOf("a=1\n[Other]\nb=2\n[general]\nc=3\n[%General]\nd=4\n"),
              (DefaultsValues{{"a", std::int64_t{1}}, {"c", std::int64_t{3}}}));
    EXPECT_EQ(valuesOf("a=1\na=2\n"), (DefaultsValues{{"a", std::int64_t{2}}})) << "the last";
}

TEST(IniText, OfSeveralByteOrderMarksNoneStays) {
    const auto ini = IniText::parse("\xef\xbb\xbf\xef\xbb\xbfkey=1\n");
    ASSERT_TRUE(ini);
    EXPECT_EQ(ini->text(), "key=1\n");
}

TEST(IniText, PassesOverBlanksCommentsAndAByteOrderMark) {
    EXPECT_THAT(valuesOf(""), IsEmpty());
    EXPECT_THAT(valuesOf("\n\n  \r\n; a=1\n# b=2\n"), IsEmpty());
    EXPECT_EQ(valuesOf("\xef\xbb\xbf[General]\r\na=1\r\n"),
              (DefaultsValues{{"a", std::int64_t{1}}}));
}

TEST(IniText, IsNotWhatIsDamaged) {
    for (const std::string_view bytes :
         {"[General]\nhistoryLen", "[Gener", "=5\n", " =5\n", "name=caf\xe9\n", "\x89PNG\r\n"}) {
        EXPECT_FALSE(IniText::parse(bytes)) << bytes;
    }
    EXPECT_FALSE(IniText::parse(std::string_view("a=\0\n", 4)));
    EXPECT_TRUE(IniText::parse(std::string(IniText::largest, '\n')));
    EXPECT_FALSE(IniText::parse(std::string(IniText::largest + 1, '\n')));
}

TEST(IniText, AChangeLeavesAllElseAsItWasWritten) {
    const std::string_view bytes =
        "; mine\r\n[Other]\nb = 2\n\n[General]\n  a  = 1 \nunknown=\\x41,b\n\n[Last]\nc=3";
    EXPECT_EQ(IniText::parse(bytes)->text(), bytes);
    EXPECT_EQ(withValue(bytes, "a", true),
              "; mine\r\n[Other]\nb = 2\n\n[General]\na=true\nunknown=\\x41,b\n\n[Last]\nc=3");
    EXPECT_EQ(withValue(bytes, "new", 0.5),
              "; mine\r\n[Other]\nb = 2\n\n[General]\n  a  = 1 \nunknown=\\x41,b\nnew=0.5\n\n"
              "[Last]\nc=3");
}

TEST(IniText, ANewKeyHasAPlaceInEveryFile) {
    EXPECT_EQ(withValue("", "a", true), "[General]\na=true\n");
    EXPECT_EQ(withValue("\n\n", "a", true), "[General]\na=true\n\n\n\n");
    EXPECT_EQ(withValue("b=1", "a", true), "b=1\na=true\n");
    EXPECT_EQ(withValue("[Other]\na=1\n", "a", true), "[General]\na=true\n\n[Other]\na=1\n");
    EXPECT_EQ(withValue("[General]", "a", true), "[General]\na=true\n");
    EXPECT_EQ(withValue("a=1\na=2\n", "a", std::int64_t{3}), "a=1\na=3\n") << "the one that counts";
}

TEST(IniText, WhatIsWrittenComesBack) {
    for (const Value& value :
         {Value{true}, Value{false}, Value{std::int64_t{0}}, Value{INT64_MIN}, Value{INT64_MAX},
          Value{0.5}, Value{-1e300}, text(""), text("dark"), text(" a "), text("a\nb\r\tc"),
          text("\x01"
               "1f"),
          text("@home"), text("@@"), text("a\"b\\c"), text("a,b;c=d"), text("[x]"), text("#"),
          text("\xe2\x82\xac\x7f")}) {
        EXPECT_EQ(valuesOf(withValue("", "x", value)), (DefaultsValues{{"x", value}}))
            << withValue("", "x", value);
    }
    EXPECT_EQ(valuesOf(withValue("", "a b/c%;=", true)), (DefaultsValues{{"a b/c%;=", true}}));
}

TEST(IniText, NamesOfWindowsAreWrittenAsTheyAre) {
    EXPECT_EQ(withValue("", "Vantor.LegacyDashboard", text("100 -80 1280 820 1 24 1 3 maximized")),
              "[General]\nVantor.LegacyDashboard=100 -80 1280 820 1 24 1 3 maximized\n");
}

TEST(IniText, NumbersAreWrittenAsShortAsTheyCanBe) {
    EXPECT_EQ(withValue("", "x", 5.0), "[General]\nx=5\n");
    EXPECT_EQ(withValue("", "x", 0.1), "[General]\nx=0.1\n");
    EXPECT_EQ(withValue("", "x", std::numeric_limits<double>::infinity()), "[General]\nx=inf\n");
    EXPECT_EQ(withValue("", "x", -std::numeric_limits<double>::infinity()), "[General]\nx=-inf\n");
    EXPECT_EQ(withValue("", "x", std::numeric_limits<double>::quiet_NaN()), "[General]\nx=nan\n");
}

}  // namespace
}  // namespace vantor::ini_text_test
