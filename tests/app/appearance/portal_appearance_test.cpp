#include "app/appearance/portal_appearance.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <optional>
#include <vector>

#include "app/files/portal_world.h"
#include "support/event_patience.h"
#include "support/fake_settings_portal.h"
#include "ui/rendering.h"

namespace vantor::portal_appearance_test {
namespace {

using Scheme = DesktopLook::Scheme;

const auto scheme = QStringLiteral("color-scheme");
const auto contrast = QStringLiteral("contrast");

class PortalAppearanceTest : public testing::Test {
  protected:
    void startPortal(const FakeSettingsPortal::Look& look) {
        portal.emplace(world.bus.address(), look);
    }
    void ask() {
        appearance = std::make_unique<PortalAppearance>(world.questions, world.connector());
        watching =
            appearance->look().observe([this](const DesktopLook& look) { looks.push_back(look); });
    }
    bool becomes(Scheme wanted, bool hasHighContrast = false) {
        const DesktopLook look{wanted, hasHighContrast};
        return handleEventsUntil([&] { return appearance->look().value() == look; });
    }

    PortalWorld world;
    std::optional<FakeSettingsPortal> portal;
    std::unique_ptr<PortalAppearance> appearance;
    Subscription watching;
    std::vector<DesktopLook> looks;
};

TEST_F(PortalAppearanceTest, TellsWhatThePortalTells) {
    startPortal({{scheme, 1U}, {contrast, 1U}});
    ask();
    EXPECT_EQ(appearance->look().value(), DesktopLook{}) << "nothing waits for it";
    EXPECT_TRUE(becomes(Scheme::dark, true));
}

TEST_F(PortalAppearanceTest, FollowsChanges) {
    startPortal({{scheme, 1U}, {contrast, 0U}});
    ask();
    ASSERT_TRUE(becomes(Scheme::dark));
    portal->change(scheme, 2U);
    EXPECT_TRUE(becomes(Scheme::light));
    portal->change(contrast, 1U);
    EXPECT_TRUE(becomes(Scheme::light, true));
    portal->change(scheme, 0U);
    EXPECT_TRUE(becomes(Scheme::unknown, true));
    EXPECT_EQ(looks.size(), 4U) << "each is told once";
}

TEST_F(PortalAppearanceTest, APortalThatKnowsNoContrastStillTellsTheScheme) {
    startPortal({{scheme, 2U}});
    ask();
    EXPECT_TRUE(becomes(Scheme::light));
}

TEST_F(PortalAppearanceTest, ThePortalMayComeLateAndBeRestarted) {
    ask();
    settleEvents();
    startPortal({{scheme, 1U}, {contrast, 0U}});
    ASSERT_TRUE(becomes(Scheme::dark));
    portal.reset();
    settleEvents();
    EXPECT_EQ(appearance->look().value().scheme, Scheme::dark) << "what was known stays";
    startPortal({{scheme, 2U}, {contrast, 1U}});
    EXPECT_TRUE(becomes(Scheme::light, true));
    portal->change(scheme, 1U);
    EXPECT_TRUE(becomes(Scheme::dark, true)) << "the new one is listened to";
}

TEST_F(PortalAppearanceTest, APortalThatDoesNotAnswerIsListenedToOnceItDoes) {
    startPortal({{scheme, 1U}});
    portal->isSilent = true;
    ask();
    ASSERT_TRUE(handleEventsUntil([this] { return portal->asked() == 2; }));
    EXPECT_EQ(appearance->look().value(), DesktopLook{});
    portal.reset();
    startPortal({{scheme, 1U}});
    EXPECT_TRUE(becomes(Scheme::dark));
}

TEST_F(PortalAppearanceTest, StrangersAndOtherSettingsAreNotListenedTo) {
    startPortal({{scheme, 1U}, {contrast, 0U}});
    ask();
    ASSERT_TRUE(becomes(Scheme::dark));
    portal->changeFalsely(world.bus.address(), scheme, 2U);
    portal->change(scheme, 2U, QStringLiteral("com.example.other"));
    for (const QVariant& strange : {QVariant(QStringLiteral("dark")), QVariant(2), QVariant(true),
                                    QVariant(QStringList{QStringLiteral("a")}),
                                    QVariant::fromValue(QDBusVariant(QStringLiteral("b")))})
        portal->change(scheme, strange);
    portal->change(contrast, 1U);  // after all of them
    ASSERT_TRUE(becomes(Scheme::dark, true));
    EXPECT_EQ(looks.size(), 2U);
}

TEST_F(PortalAppearanceTest, ABusThatComesLateIsJoined) {
    const QTemporaryDir folder;
    const QString address = QStringLiteral("unix:path=") + folder.filePath(QStringLiteral("bus"));
    appearance = std::make_unique<PortalAppearance>(
        world.questions,
        [address](const QString& name) { return QDBusConnection::connectToBus(address, name); });
    settleEvents();
    const SessionBus late(address);
    const FakeSettingsPortal there(address, {{scheme, 1U}});
    EXPECT_TRUE(becomes(Scheme::dark));
}

TEST_F(PortalAppearanceTest, ABusThatIsLostIsJoinedAgain) {
    const QTemporaryDir folder;
    const QString address = QStringLiteral("unix:path=") + folder.filePath(QStringLiteral("bus"));
    std::optional<SessionBus> bus(address);
    portal.emplace(address, FakeSettingsPortal::Look{{scheme, 1U}});
    appearance = std::make_unique<PortalAppearance>(
        world.questions,
        [address](const QString& name) { return QDBusConnection::connectToBus(address, name); });
    ASSERT_TRUE(becomes(Scheme::dark));
    portal.reset();
    bus.reset();
    QFile::remove(folder.filePath(QStringLiteral("bus")));
    settleEvents();
    EXPECT_EQ(appearance->look().value().scheme, Scheme::dark);
    bus.emplace(address);
    portal.emplace(address, FakeSettingsPortal::Look{{scheme, 2U}});
    EXPECT_TRUE(becomes(Scheme::light));
    appearance.reset();
    portal.reset();
}

}  // namespace
}  // namespace vantor::portal_appearance_test
