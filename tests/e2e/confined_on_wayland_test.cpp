#include <gtest/gtest.h>

#include "e2e/wayland_fixture.h"
#include "e2e/whole_use.h"

/// Everything that can be done with the strict program on a compositor: a call that it is denied
/// would end it.
namespace vantor::confined_on_wayland_test {
namespace {

class ConfinedOnWayland : public OnWayland {
  protected:
    /// It is handed over, by the bus or by the program's own socket.
    void startOnceMore() {
        QProcess second;
        second.setProcessEnvironment(environment_);
        second.start(QStringLiteral(VANTOR_STRICT_PROGRAM), QStringList());
        EXPECT_TRUE(second.waitForFinished(20'000)) << "the second one goes on";
        EXPECT_EQ(second.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(second.exitCode(), 0);
    }
};

TEST_F(ConfinedOnWayland, NothingOfTheWholeUseIsDenied) {
    const AssistiveClient client(address_);
    ASSERT_TRUE(client.isConnected());
    start(QStringLiteral(VANTOR_STRICT_PROGRAM));
    const WholeUse use(client,
                       {address_, home_.filePath(QStringLiteral("config/vantor/settings.ini")),
                        home_.path(), home_.filePath(QStringLiteral("Documents"))});
    ASSERT_NO_FATAL_FAILURE(use.waitForAllCards());
    use.sort();
    use.changeSettings();
    use.exportByTheOwnDialog();
    use.exportByAPortal();
    use.useATray();
    startOnceMore();
    bus_.kill();
    ASSERT_TRUE(bus_.waitForFinished(patience));
    startOnceMore();
    ASSERT_EQ(program_.state(), QProcess::Running) << "it was ended";
    program_.terminate();
    ASSERT_TRUE(program_.waitForFinished(patience));
    EXPECT_EQ(program_.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program_.exitCode(), 0);
}

TEST_F(ConfinedOnWayland, NothingOfTheEndByItsMenuIsDenied) {
    const AssistiveClient client(address_);
    start(QStringLiteral(VANTOR_STRICT_PROGRAM));
    const WholeUse use(client, {address_, {}, {}, {}});
    ASSERT_NO_FATAL_FAILURE(use.waitForAllCards());
    use.quitFromTheMenu();
    ASSERT_TRUE(program_.waitForFinished(patience));
    EXPECT_EQ(program_.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program_.exitCode(), 0);
}

}  // namespace
}  // namespace vantor::confined_on_wayland_test
