#include "ui/shown_text.h"

#include <gtest/gtest.h>

#include "ui/components/tool_tip_text.h"
#include "ui/rendering.h"

namespace vantor::shown_text_test {
namespace {

std::string shown(const std::u32string& text) {
    return utf8(shownText(QString::fromUcs4(text.data(), static_cast<qsizetype>(text.size()))));
}

std::string utf8Of(const std::u32string& text) {
    return utf8(QString::fromUcs4(text.data(), static_cast<qsizetype>(text.size())));
}

TEST(ShownText, LeavesOrdinaryNamesAsTheyAre) {
    for (const char32_t* const name :
         {U"", U"compiler", U"/usr/lib/R&D/<b>a</b> ~!{}", U"=cmd()", U"-bash", U"schön", U"日本語",
          U"שלום", U"العربية", U"हिन्दी", U"ไทย", U"한국어", U"☁️", U"👩‍💻", U"👍🏽",
          U"می‌خواهم", U"e\u0301\u0323"})
        EXPECT_EQ(shown(name), utf8Of(name));
}

TEST(ShownText, HandsAnOrdinaryNameBackWithoutACopy) {
    const QString name = QStringLiteral("a name of some length, and nothing else");
    EXPECT_EQ(shownText(name).constData(), name.constData());
}

TEST(ShownText, MakesBreaksAndControlCharactersVisible) {
    EXPECT_EQ(shown(U"calm\nrm -rf ~ #\n"), "calm\uFFFDrm -rf ~ #\uFFFD");
    for (const char32_t c :
         {U'\0', U'\t', U'\n', U'\v', U'\f', U'\r', U'\x1b', U'\x7f', U'\x80', U'\x85', U'\x9f',
          U'\u2028', U'\u2029', U'\ue000', U'\uf8ff', U'\ufffe', U'\U0010ffff', U'\U000f0000'})
        EXPECT_EQ(shown({U'a', c, U'b'}), "a\uFFFDb") << static_cast<unsigned>(c);
}

TEST(ShownText, TakesSignsOfDirectionAway) {
    EXPECT_EQ(shown(U"inno\u202Etxt.exe"), "innotxt.exe");
    for (const char32_t c : {0x061C, 0x200E, 0x200F, 0x202A, 0x202B, 0x202C, 0x202D, 0x202E, 0x2066,
                             0x2067, 0x2068, 0x2069})
        EXPECT_EQ(shown({U'a', c, U'b'}), "ab") << static_cast<unsigned>(c);
}

TEST(ShownText, LetsNoTwoNamesDifferUnseen) {
    for (const char32_t c :
         {0x00AD, 0x034F, 0x115F, 0x1160, 0x17B4, 0x180B, 0x180E, 0x200B,  0x200C,  0x200D, 0x2060,
          0x2064, 0x206A, 0x3164, 0xFE0F, 0xFEFF, 0xFFA0, 0xFFF9, 0xE0001, 0xE0041, 0xE0100})
        EXPECT_EQ(shown({U's', c, U'h'}), "s\uFFFDh") << static_cast<unsigned>(c);
    EXPECT_EQ(shown(U"\u65E5\u200D\u200D\u65E5"), utf8Of(U"\u65E5\u200D\uFFFD\u65E5"))
        << "one joiner is enough";
}

TEST(ShownText, ShowsBlanksOfAnyWidthAsOne) {
    for (const char32_t c : {0x00A0, 0x1680, 0x2003, 0x2009, 0x202F, 0x205F, 0x2800, 0x3000})
        EXPECT_EQ(shown({U'a', c, U'b'}), "a b") << static_cast<unsigned>(c);
}

TEST(ShownText, KeepsFourMarksInARow) {
    const std::u32string marks(100, U'\u0301');
    const std::u32string four(4, U'\u0301');
    EXPECT_EQ(shown(U"a" + marks + U"b" + marks), utf8Of(U"a" + four + U"b" + four));
    EXPECT_EQ(shown(marks), utf8Of(four)) << "of nothing";
    std::u32string joined = U"\u05D0";
    for (int i = 0; i < 100; ++i)
        joined += U"\u0301\u200D\u202E";
    EXPECT_EQ(QString::fromStdString(shown(joined)).count(QChar(0x0301)), 4)
        << "whatever is put between them";
}

TEST(ShownText, ShowsHalvesOfPairsAndMalformedText) {
    const QString halves = QString(QChar(0xD83D)) + u'a' + QChar(0xDE00);
    EXPECT_EQ(utf8(shownText(halves)), "\uFFFDa\uFFFD");
    EXPECT_EQ(utf8(shownText(std::string("a\xff")) + u'!'), "a\uFFFD!");
    EXPECT_EQ(utf8(shownText(QStringLiteral("\U0001F600"))), "\U0001F600");
}

TEST(IsolatedText, SetsApartWhatIsReadFromRightToLeftAlone) {
    EXPECT_EQ(utf8(isolatedText(QStringLiteral("eth0"))), "eth0");
    EXPECT_EQ(utf8(isolatedText(QStringLiteral("שלום"))), "\u2068שלום\u2069");
    EXPECT_EQ(utf8(isolatedText(QStringLiteral("a ש"))), "\u2068a ש\u2069");
}

TEST(ToolTipText, LosesTheMiddleOfWhatNoScreenCouldShow) {
    const QString path = u'/' + QString(3000, u'x') + QStringLiteral("/name");
    const QString help = toolTipText(path);
    EXPECT_LT(help.size(), 1100);
    EXPECT_TRUE(help.startsWith(QStringLiteral("/xxx")) && help.endsWith(QStringLiteral("x/name")));
    QString pairs = QStringLiteral("a");
    for (int i = 0; i < 1000; ++i)
        pairs += QStringLiteral("\U0001F600");
    EXPECT_EQ(utf8(toolTipText(pairs)).find("\xEF\xBF\xBD"), std::string::npos) << "cuts no pair";
}

}  // namespace
}  // namespace vantor::shown_text_test
