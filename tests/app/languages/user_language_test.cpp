#include "app/user_language.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>

#include "ui/core_words.h"
#include "ui/rendering.h"
#include "ui/translate.h"

namespace vantor::user_language_test {
namespace {

const QString folder = QStringLiteral(VANTOR_TEST_CATALOGUES);

std::string candidatesOf(const QString& language) {
    return utf8(UserLanguage::candidates(language).join(u' '));
}

TEST(UserLanguage, LooksForTheExactLanguageFirst) {
    EXPECT_EQ(candidatesOf(QStringLiteral("de-AT")), "de_AT de");
    EXPECT_EQ(candidatesOf(QStringLiteral("pt-PT")), "pt_PT pt pt_BR");
    EXPECT_EQ(candidatesOf(QStringLiteral("zh-Hans-SG")), "zh_Hans_SG zh_Hans zh_CN zh");
    EXPECT_EQ(candidatesOf(QStringLiteral("zh-Hant-TW")), "zh_Hant_TW zh_Hant zh")
        << "another script is not readable to everyone";
}

class UserLanguageTest : public testing::Test {
  protected:
    void SetUp() override {
        if (!QFile::exists(folder + QStringLiteral("/vantor_ar.qm")))
            GTEST_SKIP() << "built without the tools for translators";
    }
    void TearDown() override { QApplication::setLayoutDirection(Qt::LeftToRight); }
};

TEST_F(UserLanguageTest, ThatIsReadFromTheRightMirrorsWindows) {
    const UserLanguage language({QStringLiteral("ar-EG")}, folder);
    EXPECT_EQ(utf8(language.name()), "ar");
    EXPECT_EQ(QApplication::layoutDirection(), Qt::RightToLeft);
    EXPECT_EQ(utf8(translate("Plurals", "%Ln value(s)", nullptr, 2)), "قيمتان");
}

TEST_F(UserLanguageTest, WithoutACatalogueMirrorsNothing) {
    const UserLanguage language({QStringLiteral("he-IL"), QStringLiteral("fa-IR")}, folder);
    EXPECT_EQ(utf8(language.name()), "");
    EXPECT_EQ(QApplication::layoutDirection(), Qt::LeftToRight);
}

TEST_F(UserLanguageTest, IsTheFirstThatThereIsACatalogueFor) {
    const UserLanguage language(
        {QStringLiteral("he-IL"), QStringLiteral("pl-PL"), QStringLiteral("ru")}, folder);
    EXPECT_EQ(utf8(language.name()), "pl");
}

TEST_F(UserLanguageTest, IsEnglishForThoseWhoPreferIt) {
    const UserLanguage language({QStringLiteral("en-US"), QStringLiteral("pl-PL")}, folder);
    EXPECT_EQ(utf8(language.name()), "");
}

TEST(CoreWords, StayAsTheyAreWithoutACatalogue) {
    for (const char* const text :
         {"Nominal", "\"a.json\" could not be saved. The disk can only be read.",
          "Not changed yet: the disk does not answer.", "in part (without files, network)",
          "\"a \"b\" could not be saved. c\" could not be saved. Too many files are open.",
          "\"x\" could not be saved. The system gave the reason \"odd\" (77).", "a disk of mine"}) {
        EXPECT_EQ(utf8(wordedForPeople(text)), text);
    }
}

}  // namespace
}  // namespace vantor::user_language_test
