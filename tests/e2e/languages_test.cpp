#include <gtest/gtest.h>

#include <QTranslator>

#include <algorithm>
#include <map>
#include <optional>

#include "app/languages/catalogue_file.h"

#include "e2e/assistive_client.h"
#include "e2e/desktop.h"
#include "e2e/running_program.h"

/// The program in the user's language, as a screen reader meets it.
namespace vantor::languages_test {
namespace {

struct Language {
    const char* catalogue;
    const char* environment;
    bool isMirrored;
};

void PrintTo(const Language& language, std::ostream* out) {
    *out << language.catalogue;
}

class Languages : public testing::TestWithParam<Language> {
  protected:
    void SetUp() override {
        if (!completeLanguages().contains(QLatin1StringView(GetParam().catalogue)))
            GTEST_SKIP() << "built without it";
        ASSERT_TRUE(desktop_.isUp()) << "the virtual desktop did not start";
        desktop_.setLanguage(QLatin1StringView(GetParam().environment));
        client_.emplace(desktop_.startSessionBus());
        ASSERT_TRUE(client_->isConnected()) << "no accessibility bus";
        program_.emplace(desktop_);
        ASSERT_TRUE(program_->waitForLiveData());
        ASSERT_TRUE(eventually([this] { return program_->isActive(); }));
    }

    static QString translationOf(const char* context, const char* source) {
        const auto all = readCatalogue(QLatin1StringView(GetParam().catalogue));
        const auto found = std::ranges::find_if(all, [&](const CatalogueMessage& message) {
            return message.context == QLatin1StringView(context) &&
                   message.source == QString::fromUtf8(source);
        });
        return found == all.end() ? QString() : found->translations.constFirst();
    }

    std::optional<AccessibleElement> find(const QString& name, const char* role = nullptr) const {
        for (const AccessibleElement& element : client_->walk(QStringLiteral("vantor"))) {
            if (element.name == name && (!role || element.role == QLatin1StringView(role)))
                return element;
        }
        return std::nullopt;
    }

    bool shows(const QString& name) const {
        const auto element = find(name);
        return element && client_->isShowing(*element);
    }

    Desktop desktop_{QSize(1366, 900)};
    std::optional<AssistiveClient> client_;
    std::optional<RunningProgram> program_;
};

TEST_P(Languages, AreThoseOfTheUsersEnvironment) {
    const QString memory = translationOf("MemoryCard", "Memory");
    const QString network = translationOf("NetworkCard", "Network");
    ASSERT_FALSE(memory.isEmpty());
    ASSERT_TRUE(eventually([&] { return find(memory) && find(network); }))
        << "no card is called " << memory.toStdString();
    // The header's last button is at its end, which is the left one where people read from the
    // right.
    const auto last = find(translationOf("DashboardHeader", "Quit"));
    const auto first = find(translationOf("DashboardHeader", "Refresh"));
    ASSERT_TRUE(last && first);
    const auto end = client_->leftOf(*last);
    const auto before = client_->leftOf(*first);
    ASSERT_TRUE(end && before);
    EXPECT_EQ(*end < *before, GetParam().isMirrored);
}

TEST_P(Languages, LeaveNothingOfTheWindowInEnglish) {
    std::map<QString, QString> english;
    for (const CatalogueMessage& message : readCatalogue(QLatin1StringView(GetParam().catalogue))) {
        if (!message.isPlural && message.translations.constFirst() != message.source)
            english[message.source] = message.translations.constFirst();
    }
    const auto elements = client_->walk(QStringLiteral("vantor"));
    EXPECT_GT(elements.size(), 60u);
    for (const AccessibleElement& element : elements) {
        for (const QString& text : {element.name, element.description}) {
            const auto found = english.find(text);
            EXPECT_TRUE(found == english.end() || text == QStringLiteral("System"))
                << text.toStdString() << " instead of " << found->second.toStdString();
        }
    }
}

TEST_P(Languages, ProcessesAreFilteredAndSortedInThem) {
    desktop_.key(QStringLiteral("ctrl+f"));
    desktop_.type(QStringLiteral("zqxzqx"));
    const QString nothing = translationOf("ProcessExplorer", "No Matching Processes");
    ASSERT_TRUE(eventually([&] { return shows(nothing); }))
        << "nothing says " << nothing.toStdString();
    const QString why = translationOf("ProcessExplorer", "No process matches “%1”.");
    EXPECT_EQ(find(nothing)->description.toStdString(),
              why.arg(QStringLiteral("zqxzqx")).toStdString());
    desktop_.key(QStringLiteral("Escape"));
    EXPECT_TRUE(eventually([&] { return !shows(nothing); }));
    const QString memory = translationOf("ProcessExplorer", "Memory");
    const auto byMemory = [&] { return find(memory, "radio button"); };
    ASSERT_TRUE(byMemory());
    EXPECT_FALSE(client_->isChecked(*byMemory()));
    desktop_.key(QStringLiteral("ctrl+f"));
    desktop_.key(QStringLiteral("Tab"));
    desktop_.key(GetParam().isMirrored ? QStringLiteral("Left") : QStringLiteral("Right"));
    EXPECT_TRUE(eventually([&] { return client_->isChecked(*byMemory()); }));
}

INSTANTIATE_TEST_SUITE_P(All, Languages,
                         testing::Values(Language{"de", "de_DE.UTF-8", false},
                                         Language{"ar", "ar_EG.UTF-8", true},
                                         Language{"ja", "ja_JP.UTF-8", false}),
                         [](const auto& given) { return std::string(given.param.catalogue); });

}  // namespace
}  // namespace vantor::languages_test
