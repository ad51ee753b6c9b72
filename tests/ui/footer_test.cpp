#include <gtest/gtest.h>

#include <QLocale>

#include <chrono>

#include "sampling/dashboard_state.h"
#include "ui/components/text_line.h"
#include "ui/dashboard/horizontal_fit.h"
#include "ui/dashboard/last_update_text.h"
#include "ui/dashboard_world.h"

/// The line at the bottom: what program this is, and how old its figures are.
namespace vantor::footer_test {
namespace {

using namespace std::chrono_literals;

constexpr Timestamp morning =
    std::chrono::sys_days{std::chrono::year{2026} / 2 / 3} + 9h + 5min + 7s;

std::string updated(Timestamp timestamp, const QLocale& locale) {
    return utf8(LastUpdateText().of(timestamp, locale));
}

TEST(LastUpdateText, BeforeTheFirstCommitDataIsBeingCollected) {
    EXPECT_EQ(updated(SystemSnapshot::empty().timestamp, QLocale::c()),
              "Collecting live data\u2026");
}

TEST(LastUpdateText, IsTheTimeOfDayInTheLocalesOwnWay) {
    EXPECT_EQ(updated(morning, QLocale::c()), "Updated 09:05:07");
    EXPECT_EQ(updated(morning, QLocale(QLocale::English, QLocale::UnitedStates)),
              "Updated 9:05:07 AM");
    EXPECT_EQ(updated(morning + 12h, QLocale(QLocale::English, QLocale::UnitedStates)),
              "Updated 9:05:07 PM");
    EXPECT_EQ(updated(morning, QLocale(QLocale::German, QLocale::Germany)), "Updated 09:05:07");
}

TEST(LastUpdateText, HasNoFractionOfASecond) {
    EXPECT_EQ(updated(morning + 999ms, QLocale::c()), "Updated 09:05:07");
}

class TimeZone {
  public:
    explicit TimeZone(const char* name) { qputenv("TZ", name); }
    TimeZone(const TimeZone&) = delete;
    TimeZone& operator=(const TimeZone&) = delete;
    ~TimeZone() { qputenv("TZ", before_); }

  private:
    QByteArray before_ = qgetenv("TZ");
};

TEST(LastUpdateText, FollowsTheClocksWhenTheyArePutForwardAndBack) {
    const TimeZone zone("CET-1CEST,M3.5.0,M10.5.0/3");
    LastUpdateText texts;
    const auto at = [&](Timestamp moment) { return utf8(texts.of(moment, QLocale::c())); };
    const Timestamp spring = std::chrono::sys_days{std::chrono::year{2026} / 3 / 29} + 1h;
    EXPECT_EQ(at(spring - 1s), "Updated 01:59:59");
    EXPECT_EQ(at(spring), "Updated 03:00:00");
    const Timestamp autumn = std::chrono::sys_days{std::chrono::year{2026} / 10 / 25} + 1h;
    EXPECT_EQ(at(autumn - 1s), "Updated 02:59:59");
    EXPECT_EQ(at(autumn), "Updated 02:00:00");
}

TEST(LastUpdateText, FollowsAUserWhoTravelsWithinAMinute) {
    LastUpdateText texts;
    EXPECT_EQ(utf8(texts.of(morning, QLocale::c())), "Updated 09:05:07");
    const TimeZone zone("XYZ-3");
    EXPECT_EQ(utf8(texts.of(morning + 1min, QLocale::c())), "Updated 12:06:07");
}

TEST(LastUpdateText, IsRightBeforeTheEpochToo) {
    EXPECT_EQ(updated(Timestamp(-1s), QLocale::c()), "Updated 23:59:59");
}

TEST(LastUpdateText, ReadsWellInEveryLocale) {
    const auto all =
        QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
    ASSERT_GT(all.size(), 100);
    LastUpdateText texts;
    for (const QLocale& locale : all) {
        const QString text = texts.of(morning, locale);
        EXPECT_EQ(text, text.trimmed()) << utf8(locale.name());
        for (const QChar odd : QStringLiteral("()[]{}',")) {
            EXPECT_FALSE(text.contains(odd)) << utf8(locale.name() + text);
        }
        EXPECT_FALSE(text.contains(u'B' + locale.toString(9))) << utf8(locale.name() + text);
        EXPECT_TRUE(text.contains(locale.toString(7))) << utf8(locale.name() + text);
        EXPECT_GE(text.size(), QStringLiteral("Updated 9:05:07").size()) << utf8(locale.name());
    }
}

class FooterTest : public testing::Test {
  protected:
    DashboardWorld world;

    void TearDown() override { QLocale::setDefault(QLocale::c()); }
    std::string textIn(const QLocale& locale) {
        QLocale::setDefault(locale);
        world.open();
        world.goLive();
        return utf8(world.view->lastUpdate().text());
    }
};

TEST_F(FooterTest, SaysWhenTheFiguresWereTakenByTheClockOfTheMachine) {
    EXPECT_EQ(textIn(QLocale::c()).substr(0, 14), "Updated 09:05:");
}

TEST_F(FooterTest, UsesTheLocaleOfTheProgram) {
    const std::string text = textIn(QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(text.substr(0, 13), "Updated 9:05:");
    EXPECT_EQ(text.substr(text.size() - 3), " AM");
}

TEST_F(FooterTest, SaysTheVersionOnTheLeadingSide) {
    world.open();
    std::vector<std::string> lines;
    for (QWidget* child : world.view->footer().findChildren<QWidget*>()) {
        if (const auto* line = dynamic_cast<TextLineView*>(child))
            lines.push_back(utf8(line->text()));
    }
    EXPECT_EQ(lines, (std::vector<std::string>{"Vantor 1.2.3", "Collecting live data\u2026"}));
}

TEST_F(FooterTest, BothTextsAreWhollyVisible) {
    for (const int width : {1280, 720}) {
        world.open(QSize(width, 700));
        world.goLive();
        for (QWidget* child : world.view->footer().findChildren<QWidget*>()) {
            EXPECT_GE(child->width(), child->sizeHint().width()) << width;
            EXPECT_TRUE(world.view->footer().rect().contains(child->geometry())) << width;
        }
    }
}

}  // namespace
}  // namespace vantor::footer_test
