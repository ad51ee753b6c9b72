#include <gtest/gtest.h>

#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTranslator>

#include <algorithm>
#include <map>
#include <set>

#include "app/languages/catalogue_file.h"
#include "ui/rendering.h"
#include "ui/translate.h"

/// The catalogues that the program has, and the rules of plurals of the languages to come.
namespace vantor::catalogues_test {
namespace {

/// The languages that there are catalogues for, and how many forms their plurals have.
std::map<QString, int> pluralForms() {
    std::map<QString, int> forms;
    const QDir folder(QStringLiteral(VANTOR_TRANSLATIONS));
    for (const QString& file : folder.entryList({QStringLiteral("vantor_*.ts")})) {
        const QString language = file.sliced(7).chopped(3);
        for (const CatalogueMessage& message : readCatalogue(language)) {
            if (message.isPlural) forms[language] = static_cast<int>(message.translations.size());
        }
    }
    return forms;
}

QString keyOf(const CatalogueMessage& message) {
    return message.context + u'|' + message.source + u'|' + message.comment;
}

std::multiset<QString> placesOf(QString text) {
    text.replace(QStringLiteral("%Ln"), QStringLiteral("%n"));
    static const QRegularExpression place(QStringLiteral("%(\\d|n)"));
    std::multiset<QString> found;
    for (auto all = place.globalMatch(text); all.hasNext();)
        found.insert(all.next().captured());
    return found;
}

/// What is wrong with one text; empty where nothing is.
QString complaintAbout(const CatalogueMessage& message, int forms) {
    if (!message.isFinished) return QStringLiteral("is unfinished");
    if (message.translations.size() != (message.isPlural ? forms : 1))
        return QStringLiteral("has another number of plural forms than the language");
    for (const QString& translation : message.translations) {
        if (translation.trimmed().isEmpty()) return QStringLiteral("is empty");
        const auto wanted = placesOf(message.source);
        auto found = placesOf(translation);
        // A form for one or two may say so in words.
        if (message.isPlural) found.insert(QStringLiteral("%n"));
        if (!std::ranges::includes(found, wanted)) return QStringLiteral("lacks a place");
        for (const QString& place : found) {
            if (!wanted.contains(place)) return QStringLiteral("has a place too many");
        }
        if (message.source.contains(u'&') && translation.count(u'&') != 1)
            return QStringLiteral("needs one letter behind &");
    }
    return {};
}

TEST(Catalogues, AllHaveTheTextsOfTheTemplate) {
    std::set<QString> wanted;
    for (const CatalogueMessage& message : readCatalogue(QStringLiteral("de")))
        wanted.insert(keyOf(message));
    EXPECT_GE(wanted.size(), 260u);
    for (const auto& [language, forms] : pluralForms()) {
        if (language == u"en") continue;
        std::set<QString> found;
        for (const CatalogueMessage& message : readCatalogue(language))
            found.insert(keyOf(message));
        EXPECT_EQ(found, wanted) << utf8(language);
    }
}

TEST(Catalogues, OfCompleteLanguagesAreComplete) {
    const std::map<QString, int> forms = pluralForms();
    for (const QString& language : completeLanguages()) {
        ASSERT_TRUE(forms.contains(language)) << utf8(language);
        for (const CatalogueMessage& message : readCatalogue(language)) {
            EXPECT_EQ(utf8(complaintAbout(message, forms.at(language))), "")
                << utf8(language) << ": " << utf8(keyOf(message));
        }
    }
}

TEST(Catalogues, HaveAsManyFormsAsTheirLanguagesPluralsHave) {
    const std::map<QString, int> forms = pluralForms();
    EXPECT_EQ(forms.at(QStringLiteral("ja")), 1);
    EXPECT_EQ(forms.at(QStringLiteral("de")), 2);
    EXPECT_EQ(forms.at(QStringLiteral("ru")), 3);
    EXPECT_EQ(forms.at(QStringLiteral("ar")), 6);
}

TEST(Catalogues, OfCompleteLanguagesHaveDifferentLettersInOneMenu) {
    // Those that are seen together.
    const std::vector<std::vector<QString>> together{
        {QStringLiteral("&File"), QStringLiteral("&Help")},
        {QStringLiteral("&Save"), QStringLiteral("&Name:"), QStringLiteral("&Folder:")}};
    for (const QString& language : completeLanguages()) {
        for (const auto& texts : together) {
            std::set<QChar> letters;
            for (const CatalogueMessage& message : readCatalogue(language)) {
                if (std::ranges::find(texts, message.source) == texts.end()) continue;
                const QString& text = message.translations.constFirst();
                const QChar letter = text.at(text.indexOf(u'&') + 1).toLower();
                EXPECT_TRUE(letters.insert(letter).second)
                    << utf8(language) << " has this letter twice: " << utf8(text);
            }
        }
    }
}

TEST(Catalogues, AnUnfinishedVanishedOrBrokenTextIsFound) {
    const auto message = [](const QString& source, const QStringList& translations, bool isPlural) {
        return CatalogueMessage{{}, source, {}, isPlural, true, translations};
    };
    const QString used = QStringLiteral("%1 used");
    EXPECT_EQ(utf8(complaintAbout(message(used, {QStringLiteral("%1 belegt")}, false), 2)), "");
    EXPECT_NE(utf8(complaintAbout(message(used, {QStringLiteral("belegt")}, false), 2)), "");
    EXPECT_NE(utf8(complaintAbout(message(used, {QStringLiteral("%1 %2")}, false), 2)), "");
    EXPECT_NE(utf8(complaintAbout(message(used, {QString()}, false), 2)), "");
    const QString many = QStringLiteral("%Ln sample(s)");
    EXPECT_NE(utf8(complaintAbout(message(many, {QStringLiteral("%Ln")}, true), 2)), "");
    EXPECT_EQ(utf8(complaintAbout(
                  message(many, {QStringLiteral("eins"), QStringLiteral("%Ln Werte")}, true), 2)),
              "");
    auto unfinished = message(used, {QStringLiteral("%1 belegt")}, false);
    unfinished.isFinished = false;
    EXPECT_NE(utf8(complaintAbout(unfinished, 2)), "");
    EXPECT_NE(
        utf8(complaintAbout(message(QStringLiteral("&File"), {QStringLiteral("Datei")}, false), 2)),
        "");
}

TEST(Catalogues, TheEnglishPluralsAreWhatTheProgramMakesWithoutACatalogue) {
    for (const CatalogueMessage& message : readCatalogue(QStringLiteral("en"))) {
        ASSERT_EQ(message.translations.size(), 2) << utf8(message.source);
        EXPECT_TRUE(message.isFinished) << utf8(message.source);
        for (const int n : {0, 1, 2, 21}) {
            QString expected = message.translations.at(n == 1 ? 0 : 1);
            expected.replace(QStringLiteral("%Ln"), QString::number(n));
            EXPECT_EQ(
                utf8(translate("Catalogues", message.source.toUtf8().constData(), nullptr, n)),
                utf8(expected));
        }
    }
}

}  // namespace
}  // namespace vantor::catalogues_test
