#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QLocale>
#include <QTranslator>

#include <array>
#include <string>
#include <vector>

#include "app/user_language.h"
#include "ui/rendering.h"
#include "ui/translate.h"

/// The rules of plurals, with small catalogues of the tests' own.
namespace vantor::plurals_test {
namespace {

constexpr std::array counts{0, 1, 2, 3, 5, 11, 21, 101};

std::vector<std::string> textsIn(const QString& language) {
    QTranslator catalogue;
    std::vector<std::string> texts;
    if (!catalogue.load(QStringLiteral(VANTOR_TEST_CATALOGUES "/vantor_%1.qm").arg(language)))
        return texts;
    QCoreApplication::installTranslator(&catalogue);
    for (const int n : counts)
        texts.push_back(utf8(translate("Plurals", "%Ln value(s)", nullptr, n)));
    QCoreApplication::removeTranslator(&catalogue);
    return texts;
}

class Plurals : public testing::Test {
  protected:
    void SetUp() override {
        if (!QFile::exists(QStringLiteral(VANTOR_TEST_CATALOGUES "/vantor_pl.qm")))
            GTEST_SKIP() << "built without the tools for translators";
    }
};

TEST_F(Plurals, OfPolishAreThree) {
    EXPECT_EQ(
        textsIn(QStringLiteral("pl")),
        (std::vector<std::string>{"0 wartości (wiele)", "1 wartość", "2 wartości (kilka)",
                                  "3 wartości (kilka)", "5 wartości (wiele)", "11 wartości (wiele)",
                                  "21 wartości (wiele)", "101 wartości (wiele)"}));
}

TEST_F(Plurals, OfRussianAreThree) {
    EXPECT_EQ(
        textsIn(QStringLiteral("ru")),
        (std::vector<std::string>{"0 значений", "1 значение", "2 значения", "3 значения",
                                  "5 значений", "11 значений", "21 значение", "101 значение"}));
}

TEST_F(Plurals, OfArabicAreSix) {
    EXPECT_EQ(textsIn(QStringLiteral("ar")),
              (std::vector<std::string>{"صفر قيم", "قيمة واحدة", "قيمتان", "3 قيم", "5 قيم",
                                        "11 قيمة (كثير)", "21 قيمة (كثير)", "101 قيمة"}));
}

TEST_F(Plurals, CountInTheDigitsOfTheUser) {
    QLocale::setDefault(QLocale(QLocale::Arabic, QLocale::Egypt));
    EXPECT_EQ(textsIn(QStringLiteral("ar")).at(3), "٣ قيم");
    QLocale::setDefault(QLocale::c());
}

class CatalogueOf : public testing::Test {
  protected:
    /// How many processes there are, for each count, as the program says it in that language.
    static std::vector<std::string> processesIn(const QString& language) {
        const UserLanguage chosen({language});
        std::vector<std::string> texts;
        for (const int n : counts)
            texts.push_back(utf8(translate("ProcessTableView", "%Ln process(es)",
                                           "for screen readers: in the list", n)));
        return texts;
    }
    void SetUp() override {
        if (!QFile::exists(QStringLiteral(":/translations/vantor_pl.qm")))
            GTEST_SKIP() << "built without the tools for translators";
    }
};

TEST_F(CatalogueOf, PolishCountsAsPolesDo) {
    EXPECT_EQ(
        processesIn(QStringLiteral("pl")),
        (std::vector<std::string>{"0 procesów", "1 proces", "2 procesy", "3 procesy", "5 procesów",
                                  "11 procesów", "21 procesów", "101 procesów"}));
}

TEST_F(CatalogueOf, RussianCountsAsRussiansDo) {
    EXPECT_EQ(
        processesIn(QStringLiteral("ru")),
        (std::vector<std::string>{"0 процессов", "1 процесс", "2 процесса", "3 процесса",
                                  "5 процессов", "11 процессов", "21 процесс", "101 процесс"}));
}

TEST_F(CatalogueOf, ArabicHasWordsForOneAndTwoAndAPluralForFew) {
    EXPECT_EQ(processesIn(QStringLiteral("ar")),
              (std::vector<std::string>{"0 عملية", "عملية واحدة", "عمليتان", "3 عمليات", "5 عمليات",
                                        "11 عملية", "21 عملية", "101 عملية"}));
}

TEST(EnglishPlurals, NeedNoCatalogue) {
    EXPECT_EQ(utf8(translate("Plurals", "%Ln value(s)", nullptr, 0)), "0 values");
    EXPECT_EQ(utf8(translate("Plurals", "%Ln value(s)", nullptr, 1)), "1 value");
    EXPECT_EQ(utf8(translate("Plurals", "%Ln process(es)", nullptr, 1)), "1 process");
    EXPECT_EQ(utf8(translate("Plurals", "%Ln process(es)", nullptr, 101)), "101 processes");
}

}  // namespace
}  // namespace vantor::plurals_test
